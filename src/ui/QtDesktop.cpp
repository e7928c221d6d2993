#include "ui/QtDesktop.h"

#include <algorithm>

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTimer>
#include <QWindow>

#include "core/FileNames.h"
#include "core/RuntimeError.h"
#include "forms/Form.h"
#include "ui/AltKeys.h"
#include "ui/Convert.h"
#include "ui/FileDialogs.h"
#include "ui/FileListWidgets.h"
#include "ui/PreviewWidget.h"
#include "ui/ProgressWidget.h"

namespace norvane::ui {
namespace {

constexpr int kAppearMilliseconds = 250;
constexpr int kNoticeMilliseconds = 250;
constexpr int kSearchMilliseconds = 1000;  // letters typed within this time make one word to search for

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return QMessageBox::Ok;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return QMessageBox::Ok;
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
    case Answer::Cancel:
      return QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

Answer AnswerOf(int button) {
  if (button == QMessageBox::Yes) return Answer::Yes;
  if (button == QMessageBox::No) return Answer::No;
  return button == QMessageBox::Cancel ? Answer::Cancel : Answer::Ok;
}

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::None:
      return QMessageBox::NoIcon;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

bool IsMountedMedium(const QString& root) {
  const auto below = [&](const char* folder) { return root.startsWith(QLatin1String(folder)); };
  return below("/media/") || below("/run/media/") || below("/mnt/");
}

/// The folder asked for, or the installed one of its name: the user's own folder may hold no pages.
std::filesystem::path HelpPages(const std::filesystem::path& folder) {
  std::error_code failed;
  if (std::filesystem::exists(folder / HelpViewer::kFirstPage, failed)) return folder;
  const QString name = FromPath(folder.filename());
  return ToPath(QStandardPaths::locate(QStandardPaths::AppDataLocation, name, QStandardPaths::LocateDirectory));
}

}  // namespace

QtDesktop::QtDesktop(const RegionalSettings& settings, Theme theme, const std::filesystem::path& folder)
    : systemIsDark_(IsDark(*qApp)),
      folder_(folder),
      memory_(folder.empty() ? folder : folder / kSettingsFile),
      convert_(settings, *this),
      services_{.factory = widgets_,
                .focus = focus_,
                .memory = memory_,
                .help = [this](const Form& form) { ShowHelpOf(form); },
                .chooseTheme = [this](Theme chosen) { ChooseTheme(chosen); }} {
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setKeyboardInputInterval(kSearchMilliseconds);
  const Theme chosen = memory_.ChosenTheme();
  const Theme first = chosen == Theme::System ? theme : chosen;
  ApplyTheme(*qApp, first == Theme::Dark || (first == Theme::System && systemIsDark_));
  KeepAltFromTyping(*qApp);
  RegisterStandardWidgets(widgets_, {.convert = convert_, .clock = *this, .memory = memory_});
  RegisterFileListWidgets(widgets_);
  RegisterPreview(widgets_);
  RegisterProgressBar(widgets_);
}

void QtDesktop::ChooseTheme(Theme theme) {
  memory_.KeepTheme(theme);
  ApplyTheme(*qApp, theme == Theme::Dark || (theme == Theme::System && systemIsDark_));
}

QtDesktop::~QtDesktop() {
  for (const auto& [form, window] : windows_) delete window;
  delete help_;
}

void QtDesktop::Run() {
  if (!ended_) QApplication::exec();
}

FormWindow* QtDesktop::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second;
}

Date QtDesktop::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return FromQt(now.date()) + now.time().msecsSinceStartOfDay() / 86400000.0;
}

Answer QtDesktop::Ask(const Message& message) {
  const QPointer<QWidget> asker = QApplication::activeWindow();
  QMessageBox box(IconOf(message.icon), ToQt(message.title), ToQt(message.text), ButtonsOf(message.buttons), asker);
  box.setWindowFlags(kDialogFrame);
  box.setTextFormat(Qt::PlainText);
  if (!message.details.empty()) box.setDetailedText(ToQt(message.details));
  box.setDefaultButton(ButtonOf(message.preselected));
  box.setWindowModality(Qt::ApplicationModal);
  if (message.buttons == Buttons::YesNo) box.setEscapeButton(QMessageBox::No);
  const QScopedValueRollback holding(holdTimers_, false);
  const Answer answer = AnswerOf(box.exec());
  if (asker && asker->isVisible()) asker->activateWindow();
  return answer;
}

void QtDesktop::FormShown(Form& form) {
  focus_.Forget();
  FormWindow*& window = windows_[&form];
  const bool isNew = !window;
  if (isNew) window = new FormWindow(form, services_);
  // A window that its owner shows while the owner is still loading comes up with the owner, since there is no window
  // yet to stay above.
  if (form.Owner() && !WindowOf(*form.Owner()) && !form.Style().goesWithOwner) return;
  const bool isPassing = form.Style().notice && !form.IsModal();
  if (isPassing) notices_[form.Name()].start();
  isPassing && !slowNotices_.contains(form.Name()) ? ShowLater(form, *window) : ShowWindow(form, *window, isNew);
}

void QtDesktop::ShowWindow(Form& form, FormWindow& window, bool isNew) {
  window.Present(form.Owner() ? WindowOf(*form.Owner()) : nullptr);
  if (isNew && form.Style().goesWithOwner) LetAppear(window);
  if (isNew) PresentOwned(window);
}

/// A notice that would be gone at once isn't shown. Work that leaves the event loop no time to show it late has its
/// notice shown early the next time.
void QtDesktop::ShowLater(Form& form, FormWindow& window) {
  QTimer::singleShot(kNoticeMilliseconds, &window, [this, &form, &window] {
    if (window.Model() && form.IsVisible() && !window.isVisible()) ShowWindow(form, window, true);
  });
}

void QtDesktop::PresentOwned(FormWindow& owner) {
  for (const auto& [form, window] : windows_) {
    if (form->Owner() == owner.Model() && form->IsVisible() && !window->isVisible()) window->Present(&owner);
  }
}

/// Waits until a notice is on the screen: the work that follows leaves the event loop no time. Timers wait.
void QtDesktop::LetAppear(QWidget& window) {
  const QScopedValueRollback holding(holdTimers_, true);
  QElapsedTimer patience;
  patience.start();
  while (patience.elapsed() < kAppearMilliseconds && !(window.windowHandle() && window.windowHandle()->isExposed())) {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  window.repaint();
}

void QtDesktop::FormHidden(Form& form) {
  focus_.Forget();
  if (FormWindow* window = WindowOf(form)) window->Withdraw();
  NoteHowLong(form.Name());
  if (const auto found = modal_.find(&form); found != modal_.end()) found->second->quit();
}

void QtDesktop::NoteHowLong(const std::string& notice) {
  const auto shown = notices_.find(notice);
  if (shown == notices_.end()) return;
  if (shown->second.elapsed() < kNoticeMilliseconds) {
    slowNotices_.erase(notice);
  } else {
    slowNotices_.insert(notice);
  }
  notices_.erase(shown);
}

void QtDesktop::FormDestroyed(Form& form) {
  const auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  FormWindow* window = found->second;
  windows_.erase(found);
  window->Abandon();
}

void QtDesktop::RunModal(Form& form) {
  if (!form.IsVisible()) return;
  QEventLoop loop;
  modal_[&form] = &loop;
  RunLoop(loop);
  modal_.erase(&form);
}

void QtDesktop::RunLoop(QEventLoop& loop) {
  if (ended_) return;
  const QScopedValueRollback holding(holdTimers_, false);
  loops_.push_back(&loop);
  loop.exec();
  loops_.erase(std::find(loops_.begin(), loops_.end(), &loop));
}

void QtDesktop::Quit() {
  ended_ = true;
  for (QEventLoop* loop : loops_) loop->quit();
  QApplication::quit();
}

void QtDesktop::Repaint(Form* form) {
  for (const auto& [known, window] : windows_) {
    if (!window->isVisible() || (form && form != known)) continue;
    QApplication::sendPostedEvents(window, QEvent::LayoutRequest);
    window->repaint();
    for (auto* child : window->findChildren<QWidget*>()) child->repaint();
  }
}

void QtDesktop::DoEvents() {
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtDesktop::Wait(double seconds) {
  QEventLoop loop;
  QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
  RunLoop(loop);
}

void QtDesktop::TimerChanged(Timer& timer) {
  auto& clock = timers_[&timer];
  if (clock) {
    clock->stop();
    clock.release()->deleteLater();  // its tick may be running
  }
  if (!timer.Running()) {
    timers_.erase(&timer);
    return;
  }
  clock = std::make_unique<QTimer>();
  QObject::connect(clock.get(), &QTimer::timeout, clock.get(), [this, &timer] {
    if (!holdTimers_) timer.Tick.Raise();
  });
  clock->start(timer.Interval());
}

void QtDesktop::SetMousePointer(MousePointer pointer) {
  const bool busy = pointer == MousePointer::Hourglass;
  if (busy && !pointerSet_) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (!busy && pointerSet_) QApplication::restoreOverrideCursor();
  pointerSet_ = busy;
}

void QtDesktop::ShowHelp(const std::filesystem::path& folder) {
  const auto pages = HelpPages(folder);
  std::error_code failed;
  if (!std::filesystem::exists(pages / HelpViewer::kFirstPage, failed)) Raise(ErrorNumber::FileNotFound);
  if (!help_) help_ = new HelpViewer(pages);
  help_->showMaximized();
  help_->raise();
  help_->activateWindow();
}

void QtDesktop::ShowHelpOf(const Form& form) {
  try {
    ShowHelp(folder_ / kHelpFolder);
    help_->GoToPageOf(ToQt(form.Name()));
  } catch (const RuntimeError& missing) {
    Say(missing.Text());
  }
}

std::filesystem::path QtDesktop::DocumentsFolder() const {
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

std::filesystem::path QtDesktop::CurrentFolder() const {
  std::error_code removed;
  return std::filesystem::current_path(removed);
}

std::vector<std::filesystem::path> QtDesktop::Drives() const {
  std::vector<std::filesystem::path> drives = {"/", ToPath(QDir::homePath())};
  for (const auto& volume : QStorageInfo::mountedVolumes()) {
    if (volume.isReady() && IsMountedMedium(volume.rootPath())) drives.push_back(ToPath(volume.rootPath()));
  }
  return drives;
}

std::filesystem::path QtDesktop::AskForFile(const FileRequest& request) {
  const QScopedValueRollback holding(holdTimers_, false);
  return ToPath(ui::AskForFile(request, QApplication::activeWindow()));
}

}  // namespace norvane::ui
