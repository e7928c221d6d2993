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
  MenuEntry(MenuEntry& parent, std::string name, std::string caption);

  const std::string& Caption() const { return caption_; }
  const std::vector<MenuEntry*>& Entries() const { return entries_; }
  /// Nothing happens while it is disabled.
  void Choose();

  Event<> Click{Parent()};

 private:
  std::string caption_;
  std::vector<MenuEntry*> entries_;
};

}  // namespace norvane
