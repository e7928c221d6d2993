#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QApplication>
#include <QTimer>

#include "forms/Form.h"
#include "ui/QtDesktop.h"

namespace norvane::tour {

/// The real windows without a user: a box is recorded and answered with its preselected button, a modal form is passed
/// to `modalForm` and unloaded, and the day is always the same, so that a picture changes only with the screen it
/// shows.
class TourDesktop : public ui::QtDesktop {
 public:
  TourDesktop(ui::Theme theme, Date day) : QtDesktop({}, theme), day_(day) {}

  std::function<void(Form&)> modalForm = [](Form&) {};
  /// Takes the boxes that come up, as they are shown. Without it they are recorded and answered unseen.
  std::function<void(QWidget&)> box;
  std::vector<std::string> boxes;  ///< texts of the boxes answered unseen

  Date Now() const override { return day_; }
  Answer Ask(const Message& message) override {
    if (!box) {
      boxes.push_back(message.text);
      return message.preselected;
    }
    QTimer::singleShot(0, [this] {
      QWidget* shown = QApplication::activeModalWidget();
      box(*shown);
      shown->close();
    });
    return QtDesktop::Ask(message);
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
