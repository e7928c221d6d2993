#pragma once

#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "core/Clock.h"
#include "core/Reporter.h"

namespace norvane {

class Form;
class Timer;

inline constexpr const char* kApplicationTitle = "Norvanes";

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Question, Information, Critical };
enum class Answer { Ok, Yes, No, Cancel };
enum class MousePointer { Default = 0, Hourglass = 11 };

/// What the user sees of an exception that is no runtime error: a fault of the program's own.
std::string InternalErrorText(const std::exception& error);

struct Message {
  std::string text;
  std::string title = kApplicationTitle;
  norvane::Buttons buttons = Buttons::Ok;
  norvane::Icon icon = Icon::None;
  Answer preselected = Answer::Ok;
  std::string details = "";  ///< what the user may ask to see besides
};

/// What the user is asked for in a dialog of the desktop's own.
struct FileRequest {
  enum class Kind { Open, Save, Folder };
  Kind kind = Kind::Open;
  std::string title;
  std::string name = "";    ///< suggested
  std::string ending = "";  ///< of the files offered, without its point; empty for all
};

/// Everything that the screens need from outside. The windows implement it; tests have a scripted one.
class Desktop : public Reporter, public Clock {
 public:
  /// One modal box. It raises no focus events.
  virtual Answer Ask(const Message& message) = 0;
  /// A plain box under the application's title.
  void Say(const std::string& text) { Ask({.text = text}); }
  /// A trapped error's box.
  void Report(const std::string& text) override { Say(text); }
  void ReportWithCause(const std::string& text, const std::string& cause) override {
    Ask({.text = text, .details = cause});
  }

  // Windows. The form is the truth; these make the outside follow it.
  virtual void FormShown(Form& form) = 0;      ///< has become visible, or is to come forward if it was
  virtual void FormHidden(Form& form) = 0;     ///< hidden or unloaded: it goes from view
  virtual void FormDestroyed(Form& form) = 0;  ///< after this the form is no more
  /// Runs events until the form is no longer visible.
  virtual void RunModal(Form& form) = 0;
  /// No form is visible any more: the program ends.
  virtual void Quit() = 0;

  /// Paints what is due of the form, or of all.
  virtual void Repaint(Form* form) = 0;
  /// The event pump: paints and runs due timers; keyboard and mouse wait.
  virtual void DoEvents() = 0;
  /// Waits while the user goes on working.
  virtual void Wait(double seconds) = 0;
  virtual void TimerChanged(Timer& timer) = 0;  ///< started, stopped or about to go
  virtual void SetMousePointer(MousePointer pointer) = 0;

  /// Opens the help viewer on the pages of `folder`. Raises 53 if they are missing.
  virtual void ShowHelp(const std::filesystem::path& folder) = 0;

  // Folders.
  virtual std::filesystem::path DocumentsFolder() const = 0;
  virtual std::filesystem::path CurrentFolder() const = 0;
  /// The roots a user can pick from: "/", the home folder, mounted media.
  virtual std::vector<std::filesystem::path> Drives() const = 0;
  /// Asks for a file or folder. Empty if the user chooses none.
  virtual std::filesystem::path AskForFile(const FileRequest& request) = 0;
};

}  // namespace norvane
