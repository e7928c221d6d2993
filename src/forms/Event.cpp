#include "forms/Event.h"

#include "forms/Form.h"

namespace norvane {

Dispatch::Dispatch(const Form& form) : Dispatch(form.program) {}

Dispatch::Dispatch(Program& program) : program_(program) {
  program_.EnterDispatch();
}

Dispatch::~Dispatch() {
  program_.LeaveDispatch();
}

void detail::RunAsEvent(Form& form, const std::function<void()>& body) {
  if (form.IsLoaded()) form.RunHandler(body);
}

}  // namespace norvane
