#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "forms/Event.h"

namespace norvane {

/// Lengths on the screen: 1,440 to the inch, 15 to a pixel at 96 dots per inch.
using Twips = double;

/// What of a control has changed, for the side that draws it.
enum class Aspect { Text, Caption, Items, State, Enabled, Visible, Place, Colour, ToolTip, Focus, Pages };

/// A named part of a form: state, events, and the operations of a user. It draws nothing; the side that
/// draws observes it and holds no truth of its own.
class Control {
  Form& form_;  // before the events, which are made from it

 public:
  Control(Form& form, std::string name, std::string toolTip = "");
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& Parent() const { return form_; }
  const std::string& Name() const { return name_; }
  const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(std::string text);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);

  // The place within the form. Raises 5 for a negative width or height.
  Twips Left() const { return left_; }
  Twips Top() const { return top_; }
  Twips Width() const { return width_; }
  Twips Height() const { return height_; }
  void SetLeft(Twips left);
  void SetTop(Twips top);
  void SetWidth(Twips width);
  void SetHeight(Twips height);

  /// Whether the keyboard can come to rest here at all.
  virtual bool TakesFocus() const { return false; }
  /// Gives this control the focus: LostFocus of the one that had it, then GotFocus here. In a hidden form the wish is
  /// remembered and nothing is raised. Nothing happens if the control is disabled, invisible or takes no focus.
  void SetFocus();
  bool HasFocus() const;

  Event<> GotFocus{form_};
  Event<> LostFocus{form_};

  /// Called after each change. One observer: the side that draws.
  std::function<void(Aspect)> observer;

 protected:
  void Notify(Aspect aspect);

 private:
  friend class Focus;
  /// What happens in the control itself before its LostFocus, and before its GotFocus.
  virtual void LosingFocus() {}
  virtual void GainingFocus() {}

  std::string name_;
  std::string toolTip_;
  bool enabled_ = true;
  bool visible_ = true;
  Twips left_ = 0, top_ = 0, width_ = 0, height_ = 0;
};

}  // namespace norvane
