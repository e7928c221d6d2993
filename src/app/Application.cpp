#include "app/Application.h"

#include "forms/Desktop.h"

namespace norvane {

bool Application::notify(QObject* receiver, QEvent* event) {
  if (!desktop_) return QApplication::notify(receiver, event);
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    desktop_->Say(InternalErrorText(error));
    return true;
  }
}

}  // namespace norvane
