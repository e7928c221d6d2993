#pragma once

#include <QMainWindow>

#include "forms/Form.h"
#include "ui/FocusBridge.h"
#include "ui/WidgetFactory.h"

class QMenu;

namespace norvane::ui {

/// What stands before the others has a title and can be closed; it is neither enlarged nor put away.
constexpr Qt::WindowFlags kDialogFrame =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// The window of a form. It draws the form's description and forwards what the user does; the form is the truth.
class FormWindow : public QMainWindow {
 public:
  FormWindow(Form& form, const WidgetFactory& factory, FocusBridge& focus);

  /// Shows it, or brings it forward if it stands. `owner` is the window it stays above, nothing for none.
  void Present(QWidget* owner);
  void Withdraw();
  /// The form is no more: cuts every tie to it. The window itself goes when the toolkit has finished with it.
  void Abandon();

  /// Nothing after Abandon.
  Form* Model() const { return form_; }
  /// The widget of a control of the form, nothing if it has none.
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
  void BuildPage(const WidgetFactory& factory, FocusBridge& focus);
  void SetTabOrder();
  void ChooseFlags();
  void FormChanged(Aspect aspect);

  void FollowPlace();
  void BelongTo(QWidget* owner);
  void TakeFirstPlace(QWidget* owner);
  void FitOnScreen();
  QPoint PlaceBeside(const QWidget* owner) const;
  QSize SizeOfForm() const;
  /// What the model counts around the inner area, in twips.
  Twips FrameHeight() const;
  void TellSize();
  bool PressButton(bool ButtonStyle::*role);
  template <class Tell>
  void Telling(Tell tell);

  Form* form_;
  std::vector<std::pair<const Control*, QWidget*>> widgets_;
  bool following_ = false;  ///< the window is taking the model's place; nothing new to tell
  bool placed_ = false;
};

}  // namespace norvane::ui
