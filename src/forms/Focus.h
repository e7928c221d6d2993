#pragma once

#include <vector>

namespace norvane {

class Control;
class Form;

/// Which form of the program is in front and which control has its keyboard. Message boxes, menus, drop-down lists and
/// other programs never change it.
class Focus {
 public:
  Form* ActiveForm() const { return form_; }
  /// The control with the keyboard, nothing if the form in front has none that takes it.
  Control* Current() const { return control_; }
  /// The innermost modal form, which all other forms wait for; nothing if there is none.
  Form* Modal() const;

  /// LostFocus of the control that had it, then GotFocus of `control`; its form comes to the front. Nothing happens if
  /// the form waits for a modal one.
  void MoveTo(Control& control);
  /// A form has become visible: it comes to the front, or directly below the modal form it has to wait for or
  /// a form of its own that is open already.
  void Enter(Form& form);
  /// A form has come to the front outside: LostFocus there, GotFocus here.
  void Activate(Form& form);
  /// The form has gone from view: its owner or the form that was in front before comes forward.
  void Leave(Form& form);
  /// The control can no longer have the focus: the next one in tab order gets it.
  void Abandon(Control& control);

 private:
  bool Waits(const Form& form) const;
  bool Lose();
  void ComeForward(Form& form);
  void Gain(Control& control);

  Form* form_ = nullptr;
  Control* control_ = nullptr;
  std::vector<Form*> order_;  ///< visible forms that can be in front, the front one last
  int moves_ = 0;             ///< changes when a handler has moved the focus meanwhile
};

}  // namespace norvane
