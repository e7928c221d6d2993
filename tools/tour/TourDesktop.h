#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/QtDesktop.h"

namespace norvane::tour {

/// The real windows, with nobody at the keyboard: a box is noted and answered with what stands preselected, a modal
/// form is shown to `modalForm` and unloaded, and the day is always the same, so that a picture changes only with the
/// screen it shows.
class TourDesktop : public ui::QtDesktop {
 public:
  TourDesktop(ui::Theme theme, Date day) : QtDesktop({}, theme), day_(day) {}

  std::function<void(Form&)> modalForm = [](Form&) {};
  std::vector<std::string> boxes;  ///< texts of the boxes that came

  Date Now() const override { return day_; }
  Answer Ask(const Message& message) override {
    boxes.push_back(message.text);
    return message.preselected;
  }
  void RunModal(Form& form) override {
    modalForm(form);
    form.Unload();
  }
  void Wait(double) override { DoEvents(); }

 private:
  Date day_;
};

}  // namespace norvane::tour
