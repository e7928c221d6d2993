#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include <QElapsedTimer>
#include <QPointer>

#include "core/Conversions.h"
#include "forms/Desktop.h"
#include "ui/FocusBridge.h"
#include "ui/FormWindow.h"
#include "ui/HelpViewer.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"
#include "ui/WindowMemory.h"

class QEventLoop;
class QTimer;

namespace norvane::ui {

/// The real outside world: windows, boxes, timers, the clock and the machine's folders. Needs a QApplication, and must
/// outlive the program that it serves.
class QtDesktop : public Desktop {
 public:
  /// Windows keep their places in the settings file of `folder`, the application folder, and find their help below it;
  /// without one they keep nothing. `theme` is overruled by the theme that the user has chosen, if any.
  explicit QtDesktop(const RegionalSettings& settings = {}, Theme theme = Theme::System,
                     const std::filesystem::path& folder = {});
  ~QtDesktop() override;

  /// Runs until the program has ended.
  void Run();
  /// The window of a form, null if it was never shown.
  FormWindow* WindowOf(const Form& form) const;

  Date Now() const override;
  Answer Ask(const Message& message) override;
  void FormShown(Form& form) override;
  void FormHidden(Form& form) override;
  void FormDestroyed(Form& form) override;
  void RunModal(Form& form) override;
  void Quit() override;
  void Repaint(Form* form) override;
  void DoEvents() override;
  void Wait(double seconds) override;
  void TimerChanged(Timer& timer) override;
  void SetMousePointer(MousePointer pointer) override;
  void ShowHelp(const std::filesystem::path& folder) override;
  std::filesystem::path DocumentsFolder() const override;
  std::filesystem::path CurrentFolder() const override;
  std::vector<std::filesystem::path> Drives() const override;
  std::filesystem::path AskForFile(const FileRequest& request) override;

 private:
  void ChooseTheme(Theme theme);
  void ShowHelpOf(const Form& form);
  void ShowWindow(Form& form, FormWindow& window, bool isNew);
  void ShowLater(Form& form, FormWindow& window);
  void NoteHowLong(const std::string& notice);
  void LetAppear(QWidget& window);
  void PresentOwned(FormWindow& owner);
  void RunLoop(QEventLoop& loop);

  const bool systemIsDark_;
  const std::filesystem::path folder_;
  WindowMemory memory_;
  const Conversions convert_;
  WidgetFactory widgets_;
  FocusBridge focus_;
  const WindowServices services_;
  std::map<const Form*, FormWindow*> windows_;
  std::map<const Form*, QEventLoop*> modal_;
  std::map<Timer*, std::unique_ptr<QTimer>> timers_;
  std::vector<QEventLoop*> loops_;
  std::map<std::string, QElapsedTimer> notices_;  ///< by name, since they were asked for
  std::set<std::string> slowNotices_;             ///< those of work that took its time before
  QPointer<HelpViewer> help_;
  bool pointerSet_ = false;
  bool ended_ = false;
  bool holdTimers_ = false;
};

}  // namespace norvane::ui
