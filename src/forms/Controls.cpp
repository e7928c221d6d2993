#include "forms/Controls.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/Characters.h"
#include "core/RuntimeError.h"
#include "forms/Form.h"
#include "forms/Keys.h"

namespace norvane {

void Label::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Notify(Aspect::Caption);
}

void Label::SetForeColor(Colour colour) {
  colour_ = colour;
  Notify(Aspect::Colour);
}

void TextBox::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  const Dispatch dispatch(Parent());
  Notify(Aspect::Text);
  Change.Raise();
}

void TextBox::SetSuggestions(std::vector<std::string> texts) {
  suggestions_ = std::move(texts);
  Notify(Aspect::Items);
}

// What was pasted from a page or a sheet would break the row of a list that shows the text.
void TextBox::UserType(const std::string& text) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (Parent().IsLoaded()) SetText(OneLine(text));
}

bool TextBox::UserKey(Key key) {
  const bool isVertical = key == Key::Up || key == Key::Down || key == Key::PageUp || key == Key::PageDown;
  if (!isVertical || !KeyDown.HasHandler()) return false;
  KeyDown.Raise(static_cast<int>(key));
  return true;
}

namespace {

constexpr std::string_view kEmptyMask = "__/__/__";

/// The digits and spaces between the mask's slashes, as typed.
std::array<std::string, 3> MaskPlaces(std::string_view text) {
  std::array<std::string, 3> places;
  const bool separated = text.find('/') != std::string_view::npos;
  std::size_t at = 0;
  for (const char c : text) {
    if (c == '/' && at < 2) ++at;
    if (!separated && places[at].size() == 2 && at < 2) ++at;
    if (IsDigit(c) || c == '_') places[at] += c;
  }
  return places;
}

std::string FitIntoMask(std::string_view text) {
  auto places = MaskPlaces(text);
  const auto slashes = static_cast<std::size_t>(std::count(text.begin(), text.end(), '/'));
  if (places[2].size() == 4) places[2].erase(0, 2);
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (places[i].size() == 1 && i < slashes && IsDigit(places[i][0])) places[i].insert(0, "0");
    places[i].resize(2, '_');
  }
  return places[0] + "/" + places[1] + "/" + places[2];
}

}  // namespace

void MaskedBox::SetText(const std::string& text) {
  std::string fitted = text.empty() ? std::string(kEmptyMask) : FitIntoMask(text);
  if (fitted == text_) return;
  text_ = std::move(fitted);
  const Dispatch dispatch(Parent());
  Notify(Aspect::Text);
  Change.Raise();
}

void MaskedBox::UserType(const std::string& text) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (Parent().IsLoaded()) SetText(text);
}

void Button::SetCaption(std::string caption) {
  style_.caption = std::move(caption);
  Notify(Aspect::Caption);
}

void Button::Press() {
  if (!Enabled() || !Visible()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  // What happened as the focus came here may have disabled the button.
  if (Enabled() && Visible()) Click.Raise();
}

void OptionButton::SetValue(bool on) {
  if (on == on_) return;
  const Dispatch dispatch(Parent());
  if (on) {
    for (Control* control : Parent().Controls()) {
      auto* other = dynamic_cast<OptionButton*>(control);
      if (other && other != this && other->group_ == group_) other->SetValue(false);
    }
  }
  on_ = on;
  Notify(Aspect::State);
  if (on) Click.Raise();
}

void OptionButton::Press() {
  if (!Enabled() || !Visible()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (Parent().IsLoaded() && Enabled()) SetValue(true);
}

void ComboBox::AddItem(std::string item) {
  items_.push_back(std::move(item));
  Notify(Aspect::Items);
}

void ComboBox::Clear() {
  items_.clear();
  text_.clear();
  Notify(Aspect::Items);
  Notify(Aspect::Text);
}

int ComboBox::ListIndex() const {
  const auto found = std::find(items_.begin(), items_.end(), text_);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::SetText(std::string text) {
  if (text == text_) return;
  const bool isItem = std::find(items_.begin(), items_.end(), text) != items_.end();
  if (!isItem && style_ == ComboStyle::ItemsOnly) Raise(ErrorNumber::PropertyIsReadOnly);
  text_ = std::move(text);
  const Dispatch dispatch(Parent());
  Notify(Aspect::Text);
  Change.Raise();
  if (isItem) Click.Raise();
}

void ComboBox::UserPick(int index) {
  if (!Enabled() || index < 0 || index >= static_cast<int>(items_.size())) return;
  const Dispatch dispatch(Parent());
  std::string picked = items_[static_cast<std::size_t>(index)];
  SetFocus();
  if (!Parent().IsLoaded()) return;
  if (picked != text_) {
    text_ = std::move(picked);
    Notify(Aspect::Text);
    Change.Raise();
  }
  Click.Raise();
}

void ComboBox::UserType(const std::string& text) {
  if (style_ == ComboStyle::ItemsOnly) {
    const auto found = std::find(items_.begin(), items_.end(), text);
    if (found != items_.end()) UserPick(static_cast<int>(found - items_.begin()));
    return;
  }
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  std::string typed = OneLine(text);
  if (!Parent().IsLoaded() || typed == text_) return;
  text_ = std::move(typed);
  Notify(Aspect::Text);
  Change.Raise();
}

void ComboBox::UserEnter() {
  if (style_ != ComboStyle::Search) return;
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [this](const std::string& item) { return StartsWithNoCase(item, text_); });
  if (found != items_.end()) UserPick(static_cast<int>(found - items_.begin()));
}

void DatePicker::SetValue(Date value) {
  if (value == value_) return;
  value_ = value;
  const Dispatch dispatch(Parent());
  Notify(Aspect::State);
  Change.Raise();
}

void DatePicker::UserPick(Date value) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (Parent().IsLoaded()) SetValue(value);
}

void MonthView::SetValue(Date value) {
  value_ = value;
  Notify(Aspect::State);
}

void MonthView::UserClick(Date value) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded()) return;
  SetValue(value);
  DateClick.Raise(value);
}

void MonthView::UserKey(int keyCode) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  KeyDown.Raise(keyCode);
  if (!Parent().IsLoaded()) return;
  switch (static_cast<Key>(keyCode)) {
    case Key::Left:
      return SetValue(value_ - 1);
    case Key::Right:
      return SetValue(value_ + 1);
    case Key::Up:
      return SetValue(value_ - 7);
    case Key::Down:
      return SetValue(value_ + 7);
    default:
      return;
  }
}

void TabControl::SetTab(int tab) {
  if (tab == tab_) return;
  tab_ = tab;
  Notify(Aspect::Pages);
}

void StatusBar::Clear() {
  panels_.clear();
  Notify(Aspect::Items);
}

void StatusBar::AddPanel(std::string text, Twips width) {
  panels_.push_back({std::move(text), width});
  Notify(Aspect::Items);
}

void StatusBar::SetPanelText(int panel, std::string text) {
  if (panel < 1 || panel > static_cast<int>(panels_.size())) Raise(ErrorNumber::SubscriptOutOfRange);
  panels_[static_cast<std::size_t>(panel - 1)].text = std::move(text);
  Notify(Aspect::Text);
}

Timer::Timer(Form& form, std::string name, int milliseconds, bool enabled)
    : Control(form, std::move(name)), milliseconds_(milliseconds), running_(enabled) {}

Timer::~Timer() {
  if (!Running()) return;
  running_ = false;
  Parent().desktop.TimerChanged(*this);
}

bool Timer::Running() const {
  return running_ && Parent().IsLoaded();
}

void Timer::SetRunning(bool running) {
  running_ = running;
  if (Parent().IsLoaded()) Parent().desktop.TimerChanged(*this);
}

}  // namespace norvane
