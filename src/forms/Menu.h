#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"

namespace norvane {

/// An entry of the menu bar or of another entry. Choosing one moves no focus.
class MenuEntry : public Control {
 public:
  /// A heading of the form's menu bar.
  MenuEntry(Form& form, std::string name, std::string caption);
  /// `icon` is the name of a picture of resources/icons, without ending; empty for none.
  MenuEntry(MenuEntry& parent, std::string name, std::string caption, std::string icon = "");

  const std::string& Caption() const { return caption_; }
  const std::string& Icon() const { return icon_; }
  const std::vector<MenuEntry*>& Entries() const { return entries_; }
  /// Nothing happens while it is disabled.
  void Choose();

  Event<> Click{Parent()};

 private:
  std::string caption_;
  std::string icon_;
  std::vector<MenuEntry*> entries_;
};

}  // namespace norvane
