#include "ui/Warning.h"

#include <QMessageBox>

#include "forms/Desktop.h"

namespace norvane::ui {

void Warn(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Warning, kApplicationTitle, text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace norvane::ui
