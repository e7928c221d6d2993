#include "ui/Warning.h"

#include <QMessageBox>

#include "forms/Desktop.h"
#include "ui/FormWindow.h"

namespace norvane::ui {

void Warn(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Warning, kApplicationTitle, text, QMessageBox::Ok, parent);
  box.setWindowFlags(kDialogFrame);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace norvane::ui
