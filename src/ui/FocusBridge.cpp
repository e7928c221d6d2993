#include "ui/FocusBridge.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScopedValueRollback>

#include "forms/Form.h"

namespace norvane::ui {

FocusBridge::FocusBridge() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { WidgetFocused(now); });
}

void FocusBridge::Give(Binding& binding) {
  if (!binding.Model().HasFocus()) return;
  Forget();
  const QScopedValueRollback giving(giving_, true);
  QWidget& widget = binding.Widget();
  const QWidget* focused = QApplication::focusWidget();
  if (!focused || (focused != &widget && !widget.isAncestorOf(focused))) widget.setFocus(Qt::OtherFocusReason);
  if (widget.window()->isVisible() && !widget.window()->isActiveWindow()) widget.window()->activateWindow();
}

void FocusBridge::WidgetFocused(QWidget* now) {
  if (giving_) return;
  Binding* binding = Binding::Of(now);
  if (!binding || !binding->Model().TakesFocus()) return;
  wanted_ = binding;
  QMetaObject::invokeMethod(this, &FocusBridge::Deliver, Qt::QueuedConnection);
}

void FocusBridge::Deliver() {
  if (!wanted_) return;
  const auto* button = qobject_cast<QAbstractButton*>(&wanted_->Widget());
  if (button && button->isDown()) {
    connect(button, &QAbstractButton::released, this, &FocusBridge::Deliver,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return;
  }
  Control& control = wanted_->Model();
  Forget();
  if (control.Parent().IsVisible() && !control.HasFocus()) control.SetFocus();
}

}  // namespace norvane::ui
