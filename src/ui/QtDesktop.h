#pragma once

#include <map>
#include <memory>

#include <QPointer>

#include "core/RegionalSettings.h"
#include "forms/Desktop.h"
#include "ui/FocusBridge.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"

class QEventLoop;
class QTimer;

namespace norvane::ui {

class FormWindow;
class HelpViewer;

/// The real outside world: windows, boxes, timers, the clock and the machine's folders. Needs a QApplication, and must
/// outlive the program that it serves.
class QtDesktop : public Desktop {
 public:
  explicit QtDesktop(const RegionalSettings& settings = {}, Theme theme = Theme::System);
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

 private:
  void LetAppear(QWidget& window);
  void PresentOwned(FormWindow& owner);
  void RunLoop(QEventLoop& loop);

  WidgetFactory widgets_;
  FocusBridge focus_;
  std::map<const Form*, FormWindow*> windows_;
  std::map<const Form*, QEventLoop*> modal_;
  std::map<Timer*, std::unique_ptr<QTimer>> timers_;
  std::vector<QEventLoop*> loops_;
  QPointer<QWidget> help_;
  bool pointerSet_ = false;
  bool ended_ = false;
  bool holdTimers_ = false;
};

}  // namespace norvane::ui
