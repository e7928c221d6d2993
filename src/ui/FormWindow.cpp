#include "ui/FormWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>

#include "forms/FrameSize.h"
#include "ui/Convert.h"
#include "ui/LayoutBuilder.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kNoticeMargin = 16;
constexpr int kNoticeCharacters = 40;  // enough for its title beside the frame's buttons
constexpr int kCascade = 28;
constexpr QSize kRoomForFrame(12, 36);

}  // namespace

FormWindow::FormWindow(Form& form, const WidgetFactory& factory, FocusBridge& focus) : form_(&form) {
  setObjectName(ToQt(form.Name()));
  setWindowTitle(ToQt(form.Caption()));
  ChooseFlags();
  BuildMenu();
  BuildPage(factory, focus);
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
}

QMenu* FormWindow::MakeMenu(MenuEntry& entry) {
  auto* menu = new QMenu(ToQt(entry.Caption()), this);
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
  auto* action = menu.addAction(ToQt(entry.Caption()));
  entry.observer = [&entry, action](Aspect) {
    action->setEnabled(entry.Enabled());
    action->setVisible(entry.Visible());
  };
  entry.observer(Aspect::Enabled);
  connect(action, &QAction::triggered, this, [this, &entry] {
    if (form_) entry.Choose();
  });
}

void FormWindow::BuildPage(const WidgetFactory& factory, FocusBridge& focus) {
  auto* page = new QWidget(this);
  LayoutBuilder builder(factory, [&](Control& control, Binding& binding) {
    widgets_.emplace_back(&control, &binding.Widget());
    binding.focused = [&focus](Binding& focused) { focus.Give(focused); };
  });
  builder.Fill(*page, form_->Layout());
  if (form_->Style().notice) {
    page->layout()->setContentsMargins(kNoticeMargin, kNoticeMargin, kNoticeMargin, kNoticeMargin);
    page->setMinimumWidth(fontMetrics().averageCharWidth() * kNoticeCharacters);
    setAttribute(Qt::WA_ShowWithoutActivating);
  }
  setCentralWidget(page);
  if (builder.FoundStatusBar()) setStatusBar(builder.FoundStatusBar());
  SetTabOrder();
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
  hide();
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
  if (form_->Left() != 0 || form_->Top() != 0) return;
  FitOnScreen();
  move(PlaceBeside(owner && owner->isVisible() ? owner : nullptr));
}

/// A small screen, or one with large fonts, has no room for the size a form begins with.
void FormWindow::FitOnScreen() {
  const QSize room = QGuiApplication::primaryScreen()->availableSize() - kRoomForFrame;
  resize(size().boundedTo(room).expandedTo(minimumSizeHint()));
  ReportSize();
}

/// In the middle of its owner or of the screen; below the owner's corner where the middle is too near to an edge.
QPoint FormWindow::PlaceBeside(const QWidget* owner) const {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect around = owner ? owner->frameGeometry() : room;
  const QPoint middle = around.center() - QPoint(width() / 2, height() / 2);
  if (room.contains(middle)) return middle;
  return owner ? owner->pos() + QPoint(kCascade, kCascade) : room.topLeft();
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
  if (!corner.isNull() && pos() != corner) move(corner);
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
  if (enter && PressButton(&ButtonStyle::isDefault)) return;
  if (event->key() == Qt::Key_Escape && PressButton(&ButtonStyle::isCancel)) return;
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
