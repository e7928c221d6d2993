#pragma once

#include <QObject>
#include <QPointer>

#include "ui/Binding.h"

namespace norvane::ui {

/// Keeps the toolkit's keyboard focus and the model's one and the same.
///
/// The user's moves reach the model after the toolkit has finished its own, so a handler may do anything. Message
/// boxes, menus and popups have no binding, and coming back from them or from another program finds the model where it
/// was: neither raises anything. A button that the mouse holds down moves the model's focus only when it is let go,
/// together with its click.
class FocusBridge : public QObject {
 public:
  FocusBridge();

  /// The model has given the binding's control the focus; the widget and its window follow.
  void Give(Binding& binding);
  /// What the user did before is overtaken: a window is about to come to the front by the model's will.
  void Forget() { wanted_ = nullptr; }
  /// Lets the model know, if the user has moved the focus.
  void Deliver();

 private:
  void WidgetFocused(QWidget* now);

  QPointer<Binding> wanted_;
  bool giving_ = false;
};

}  // namespace norvane::ui
