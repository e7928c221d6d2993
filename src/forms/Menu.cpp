#include "forms/Menu.h"

#include "forms/Form.h"

namespace norvane {

MenuEntry::MenuEntry(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name)), caption_(std::move(caption)) {
  form.menuBar_.push_back(this);
}

MenuEntry::MenuEntry(MenuEntry& parent, std::string name, std::string caption, std::string icon)
    : Control(parent.Parent(), std::move(name)), caption_(std::move(caption)), icon_(std::move(icon)) {
  parent.entries_.push_back(this);
}

void MenuEntry::Choose() {
  if (Enabled()) Click.Raise();
}

}  // namespace norvane
