#include "ui/AltKeys.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace norvane::ui {
namespace {

bool TakesText(const QObject& widget) {
  return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QAbstractSpinBox*>(&widget);
}

/// Alt with Ctrl is how some keyboards write a third character.
bool IsLetterWithAlt(const QKeyEvent& key) {
  const auto held = key.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
  return held == Qt::AltModifier && !key.text().isEmpty() && key.text().at(0).isPrint();
}

class AltFilter : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !TakesText(*watched)) return false;
    if (!IsLetterWithAlt(static_cast<const QKeyEvent&>(*event))) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

void KeepAltFromTyping(QApplication& application) {
  application.installEventFilter(new AltFilter(&application));
}

}  // namespace norvane::ui
