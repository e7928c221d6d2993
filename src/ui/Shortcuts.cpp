#include "ui/Shortcuts.h"

#include <algorithm>

#include "forms/Form.h"

namespace norvane::ui {
namespace {

/// On a form with several buttons for one key the first role has it, and the later ones have their second key.
struct Role {
  const char* icon;
  std::vector<const char*> keys;
};

const std::vector<Role>& Roles() {
  static const std::vector<Role> roles = {
      {"save", {"Ctrl+S"}},
      {"print", {"Ctrl+P"}},
      {"client-new", {"Ctrl+N"}},
      {"invoice-new", {"Ctrl+N", "Ctrl+I"}},
      {"add", {"Ctrl+N", "Ins"}},
      {"delete", {"Ctrl+Del"}},
      {"remove", {"Ctrl+Del"}},
      {"refresh", {"F5"}},
      {"go", {"F5"}},
      {"copy", {"Ctrl+D"}},
  };
  return roles;
}

/// What has a key in the menus, though no button.
struct MenuRole {
  const char* icon;
  const char* key;
};
constexpr MenuRole kMenuRoles[] = {{"search", "Ctrl+F"}, {"overview", "Ctrl+Shift+O"}};

/// Null if the form has no button with the icon.
Button* ButtonWith(const Form& form, const std::string& icon) {
  for (Control* control : form.Controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (button && button->Style().icon == icon) return button;
  }
  return nullptr;
}

}  // namespace

std::vector<Shortcut> ShortcutsOf(const Form& form) {
  std::vector<Shortcut> shortcuts;
  const auto isFree = [&](const char* key) {
    return std::none_of(shortcuts.begin(), shortcuts.end(),
                        [&](const Shortcut& taken) { return taken.key == QKeySequence(key); });
  };
  for (const Role& role : Roles()) {
    Button* button = ButtonWith(form, role.icon);
    const auto key = std::find_if(role.keys.begin(), role.keys.end(), isFree);
    if (button && key != role.keys.end()) shortcuts.push_back({button, QKeySequence(*key)});
  }
  return shortcuts;
}

QKeySequence KeyOf(const Form& form, const std::string& icon) {
  for (const Shortcut& shortcut : ShortcutsOf(form)) {
    if (shortcut.button->Style().icon == icon) return shortcut.key;
  }
  return {};
}

QKeySequence KeyOf(ListKey key) {
  return {key == ListKey::Copy ? "Ctrl+C" : "Ctrl+A"};
}

QKeySequence MenuKeyOf(const std::string& icon) {
  for (const MenuRole& role : kMenuRoles) {
    if (role.icon == icon) return QKeySequence(role.key);
  }
  return {};
}

QString WithKey(const QString& toolTip, const QKeySequence& key) {
  const QString name = key.toString(QKeySequence::NativeText);
  if (key.isEmpty() || toolTip.isEmpty()) return toolTip.isEmpty() ? name : toolTip;
  return toolTip.trimmed() + " (" + name + ")";
}

}  // namespace norvane::ui
