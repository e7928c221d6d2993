#include "forms/Focus.h"

#include <algorithm>

#include "forms/Form.h"

namespace norvane {

Form* Focus::Modal() const {
  const auto found = std::find_if(order_.rbegin(), order_.rend(), [](const Form* form) { return form->IsModal(); });
  return found == order_.rend() ? nullptr : *found;
}

bool Focus::Waits(const Form& form) const {
  const Form* modal = Modal();
  return modal && modal != &form;
}

/// Takes the focus from the control that has it. True unless a handler gave it to someone meanwhile.
bool Focus::Lose() {
  const int move = ++moves_;
  if (Control* control = std::exchange(control_, nullptr)) {
    control->LosingFocus();
    control->LostFocus.Raise();
    control->Notify(Aspect::Focus);
  }
  return move == moves_;
}

void Focus::Gain(Control& control) {
  control_ = &control;
  control.Parent().activeControl_ = &control;
  control.Notify(Aspect::Focus);
  control.GainingFocus();
  control.GotFocus.Raise();
}

void Focus::ComeForward(Form& form) {
  if (form_ == &form) return;
  form_ = &form;
  std::erase(order_, &form);
  order_.push_back(&form);
}

void Focus::MoveTo(Control& control) {
  Form& form = control.Parent();
  if (control_ == &control || !form.CanBeInFront() || Waits(form)) return;
  if (!Lose() || !form.IsVisible()) return;
  if (form_ != &form) form.desktop.FormShown(form);
  ComeForward(form);
  // What happened as the other control lost it may have closed this one.
  Control* taker = control.Enabled() && control.Visible() ? &control : form.FirstFocus();
  if (taker) Gain(*taker);
}

void Focus::Enter(Form& form) {
  if (!form.CanBeInFront()) return;
  const auto isItsOwn = [&](const Form* other) { return other->Owner() == &form; };
  const auto owned = std::find_if(order_.begin(), order_.end(), isItsOwn);
  if (owned != order_.end()) {
    order_.insert(owned, &form);
    return;
  }
  const auto behind = form.IsModal() ? order_.end() : std::find(order_.begin(), order_.end(), Modal());
  order_.insert(behind, &form);
  Activate(form);
}

void Focus::Activate(Form& form) {
  if (form_ == &form || !form.IsVisible() || !form.CanBeInFront() || Waits(form)) return;
  if (!Lose() || !form.IsVisible()) return;
  ComeForward(form);
  if (Control* control = form.FirstFocus()) return Gain(*control);
  detail::RunAsEvent(form, [&] { form.Form_GotFocus(); });
}

void Focus::Leave(Form& form) {
  std::erase(order_, &form);
  if (form_ != &form) return;
  form_ = nullptr;
  if (!Lose()) return;
  Form* next = order_.empty() ? nullptr : order_.back();
  if (Form* modal = Modal()) {
    next = modal;
  } else if (form.Owner() && form.Owner()->IsVisible()) {
    next = form.Owner();
  }
  if (!next) return;
  next->desktop.FormShown(*next);
  Activate(*next);
}

void Focus::Abandon(Control& control) {
  if (control_ != &control) return;
  const Dispatch dispatch(control.Parent());
  Form& form = control.Parent();
  const auto all = layout::ControlsOf(form.Layout());
  const auto usable = form.TabOrder();
  const auto here = std::find(all.begin(), all.end(), &control);
  const auto canHaveIt = [&](Control* other) { return std::count(usable.begin(), usable.end(), other) > 0; };
  auto next = std::find_if(here, all.end(), canHaveIt);
  if (next == all.end()) next = std::find_if(all.begin(), here, canHaveIt);
  if (next != here && next != all.end()) {
    MoveTo(**next);
  } else {
    Lose();
  }
}

}  // namespace norvane
