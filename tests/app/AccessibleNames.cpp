#include "app/AccessibleNames.h"

#include <set>

#include <QAccessible>
#include <QLineEdit>

namespace norvane::test {
namespace {

constexpr int kMostChildren = 60;  // the cells of further rows are like those before

bool NeedsName(const QAccessibleInterface& part) {
  static const std::set<QAccessible::Role> roles = {
      QAccessible::PushButton, QAccessible::Button,  QAccessible::RadioButton, QAccessible::EditableText,
      QAccessible::ComboBox,   QAccessible::Table,   QAccessible::Cell,        QAccessible::ColumnHeader,
      QAccessible::PageTab,    QAccessible::MenuItem};
  return roles.contains(part.role());
}

class Walk {
 public:
  void Visit(QAccessibleInterface* part, const std::string& path) {
    if (!part || !part->isValid() || part->state().invisible) return;
    const std::string here = path + "/" + std::to_string(part->role());
    const QString name = part->text(QAccessible::Name);
    if (part->role() == QAccessible::NoRole) found.push_back(here + " has no role");
    if (NeedsName(*part) && name.trimmed().isEmpty()) {
      found.push_back(here + " has no name: " + (part->object() ? part->object()->objectName().toStdString() : ""));
    }
    if (const auto* field = qobject_cast<QLineEdit*>(part->object())) {
      const bool hasValue = part->text(QAccessible::Value) == field->displayText();
      if (!hasValue) found.push_back(here + " has not the value shown: " + name.toStdString());
    }
    for (int i = 0; i < std::min(part->childCount(), kMostChildren); ++i) Visit(part->child(i), here);
  }
  std::vector<std::string> found;
};

}  // namespace

std::vector<std::string> InaccessibleParts(QWidget& window) {
  Walk walk;
  walk.Visit(QAccessible::queryAccessibleInterface(&window), "");
  return walk.found;
}

}  // namespace norvane::test
