#pragma once

#include <QObject>
#include <QPointer>

#include "ui/Binding.h"

namespace norvane::ui {

/// Keeps the toolkit's keyboard focus and the model's focus the same.
///
/// The user's moves reach the model after the toolkit has finished its own, so a handler may do anything. Message
/// boxes, menus and popups have no binding, and coming back from them or from another program finds the model where it
/// was: neither raises anything. A button that the mouse holds down moves the model's focus only when it is let go,
/// together with its click.
class FocusBridge : public QObject {
 public:
  FocusBridge();

  /// Moves the keyboard focus to the widget of a control to which the model has given the focus.
  void Give(Binding& binding);
  /// Drops a move of the user's that the model doesn't know yet, because the model itself brings a window forward.
  void Forget() { wanted_ = nullptr; }
  /// Reports the user's last move of the focus to the model, if there is one.
  void Deliver();

 private:
  void WidgetFocused(QWidget* now);

  QPointer<Binding> wanted_;
  bool giving_ = false;
};

}  // namespace norvane::ui
