#pragma once

#include <vector>

#include <QKeySequence>
#include <QString>

#include "forms/Controls.h"

namespace norvane {
class Form;
}

namespace norvane::ui {

struct Shortcut {
  Button* button;
  QKeySequence key;
};

/// The keys that press the form's buttons. A key has the same role on every screen, which is the icon of the button.
std::vector<Shortcut> ShortcutsOf(const Form& form);

/// The key of the form's button with this icon, empty if there is none.
QKeySequence KeyOf(const Form& form, const std::string& icon);

/// The keys of every list.
enum class ListKey { Copy, MarkAll };
QKeySequence KeyOf(ListKey key);

/// The key of a menu entry with this icon for which there is no button, empty if it has none.
QKeySequence MenuKeyOf(const std::string& icon);

/// A tool tip that names the key as well.
QString WithKey(const QString& toolTip, const QKeySequence& key);

}  // namespace norvane::ui
