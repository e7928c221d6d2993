#include "forms/Control.h"

#include "forms/Form.h"

namespace norvane {

Control::Control(Form& form, std::string name, std::string toolTip)
    : form_(form), name_(std::move(name)), toolTip_(std::move(toolTip)) {
  form_.controls_.push_back(this);
}

Control::~Control() = default;

void Control::Notify(Aspect aspect) {
  if (observer) observer(aspect);
}

void Control::SetToolTip(std::string text) {
  toolTip_ = std::move(text);
  Notify(Aspect::ToolTip);
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Notify(Aspect::Enabled);
  if (!enabled) form_.program.focus.Abandon(*this);
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Notify(Aspect::Visible);
  if (!visible) form_.program.focus.Abandon(*this);
}

void Control::SetLeft(Twips left) {
  left_ = left;
  Notify(Aspect::Place);
}

void Control::SetTop(Twips top) {
  top_ = top;
  Notify(Aspect::Place);
}

void Control::SetWidth(Twips width) {
  if (width < 0) Raise(ErrorNumber::InvalidProcedureCall);
  width_ = width;
  Notify(Aspect::Place);
}

void Control::SetHeight(Twips height) {
  if (height < 0) Raise(ErrorNumber::InvalidProcedureCall);
  height_ = height;
  Notify(Aspect::Place);
}

void Control::SetFocus() {
  if (!enabled_ || !visible_ || !TakesFocus() || !form_.loaded_) return;
  const Dispatch dispatch(form_);
  form_.activeControl_ = this;
  if (form_.visible_) form_.program.focus.MoveTo(*this);
}

bool Control::HasFocus() const {
  return form_.program.focus.Current() == this;
}

}  // namespace norvane
