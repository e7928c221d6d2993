#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Desktop.h"
#include "forms/Form.h"

namespace norvane::test {

/// The outside world of a test: a clock that is stopped, answers given beforehand, and a log of what was shown.
///
/// It fails the test on a box that nobody expected, on an answer or step that nobody asked for (at its end), and on a
/// modal form that is still open after its step. Make it before the program.
class ScriptedDesktop : public Desktop {
 public:
  ScriptedDesktop();
  ~ScriptedDesktop() override;

  // The script.

  /// The next box has `fragment` in its text or its title, and gets this answer. Boxes come in the order of
  /// expectation.
  void Expect(std::string_view fragment, Answer answer = Answer::Ok);
  /// The next dialog for a file or folder that has `fragment` in its title gets this path; an empty one cancels it.
  void ExpectFile(std::string_view fragment, std::filesystem::path file);
  /// What is done when the screen is next shown modally; it has to end the wait.
  void WhenModal(std::string_view name, std::function<void(Form&)> step);
  template <class Screen>
  void WhenModal(std::function<void(Screen&)> step) {
    WhenModal(Screen::kName, [step = std::move(step)](Form& form) { step(static_cast<Screen&>(form)); });
  }
  /// What happens during the next wait, and in the next turn of the event pump.
  void DuringWait(std::function<void()> step) { waitSteps_.push_back(std::move(step)); }
  void DuringDoEvents(std::function<void()> step) { pumpSteps_.push_back(std::move(step)); }
  /// Lets the timer of that form tick; fails the test if it isn't running.
  void Tick(std::string_view form, std::string_view timer);

  // What is pinned.
  Date now;  ///< Sunday, November 22, 2026, 2:29 PM at first
  std::filesystem::path documentsFolder = "/home/user/Documents";
  std::filesystem::path currentFolder = "/home/user";
  std::vector<std::filesystem::path> drives = {"/", "/home/user"};

  // What was seen.

  /// "show Customer", "front Customer", "hide Customer", "gone Customer", "modal PaymentDate", "box: ...",
  /// "wait 1.00", "help ...", "quit", in their order.
  std::vector<std::string> log;
  /// Every box in its order, with its title and its buttons.
  std::vector<Message> boxes;
  MousePointer pointer = MousePointer::Default;
  int repaints = 0;
  bool HasQuit() const { return quits_ > 0; }
  bool IsShown(std::string_view form) const { return shown_.find(form) != shown_.end(); }

  // Desktop.
  Date Now() const override { return now; }
  Answer Ask(const Message& message) override;
  void FormShown(Form& form) override;
  void FormHidden(Form& form) override;
  void FormDestroyed(Form& form) override;
  void RunModal(Form& form) override;
  void Quit() override;
  void Repaint(Form*) override { ++repaints; }
  void DoEvents() override;
  void Wait(double seconds) override;
  void TimerChanged(Timer& timer) override;
  void SetMousePointer(MousePointer newPointer) override { pointer = newPointer; }
  void ShowHelp(const std::filesystem::path& folder) override;
  std::filesystem::path DocumentsFolder() const override { return documentsFolder; }
  std::filesystem::path CurrentFolder() const override { return currentFolder; }
  std::vector<std::filesystem::path> Drives() const override { return drives; }
  std::filesystem::path AskForFile(const FileRequest& request) override;

 private:
  struct ExpectedBox {
    std::string fragment;
    Answer answer;
  };
  struct ModalStep {
    std::string form;
    std::function<void(Form&)> step;
  };
  using Steps = std::deque<std::function<void()>>;
  static void RunNext(Steps& steps);

  std::deque<ExpectedBox> expected_;
  std::deque<std::pair<std::string, std::filesystem::path>> files_;
  std::deque<ModalStep> modalSteps_;
  Steps waitSteps_;
  Steps pumpSteps_;
  std::map<std::string, Form*, std::less<>> shown_;
  std::map<std::string, Timer*, std::less<>> timers_;  ///< those that run, as "Form.Timer"
  int quits_ = 0;
};

}  // namespace norvane::test
