#include "ui/FormWindow.h"

#include <algorithm>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QTabWidget>
#include <QWindow>

#include "forms/FrameSize.h"
#include "ui/Convert.h"
#include "ui/LayoutBuilder.h"
#include "ui/Shortcuts.h"
#include "ui/Theme.h"
#include "ui/WindowMemory.h"

namespace norvane::ui {
namespace {

constexpr int kNoticeMargin = 16;
constexpr int kNoticeCharacters = 40;  // enough for its title beside the frame's buttons
constexpr int kCascade = 28;
constexpr QSize kRoomForFrame(12, 36);

QSize RoomForWindows() {
  return QGuiApplication::primaryScreen()->availableSize() - kRoomForFrame;
}

}  // namespace

FormWindow::FormWindow(Form& form, const WindowServices& services) : form_(&form), services_(services) {
  setObjectName(ToQt(form.Name()));
  setWindowTitle(ToQt(form.Caption()));
  ChooseFlags();
  BuildMenu();
  BuildPage();
  AddShortcuts();
  form.observer = [this](Aspect aspect) { FormChanged(aspect); };
}

void FormWindow::ChooseFlags() {
  const FormStyle& style = form_->Style();
  if (style.bare) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  } else if (style.goesWithOwner || form_->IsModal() || !style.resizable) {
    setWindowFlags(kDialogFrame);
  }
}

void FormWindow::BuildMenu() {
  for (MenuEntry* entry : form_->MenuBar()) menuBar()->addMenu(MakeMenu(*entry));
  if (!form_->MenuBar().empty()) AddViewMenu();
}

/// The window's own menu, before the last one of a form with several, which is Help; or the end of the form's own.
void FormWindow::AddViewMenu() {
  const auto menus = menuBar()->actions();
  const auto own =
      std::find_if(menus.begin(), menus.end(), [](const QAction* menu) { return menu->text() == "&View"; });
  QMenu* menu = own == menus.end() ? new QMenu("&View", this) : (*own)->menu();
  if (own == menus.end()) {
    menuBar()->insertMenu(menus.size() > 1 ? menus.back() : nullptr, menu);
  } else {
    menu->addSeparator();
  }
  auto* group = new QActionGroup(menu);
  for (const auto& [theme, text] : {std::pair(Theme::System, "&System Colors"),
                                    std::pair(Theme::Light, "&Light Colors"), std::pair(Theme::Dark, "&Dark Colors")}) {
    QAction* action = menu->addAction(text, this, [this, chosen = theme] { services_.chooseTheme(chosen); });
    action->setActionGroup(group);
    action->setCheckable(true);
    action->setChecked(theme == services_.memory.ChosenTheme());
  }
}

QMenu* FormWindow::MakeMenu(MenuEntry& entry) {
  auto* menu = new QMenu(ToQt(entry.Caption()), this);
  menu->setObjectName(ToQt(entry.Name()));
  for (MenuEntry* child : entry.Entries()) AddEntry(*menu, *child);
  entry.observer = [&entry, action = menu->menuAction()](Aspect) {
    action->setEnabled(entry.Enabled());
    action->setVisible(entry.Visible());
  };
  entry.observer(Aspect::Enabled);
  return menu;
}

void FormWindow::AddEntry(QMenu& menu, MenuEntry& entry) {
  if (!entry.Entries().empty()) {
    menu.addMenu(MakeMenu(entry));
    return;
  }
  const QKeySequence key = KeyOf(*form_, entry.Icon());
  const QString keyText = key.isEmpty() ? QString() : "\t" + key.toString(QKeySequence::NativeText);
  auto* action = menu.addAction(NamedIcon(entry.Icon()), ToQt(entry.Caption()) + keyText);
  action->setShortcut(MenuKeyOf(entry.Icon()));
  entry.observer = [&entry, action](Aspect) {
    action->setEnabled(entry.Enabled());
    action->setVisible(entry.Visible());
  };
  entry.observer(Aspect::Enabled);
  connect(action, &QAction::triggered, this, [this, &entry] {
    if (form_) entry.Choose();
  });
}

void FormWindow::BuildPage() {
  auto* page = new QWidget(this);
  LayoutBuilder builder(services_.factory, [&](Control& control, Binding& binding) {
    widgets_.emplace_back(&control, &binding.Widget());
    binding.focused = [this](Binding& focused) { services_.focus.Give(focused); };
  });
  builder.Fill(*page, form_->Layout());
  if (form_->Style().notice) {
    page->layout()->setContentsMargins(kNoticeMargin, kNoticeMargin, kNoticeMargin, kNoticeMargin);
    page->setMinimumWidth(fontMetrics().averageCharWidth() * kNoticeCharacters);
    setAttribute(Qt::WA_ShowWithoutActivating);
  }
  ShowPage(*page);
  if (builder.FoundStatusBar()) setStatusBar(builder.FoundStatusBar());
  SetTabOrder();
}

/// A page that is larger than the screen scrolls.
void FormWindow::ShowPage(QWidget& page) {
  const QSize room = RoomForWindows();
  const QSize need = page.minimumSizeHint();
  if (need.width() <= room.width() && need.height() + MenuHeight() <= room.height()) return setCentralWidget(&page);
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  page.setProperty("page", true);
  area->setWidget(&page);
  setCentralWidget(area);
}

template <class Action>
void FormWindow::AddShortcut(const QKeySequence& key, Action action) {
  connect(new QShortcut(key, this), &QShortcut::activated, this, [this, action] {
    if (form_) action();
  });
}

void FormWindow::AddShortcuts() {
  for (const Shortcut& shortcut : ShortcutsOf(*form_)) {
    Button& button = *shortcut.button;
    AddShortcut(shortcut.key, [&button] { button.Press(); });
    if (Binding* binding = Binding::Of(WidgetOf(button))) binding->SetKey(shortcut.key);
  }
  AddShortcut(QKeySequence::HelpContents, [this] { services_.help(*form_); });
  AddShortcut(QKeySequence("Ctrl+PgUp"), [this] { TurnTab(-1); });
  AddShortcut(QKeySequence("Ctrl+PgDown"), [this] { TurnTab(1); });
}

void FormWindow::TurnTab(int by) {
  auto* tabs = findChild<QTabWidget*>();
  if (tabs) tabs->setCurrentIndex((tabs->currentIndex() + by + tabs->count()) % tabs->count());
}

void FormWindow::SetTabOrder() {
  QWidget* previous = nullptr;
  for (const Control* control : form_->TabOrder()) {
    QWidget* widget = WidgetOf(*control);
    if (previous && widget) QWidget::setTabOrder(previous, widget);
    if (widget) previous = widget;
  }
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
  for (const auto& [known, widget] : widgets_) {
    if (known == &control) return widget;
  }
  return nullptr;
}

void FormWindow::Present(QWidget* owner) {
  // Before there is a native window: once there is one, but not yet its frame, the window system would take the place
  // for that of the page inside.
  if (!placed_) TakeFirstPlace(owner);
  placed_ = true;
  if (!isVisible()) BelongTo(owner);
  if (isMinimized()) showNormal();
  show();
  raise();
  // A notice leaves the keyboard where it is.
  if (!form_->Style().bare && !form_->Style().notice) activateWindow();
}

void FormWindow::Withdraw() {
  if (isVisible() && keepsPlace_ && !isMinimized() && !isMaximized()) {
    services_.memory.KeepPlace(form_->Name(), QRect(pos(), size()));
  }
  hide();
}

/// What is kept above another window.
bool FormWindow::IsSmall() const {
  return form_->Style().goesWithOwner || form_->IsModal() || !form_->Style().resizable;
}

void FormWindow::Abandon() {
  form_ = nullptr;
  for (auto* child : findChildren<QObject*>()) {
    if (auto* binding = dynamic_cast<Binding*>(child)) delete binding;
  }
  hide();
  deleteLater();
}

/// Keeps it above its owner, which is not its parent: an owner may close and leave the window open.
void FormWindow::BelongTo(QWidget* owner) {
  setWindowModality(form_->IsModal() ? Qt::ApplicationModal : Qt::NonModal);
  // Window systems keep above its owner only what calls itself a dialog.
  if (owner && windowType() == Qt::Window) setWindowFlags(kDialogFrame | Qt::WindowMinMaxButtonsHint);
  winId();
  if (owner) owner->winId();
  windowHandle()->setTransientParent(owner ? owner->windowHandle() : nullptr);
}

void FormWindow::TakeFirstPlace(QWidget* owner) {
  const bool natural = form_->Width() <= 0 && form_->Height() <= 0;
  if (!form_->Style().resizable) layout()->setSizeConstraint(QLayout::SetFixedSize);
  if (natural) {
    adjustSize();
    ReportSize();
  }
  FollowPlace();
  keepsPlace_ = !form_->IsPlaced() && !IsSmall();
  if (form_->IsPlaced() || TakeKeptPlace()) return;
  FitOnScreen();
  QWidget* opener = owner && owner->isVisible() ? owner : QApplication::activeWindow();
  move(IsSmall() ? MiddleOf(opener) : PlaceBeside(opener));
}

bool FormWindow::TakeKeptPlace() {
  const auto kept = keepsPlace_ ? services_.memory.Place(form_->Name()) : std::nullopt;
  if (!kept) return false;
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  if (!room.contains(kept->topLeft())) return false;
  resize(kept->size().boundedTo(RoomForWindows()).expandedTo(minimumSizeHint()));
  ReportSize();
  move(kept->topLeft());
  return true;
}

/// A small screen, or one with large fonts, has no room for the size a form begins with.
void FormWindow::FitOnScreen() {
  resize(size().boundedTo(RoomForWindows()).expandedTo(minimumSizeHint()));
  ReportSize();
}

/// In the middle of its owner or of the screen.
QPoint FormWindow::MiddleOf(const QWidget* owner) const {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect around = owner ? owner->frameGeometry() : room;
  const QPoint middle = around.center() - QPoint(width() / 2, height() / 2);
  if (room.contains(middle)) return middle;
  return owner ? owner->pos() + QPoint(kCascade, kCascade) : room.topLeft();
}

/// To the right of the window that opened it or to the left, so that both can be seen; where neither side has room, a
/// step below its corner.
QPoint FormWindow::PlaceBeside(const QWidget* opener) const {
  if (!opener) return MiddleOf(nullptr);
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect around = opener->frameGeometry();
  const int outer = width() + kRoomForFrame.width();
  const int top = std::max(room.top(), std::min(around.top(), room.bottom() - height() - kRoomForFrame.height()));
  if (around.right() + outer <= room.right()) return {around.right() + 1, top};
  if (around.left() - outer >= room.left()) return {around.left() - outer, top};
  const QPoint step = around.topLeft() + QPoint(kCascade, kCascade);
  const QPoint last(room.right() - outer, room.bottom() - height() - kRoomForFrame.height());
  return {std::clamp(step.x(), room.left(), std::max(room.left(), last.x())),
          std::clamp(step.y(), room.top(), std::max(room.top(), last.y()))};
}

int FormWindow::MenuHeight() const {
  return form_->MenuBar().empty() ? 0 : menuBar()->sizeHint().height();
}

QSize FormWindow::SizeOfForm() const {
  return {ToPixels(form_->ScaleWidth()), ToPixels(form_->ScaleHeight()) + MenuHeight()};
}

void FormWindow::FollowPlace() {
  if (isMaximized() || isMinimized()) return;
  const QScopedValueRollback following(following_, true);
  if (form_->Width() > 0 && size() != SizeOfForm()) resize(SizeOfForm().expandedTo(minimumSizeHint()));
  const QPoint corner(ToPixels(form_->Left()), ToPixels(form_->Top()));
  if (form_->IsPlaced() && pos() != corner) move(corner);
}

void FormWindow::FormChanged(Aspect aspect) {
  if (aspect == Aspect::Caption) setWindowTitle(ToQt(form_->Caption()));
  if (aspect == Aspect::Place && placed_) FollowPlace();
}

bool FormWindow::Reports() const {
  return form_ && form_->IsVisible() && !following_;
}

void FormWindow::ReportSize() {
  // A size that rounds to the pixels on the screen is the one that the form already has.
  if (size() == SizeOfForm()) return;
  form_->UserResize(ToTwips(width()) + kFrameWidth,
                    ToTwips(height() - MenuHeight()) + FrameHeight(!form_->MenuBar().empty()));
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (!form_) return event->accept();
  event->ignore();
  form_->UserClose();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && (PressButton(&ButtonStyle::isDefault) || PressGo())) return;
  if (event->key() == Qt::Key_Escape) {
    if (PressButton(&ButtonStyle::isCancel)) return;
    if (form_ && IsSmall()) return form_->UserClose();
  }
  QMainWindow::keyPressEvent(event);
}

bool FormWindow::PressButton(bool ButtonStyle::*role) {
  if (!form_) return false;
  for (Control* control : form_->Controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (!button || !(button->Style().*role) || !button->Enabled() || !button->Visible()) continue;
    button->Press();
    return true;
  }
  return false;
}

/// Enter in a date of a list's criteria asks for the list.
bool FormWindow::PressGo() {
  if (!form_) return false;
  const Control* active = form_->ActiveControl();
  if (!dynamic_cast<const MaskedBox*>(active) && !dynamic_cast<const DatePicker*>(active)) return false;
  for (Control* control : form_->Controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (!button || button->Style().icon != "go") continue;
    button->Press();
    return true;
  }
  return false;
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (!Reports() || !placed_ || isMinimized() || !isVisible()) return;
  if (pos() == QPoint(ToPixels(form_->Left()), ToPixels(form_->Top()))) return;
  form_->UserMove(ToTwips(pos().x()), ToTwips(pos().y()));
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (Reports() && placed_ && !isMinimized()) ReportSize();
}

void FormWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && Reports()) {
    form_->UserWindowState(isMinimized()   ? WindowState::Minimized
                           : isMaximized() ? WindowState::Maximized
                                           : WindowState::Normal);
  }
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && !focusWidget() && Reports()) {
    form_->UserActivate();
  }
}

}  // namespace norvane::ui
