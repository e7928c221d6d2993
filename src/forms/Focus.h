#pragma once

namespace norvane {

class Control;
class Form;

/// Which form of the program is in front and which control has its keyboard. Message boxes, menus, drop-down lists and
/// other programs never change it.
class Focus {
 public:
  Form* ActiveForm() const { return form_; }
  /// The control with the keyboard, nothing if the form in front has none that takes it.
  Control* Current() const;

  /// LostFocus of the control that had it, then GotFocus of `control`; its form comes to the front.
  void MoveTo(Control& control);
  /// A window of the program came to the front: LostFocus there, GotFocus here.
  void Activate(Form& form);
  /// The form is going: whoever is behind comes to the front.
  void Leave(Form& form, Form* next);

 private:
  Form* form_ = nullptr;
};

}  // namespace norvane
