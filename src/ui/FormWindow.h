#pragma once

#include <functional>

#include <QMainWindow>

#include "forms/Form.h"
#include "ui/FocusBridge.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"

class QMenu;

namespace norvane::ui {

/// The frame of a window above the others: it has a title and can be closed, but neither maximised nor minimised.
constexpr Qt::WindowFlags kDialogFrame =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

class WindowMemory;

/// What the windows of one desktop share.
struct WindowServices {
  const WidgetFactory& factory;
  FocusBridge& focus;
  WindowMemory& memory;
  std::function<void(const Form&)> help;  ///< opens the help page of a form
  std::function<void(ui::Theme)> chooseTheme;
};

/// The window of a form: draws the form's description and forwards what the user does. All state is the form's.
class FormWindow : public QMainWindow {
 public:
  /// The services must outlive the window.
  FormWindow(Form& form, const WindowServices& services);

  /// Shows the window, or brings it forward if it is visible. It stays above `owner`, which may be null.
  void Present(QWidget* owner);
  void Withdraw();
  /// The form is about to be destroyed: drops every reference to it. The window itself is deleted when the toolkit has
  /// finished with it.
  void Abandon();

  /// Null after Abandon.
  Form* Model() const { return form_; }
  /// The widget of a control of the form, null if it has none.
  QWidget* WidgetOf(const Control& control) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenu();
  void AddEntry(QMenu& menu, MenuEntry& entry);
  QMenu* MakeMenu(MenuEntry& entry);
  void AddViewMenu();
  void BuildPage();
  void ShowPage(QWidget& page);
  void AddShortcuts();
  template <class Action>
  void AddShortcut(const QKeySequence& key, Action action);
  void TurnTab(int by);
  void SetTabOrder();
  void ChooseFlags();
  void FormChanged(Aspect aspect);

  void FollowPlace();
  void BelongTo(QWidget* owner);
  void TakeFirstPlace(QWidget* owner);
  void FitOnScreen();
  QPoint MiddleOf(const QWidget* owner) const;
  QPoint PlaceBeside(const QWidget* opener) const;
  QSize SizeOfForm() const;
  int MenuHeight() const;
  /// Whether what the user does with the window is reported to the form.
  bool Reports() const;
  void ReportSize();
  bool PressButton(bool ButtonStyle::*role);
  bool PressGo();
  bool TakeKeptPlace();
  bool IsSmall() const;

  Form* form_;
  const WindowServices& services_;
  std::vector<std::pair<const Control*, QWidget*>> widgets_;
  bool following_ = false;  ///< the window is taking the place that the model has
  bool placed_ = false;
  bool keepsPlace_ = false;  ///< from one run to the next, as its screen doesn't
};

}  // namespace norvane::ui
