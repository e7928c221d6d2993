#pragma once

#include <string>
#include <vector>

#include "core/Date.h"
#include "forms/Control.h"
#include "forms/Keys.h"

namespace norvane {

/// Colours as the program writes them; the drawing side maps both to what its theme can show.
enum class Colour : std::int32_t { Black = 0, Red = 255, Grey = 8421504 };

class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string caption = "")
      : Control(form, std::move(name)), caption_(std::move(caption)) {}
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  Colour ForeColor() const { return colour_; }
  void SetForeColor(Colour colour);

 private:
  std::string caption_;
  Colour colour_ = Colour::Black;
};

/// What a text box is for. It takes any text; one that can't be read as such is marked.
enum class TextContent { Text, Number, Date };

/// How a text box looks.
struct TextBoxStyle {
  int characters = 24;  ///< the width it asks for
  bool rightAligned = false;
  TextContent content = TextContent::Text;
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name, TextBoxStyle style = {}) : Control(form, std::move(name)), style_(style) {}
  const std::string& Text() const { return text_; }
  /// Raises Change if the text differs, by code as by the user.
  void SetText(std::string text);
  const TextBoxStyle& Style() const { return style_; }
  /// Texts offered while the user types one that they begin with.
  const std::vector<std::string>& Suggestions() const { return suggestions_; }
  void SetSuggestions(std::vector<std::string> texts);
  bool TakesFocus() const override { return true; }

  /// The user's typing: the focus comes here first, then the text is what was typed, in one line.
  void UserType(const std::string& text);
  /// The keys up and down, by row or page, which are of use to a box with a list. False if it has no use for them.
  bool UserKey(Key key);

  Event<> Change{Parent()};
  Event<int> KeyDown{Parent()};

 private:
  std::string text_;
  TextBoxStyle style_;
  std::vector<std::string> suggestions_;
};

/// A text box with the mask "##/##/##": digits fall into places, empty ones show as "_".
class MaskedBox : public Control {
 public:
  MaskedBox(Form& form, std::string name) : Control(form, std::move(name)) {}
  const std::string& Text() const { return text_; }
  /// Fits the text into the mask: digits fall into the places, a slash ends a place (a lone digit gets its zero), the
  /// century of a four-digit year is left out; "" empties it to "__/__/__". Raises Change if the text differs.
  void SetText(const std::string& text);
  bool TakesFocus() const override { return true; }
  void UserType(const std::string& text);

  Event<> Change{Parent()};

 private:
  std::string text_ = "__/__/__";
};

/// How a button looks and which keys press it.
struct ButtonStyle {
  std::string caption = {};  ///< "&" marks the accelerator; empty for a picture button
  std::string toolTip = {};
  std::string icon = {};   ///< name of a picture of resources/icons, without ending
  bool isDefault = false;  ///< Enter presses it, but never from within a grid
  bool isCancel = false;   ///< Escape presses it
};

class Button : public Control {
 public:
  Button(Form& form, std::string name, ButtonStyle style)
      : Control(form, std::move(name), style.toolTip), style_(std::move(style)) {}
  const std::string& Caption() const { return style_.caption; }
  void SetCaption(std::string caption);
  const ButtonStyle& Style() const { return style_; }
  bool TakesFocus() const override { return true; }

  /// Any way of pressing it: the focus moves here first, then Click. Nothing happens while it is disabled, or if moving
  /// the focus unloaded the form.
  void Press();

  Event<> Click{Parent()};

 private:
  ButtonStyle style_;
};

class OptionButton : public Control {
 public:
  /// Options with one group name exclude each other.
  OptionButton(Form& form, std::string name, std::string caption, std::string group = "")
      : Control(form, std::move(name)), caption_(std::move(caption)), group_(std::move(group)) {}
  const std::string& Caption() const { return caption_; }
  const std::string& Group() const { return group_; }
  bool Value() const { return on_; }
  /// Switching on switches the others of the group off and raises Click if it wasn't on; switching off raises nothing.
  void SetValue(bool on);
  bool TakesFocus() const override { return true; }
  void Press();

  Event<> Click{Parent()};

 private:
  std::string caption_;
  std::string group_;
  bool on_ = false;
};

/// A search box takes any text and finds the item that begins with it.
enum class ComboStyle { AnyText, ItemsOnly, Search };

class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name, ComboStyle style = ComboStyle::AnyText, int characters = 20)
      : Control(form, std::move(name)), style_(style), characters_(characters) {}
  ComboStyle Style() const { return style_; }
  int Characters() const { return characters_; }
  const std::vector<std::string>& Items() const { return items_; }
  /// Changes neither text nor selection.
  void AddItem(std::string item);
  /// Empties list and text without an event.
  void Clear();
  const std::string& Text() const { return text_; }
  /// Raises Change if the text differs, and Click if it is one of the items. An items-only combo raises 383 for a text
  /// that is none of them.
  void SetText(std::string text);
  /// The item shown, -1 for none.
  int ListIndex() const;
  bool TakesFocus() const override { return true; }

  /// The user's pick: Change, then Click.
  void UserPick(int index);
  /// The user's typing; an items-only combo ignores what is no item.
  void UserType(const std::string& text);
  /// Enter in a search box: picks the first item that its text is or begins, without regard to case, if there is one.
  void UserEnter();

  Event<> Change{Parent()};
  Event<> Click{Parent()};

 private:
  ComboStyle style_;
  int characters_;
  std::vector<std::string> items_;
  std::string text_;
};

/// A drop-down calendar.
class DatePicker : public Control {
 public:
  DatePicker(Form& form, std::string name) : Control(form, std::move(name)) {}
  Date Value() const { return value_; }
  /// Raises Change if the day differs.
  void SetValue(Date value);
  bool TakesFocus() const override { return true; }
  void UserPick(Date value);

  Event<> Change{Parent()};

 private:
  Date value_;
};

/// A month laid open.
class MonthView : public Control {
 public:
  MonthView(Form& form, std::string name) : Control(form, std::move(name)) {}
  Date Value() const { return value_; }
  void SetValue(Date value);
  bool TakesFocus() const override { return true; }
  /// A click on a day: it becomes the value, then DateClick.
  void UserClick(Date value);
  /// The arrow keys move the value and raise nothing; every key comes as KeyDown.
  void UserKey(int keyCode);

  Event<Date> DateClick{Parent()};
  Event<int> KeyDown{Parent()};

 private:
  Date value_;
};

/// Groups what is in it.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption = "")
      : Control(form, std::move(name)), caption_(std::move(caption)) {}
  const std::string& Caption() const { return caption_; }

 private:
  std::string caption_;
};

/// Tabs; the form's layout says what is on each.
class TabControl : public Control {
 public:
  TabControl(Form& form, std::string name) : Control(form, std::move(name)) {}
  int Tab() const { return tab_; }
  void SetTab(int tab);
  bool TakesFocus() const override { return true; }

 private:
  int tab_ = 0;
};

/// A picture of resources/pictures, without ending.
class Picture : public Control {
 public:
  Picture(Form& form, std::string name, std::string picture)
      : Control(form, std::move(name)), picture_(std::move(picture)) {}
  const std::string& Source() const { return picture_; }

 private:
  std::string picture_;
};

class StatusBar : public Control {
 public:
  struct Panel {
    std::string text;
    Twips width;
  };
  StatusBar(Form& form, std::string name) : Control(form, std::move(name)) {}
  const std::vector<Panel>& Panels() const { return panels_; }
  void Clear();
  void AddPanel(std::string text, Twips width);
  /// Panels count from 1. Raises 9 if there is none of that number.
  void SetPanelText(int panel, std::string text);

 private:
  std::vector<Panel> panels_;
};

/// Runs through the Desktop; its tick comes as an event while it is enabled and its form is loaded.
class Timer : public Control {
 public:
  Timer(Form& form, std::string name, int milliseconds, bool enabled);
  ~Timer() override;
  int Interval() const { return milliseconds_; }
  /// Enabled, and its form is loaded.
  bool Running() const;
  /// Starts it from zero, or stops it.
  void SetRunning(bool running);

  Event<> Tick{Parent()};

 private:
  friend class Form;
  int milliseconds_;
  bool running_;
};

}  // namespace norvane
