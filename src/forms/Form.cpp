#include "forms/Form.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/SettingsFile.h"
#include "core/Val.h"
#include "forms/FrameSize.h"

namespace norvane {

namespace {

/// The text form of a single-precision number: seven significant digits.
std::string SingleText(Twips value) {
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(value), std::chars_format::general, 7);
  return {text.data(), end.ptr};
}

std::string UntrappedErrorText(const RuntimeError& error) {
  return "Run-time error '" + std::to_string(error.Number()) + "':\n\n" + error.Text();
}

}  // namespace

std::string InternalErrorText(const std::exception& error) {
  return std::string("Internal error: ") + error.what();
}

Form::Form(Program& program_, std::string name, FormStyle style)
    : program(program_),
      globals(program_.globals),
      desktop(program_.desktop),
      workspace(program_.workspace),
      convert(program_.convert),
      screens(program_.screens),
      name_(std::move(name)),
      style_(std::move(style)),
      caption_(style_.caption),
      width_(style_.width),
      height_(style_.height) {}

Form::~Form() = default;

void Form::Notify(Aspect aspect) {
  if (observer) observer(aspect);
}

void Form::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Notify(Aspect::Caption);
}

std::vector<Control*> Form::TabOrder() const {
  auto controls = layout::ControlsOf(layout_);
  std::erase_if(controls, [](const Control* control) {
    return !control->TakesFocus() || !control->Enabled() || !control->Visible();
  });
  return controls;
}

/// The control asked for or last used, else the first in tab order.
Control* Form::FirstFocus() const {
  if (activeControl_ && activeControl_->Enabled() && activeControl_->Visible()) return activeControl_;
  const auto order = TabOrder();
  return order.empty() ? nullptr : order.front();
}

// Place.

Twips Form::ScaleWidth() const {
  return std::max(0.0, width_ - kFrameWidth);
}

Twips Form::ScaleHeight() const {
  return std::max(0.0, height_ - FrameHeight(!menuBar_.empty()));
}

void Form::SetLeft(Twips left) {
  left_ = left;
  placed_ = true;
  Notify(Aspect::Place);
}

void Form::SetTop(Twips top) {
  top_ = top;
  placed_ = true;
  Notify(Aspect::Place);
}

void Form::SetWidth(Twips width) {
  Resize(width, height_);
}

void Form::SetHeight(Twips height) {
  Resize(width_, height);
}

void Form::Resize(Twips width, Twips height) {
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  Notify(Aspect::Place);
  if (visible_ && !appearing_) detail::RunAsEvent(*this, [this] { Form_Resize(); });
}

void Form::ReadGeometry(std::string_view section) {
  const auto read = [&](std::string_view key, std::string_view fallback) {
    return Val(GetIniString(section, key, fallback, globals.IniPath));
  };
  SetLeft(read("LEFT", "100"));
  SetTop(read("TOP", "100"));
  SetWidth(read("WIDTH", "8000"));
  SetHeight(read("HEIGHT", "6000"));
}

void Form::WriteGeometry(std::string_view section) {
  if (windowState_ == WindowState::Minimized) return;
  const auto write = [&](std::string_view key, Twips value) {
    WriteIniString(section, key, SingleText(value), globals.IniPath);
  };
  write("LEFT", left_);
  write("TOP", top_);
  write("WIDTH", width_);
  write("HEIGHT", height_);
}

// Life.

void Form::Load() {
  loaded_ = true;
  NotifyTimers();
  detail::RunAsEvent(*this, [this] { Form_Load(); });
}

void Form::Show() {
  screens.Show(name_);
}

void Form::Appear(ShowOptions options) {
  if (visible_) {
    desktop.FormShown(*this);
    program.focus.Activate(*this);
    return;
  }
  owner_ = options.owner && options.owner->loaded_ ? options.owner : nullptr;
  modal_ = options.modal;
  visible_ = true;
  appearing_ = true;
  desktop.FormShown(*this);
  appearing_ = false;
  Notify(Aspect::Visible);
  detail::RunAsEvent(*this, [this] { Form_Resize(); });
  if (visible_) program.focus.Enter(*this);
  if (visible_ && options.modal) desktop.RunModal(*this);
}

void Form::Hide() {
  if (!visible_) return;
  const Dispatch dispatch(*this);
  Disappear();
}

void Form::Disappear() {
  if (!visible_) return;
  visible_ = false;
  Notify(Aspect::Visible);
  desktop.FormHidden(*this);
  program.focus.Leave(*this);
}

void Form::Unload() {
  if (!loaded_ || unloading_) return;
  const Dispatch dispatch(*this);
  unloading_ = true;
  detail::RunAsEvent(*this, [this] { Form_Unload(); });
  ReleaseOwnedForms();
  auto self = screens.Remove(*this);
  loaded_ = false;
  NotifyTimers();
  const bool isMain = name_ == program.StartUpScreen();
  if (isMain) {
    screens.unloadedMain_ = self;
  } else {
    program.DestroyLater(self);
  }
  Disappear();
  gone_ = !isMain;
  if (gone_ && handlers_ == 0) Terminate();
}

void Form::ReleaseOwnedForms() {
  for (Form* form : screens.Loaded()) {
    if (form->owner_ != this) continue;
    form->owner_ = nullptr;
    if (form->style_.goesWithOwner) form->Unload();
  }
}

void Form::NotifyTimers() {
  for (Control* control : controls_) {
    auto* timer = dynamic_cast<Timer*>(control);
    if (timer && timer->running_) desktop.TimerChanged(*timer);
  }
}

void Form::RunHandler(const std::function<void()>& body) {
  const Dispatch dispatch(*this);
  struct Running {
    explicit Running(Form& form_) : form(form_) { ++form.handlers_; }
    ~Running() { --form.handlers_; }
    Form& form;
  };
  {
    const Running running(*this);
    try {
      body();
    } catch (const RuntimeError& error) {
      desktop.Say(UntrappedErrorText(error));
    } catch (const std::exception& error) {
      desktop.Say(InternalErrorText(error));
    }
  }
  if (gone_ && handlers_ == 0) Terminate();
}

void Form::Terminate() {
  gone_ = false;
  RunHandler([this] { Form_Terminate(); });
}

void Form::Refresh() {
  desktop.Repaint(this);
}

// Called by the window.

void Form::UserMove(Twips left, Twips top) {
  left_ = left;
  top_ = top;
}

void Form::UserResize(Twips width, Twips height) {
  Resize(width, height);
}

void Form::UserWindowState(WindowState state) {
  if (state == windowState_) return;
  windowState_ = state;
  if (visible_ && !appearing_) detail::RunAsEvent(*this, [this] { Form_Resize(); });
}

void Form::UserClose() {
  if (exitButton_) {
    exitButton_->Press();
  } else {
    Unload();
  }
}

void Form::UserActivate() {
  if (appearing_) return;
  const Dispatch dispatch(*this);
  program.focus.Activate(*this);
}

void Form::UserTab(bool backwards) {
  auto order = TabOrder();
  if (order.empty()) return;
  if (backwards) std::reverse(order.begin(), order.end());
  const auto here = std::find(order.begin(), order.end(), activeControl_);
  const bool atEnd = here == order.end() || here + 1 == order.end();
  (atEnd ? order.front() : *(here + 1))->SetFocus();
}

// Questions.

bool Form::AskYesNo(const std::string& text, const std::string& title) {
  return desktop.Ask({text, title, Buttons::YesNo, Icon::Question, Answer::No}) == Answer::Yes;
}

Answer Form::AskYesNoCancel(const std::string& text, const std::string& title) {
  return desktop.Ask({text, title, Buttons::YesNoCancel, Icon::Question, Answer::No});
}

}  // namespace norvane
