#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Conversions.h"
#include "core/Globals.h"
#include "core/Trap.h"
#include "forms/Control.h"
#include "forms/Controls.h"
#include "forms/Desktop.h"
#include "forms/Grid.h"
#include "forms/Layout.h"
#include "forms/Menu.h"
#include "forms/Program.h"
#include "forms/ScreenNames.h"

namespace norvane {

enum class WindowState { Normal, Minimized, Maximized };

/// Fixed properties of a form.
struct FormStyle {
  std::string caption = "";
  Twips width = 0;  ///< outer first size; 0 for what its content asks for
  Twips height = 0;
  bool resizable = true;
  /// Pickers and notices: unloaded with the form that owns them.
  bool goesWithOwner = false;
  /// A busy notice: it comes and goes without any focus events.
  bool notice = false;
  /// The window has no frame buttons (the splash); it takes no focus either.
  bool bare = false;
};

/// One screen: its controls as members under their given names, its layout, its handlers.
///
/// A form is made by the screens' table and loaded at its first touch; it may unload itself, or be unloaded by others,
/// in the middle of anything, and is destroyed only after the outermost event has returned.
class Form {
 public:
  Form(Program& program, std::string name, FormStyle style);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const FormStyle& Style() const { return style_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  const layout::Node& Layout() const { return layout_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  const std::vector<MenuEntry*>& MenuBar() const { return menuBar_; }
  /// What closing by the frame presses; null if there is none.
  const Button* ExitButton() const { return exitButton_; }
  /// Controls that take the focus, in the order of the layout.
  std::vector<Control*> TabOrder() const;

  // The window's outer place: width is the inner one + 120, height the inner one + 405, plus 285 with a menu bar.
  Twips Left() const { return left_; }
  Twips Top() const { return top_; }
  Twips Width() const { return width_; }
  Twips Height() const { return height_; }
  Twips ScaleWidth() const;  ///< inner
  Twips ScaleHeight() const;
  void SetLeft(Twips left);
  void SetTop(Twips top);
  /// Whether code has given the window its place; (0, 0) is one too.
  bool IsPlaced() const { return placed_; }
  /// Raises Form_Resize while the form is visible.
  void SetWidth(Twips width);
  void SetHeight(Twips height);
  WindowState State() const { return windowState_; }

  bool IsLoaded() const { return loaded_; }
  bool IsVisible() const { return visible_; }
  Form* Owner() const { return owner_; }
  bool IsModal() const { return modal_; }
  Control* ActiveControl() const { return activeControl_; }

  /// Shows this form as `ScreenTable::Show` does.
  void Show();
  void Hide();
  void Unload();
  void Refresh();

  // Called by the window.
  void UserMove(Twips left, Twips top);
  void UserResize(Twips width, Twips height);
  void UserWindowState(WindowState state);
  /// The frame's close button and Alt+F4: a press of the exit button, or an unload where there is none.
  void UserClose();
  void UserActivate();
  /// Tab and Shift+Tab: the focus goes to the next control in tab order, around the end.
  void UserTab(bool backwards = false);

  /// Window geometry in the settings file: `Left`, `Top`, `Width`, `Height` of a section, defaults 100, 100, 8000,
  /// 6000.
  void ReadGeometry(std::string_view section);
  /// Writes them in that order, unless the window is minimized.
  void WriteGeometry(std::string_view section);

  /// Called after a change of caption, place or visibility of the window.
  std::function<void(Aspect)> observer;

 protected:
  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_GotFocus() {}
  virtual void Form_Unload() {}
  virtual void Form_Terminate() {}

  /// To be called once, in the constructor's body. The controls that the nodes refer to stay the form's own.
  void SetLayout(layout::Node layout) { layout_ = std::move(layout); }
  /// What closing by the frame presses.
  void SetExitButton(Button& button) { exitButton_ = &button; }

  // Short names for what handlers use all the time.
  Program& program;
  Globals& globals;
  Desktop& desktop;
  Workspace& workspace;
  const Conversions& convert;
  ScreenTable& screens;

  /// Runs a procedure under the standard trap.
  template <class Body>
  bool Trapped(std::string_view label, Body&& body) {
    return Trap(desktop, label, std::forward<Body>(body));
  }
  /// A handler that runs `body` under the standard trap.
  template <class Body>
  auto Trapping(std::string_view label, Body body) {
    return [this, label, body = std::move(body)](auto... arguments) { Trapped(label, [&] { body(arguments...); }); };
  }
  /// Makes `opener`, a button or a menu entry, open a screen by `handler`; it is disabled where the program has no such
  /// screen.
  template <class Opener, class Handler>
  void WireTo(Opener& opener, std::string_view screen, Handler handler) {
    opener.Click = std::move(handler);
    opener.SetEnabled(screens.Has(screen));
  }
  /// The same, where showing the screen is all.
  template <class Opener>
  void WireTo(Opener& opener, std::string_view screen) {
    WireTo(opener, screen, [this, screen] { screens.Show(screen); });
  }
  /// The same for a screen that keeps nothing unsaved, so that it reads what is asked for now.
  template <class Opener>
  void WireToReopen(Opener& opener, std::string_view screen) {
    WireTo(opener, screen, [this, screen] { screens.Reopen(screen); });
  }
  /// "Yes, No" with a question mark, No preselected.
  bool AskYesNo(const std::string& text, const std::string& title);
  /// "Yes, No, Cancel" with a question mark, No preselected.
  Answer AskYesNoCancel(const std::string& text, const std::string& title);

 private:
  friend class Control;
  friend class Dispatch;
  friend class Focus;
  friend class MenuEntry;
  friend class Program;
  friend class ScreenTable;
  friend class Timer;
  friend void detail::RunAsEvent(Form& form, const std::function<void()>& body);

  bool CanBeInFront() const { return !style_.notice && !style_.bare; }
  Control* FirstFocus() const;
  void Load();
  void Appear(ShowOptions options);
  void Disappear();
  void ReleaseOwnedForms();
  void NotifyTimers();
  void Resize(Twips width, Twips height);
  void RunHandler(const std::function<void()>& body);
  void Terminate();
  void Notify(Aspect aspect);

  std::string name_;
  FormStyle style_;
  std::string caption_;
  layout::Node layout_{layout::Kind::Column};
  std::vector<Control*> controls_;
  std::vector<MenuEntry*> menuBar_;
  Button* exitButton_ = nullptr;
  Control* activeControl_ = nullptr;
  Form* owner_ = nullptr;
  Twips left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  WindowState windowState_ = WindowState::Normal;
  bool loaded_ = false;
  bool visible_ = false;
  bool modal_ = false;
  bool appearing_ = false;  ///< its window is being made; Form_Resize and the focus follow
  bool unloading_ = false;
  bool placed_ = false;
  bool gone_ = false;  ///< unloaded; Form_Terminate comes when no handler of it runs
  int handlers_ = 0;   ///< handlers of this form that are running
};

}  // namespace norvane
