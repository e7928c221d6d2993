#include "ui/ListMenu.h"

#include "forms/Form.h"
#include "ui/Convert.h"
#include "ui/Shortcuts.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

QString WithKeyBeside(const QString& text, const QKeySequence& key) {
  return key.isEmpty() ? text : text + "\t" + key.toString(QKeySequence::NativeText);
}

/// What the button says of itself; empty if it says nothing.
QString EntryText(const Button& button) {
  if (!button.Caption().empty()) return ToQt(button.Caption());
  return ToQt(button.ToolTip()).trimmed().replace('&', "&&");
}

QKeySequence KeyOf(const Form& form, const Button& button) {
  for (const Shortcut& shortcut : ShortcutsOf(form)) {
    if (shortcut.button == &button) return shortcut.key;
  }
  return {};
}

void AddButtons(QMenu& menu, const Form& form) {
  for (Control* control : layout::ControlsOf(form.Layout())) {
    auto* button = dynamic_cast<Button*>(control);
    if (!button || !button->Visible() || button == form.ExitButton() || EntryText(*button).isEmpty()) continue;
    QAction* entry =
        menu.addAction(NamedIcon(button->Style().icon), WithKeyBeside(EntryText(*button), KeyOf(form, *button)), &menu,
                       [button] { button->Press(); });
    entry->setEnabled(button->Enabled());
  }
}

void AddSorting(QMenu& menu, const Grid& grid, const ListCommands& commands) {
  if (!grid.Sortable()) return;
  QMenu* columns = menu.addMenu("Sort &By");
  for (int col = 0; col < grid.Cols(); ++col) {
    const QString heading = ToQt(grid.Cell(0, col));
    if (grid.ColWidth(col) == 0 || heading.isEmpty()) continue;
    columns->addAction(QString(heading).replace('&', "&&"), columns, [sort = commands.sort, col] { sort(col); });
  }
}

}  // namespace

void FillListMenu(QMenu& menu, const Grid& grid, const ListCommands& commands) {
  AddButtons(menu, grid.Parent());
  if (!menu.isEmpty()) menu.addSeparator();
  AddSorting(menu, grid, commands);
  menu.addAction(NamedIcon("copy"), WithKeyBeside("&Copy", KeyOf(ListKey::Copy)), &menu, commands.copy);
  if (grid.Kind() == GridKind::List && !grid.EditsInPlace()) {
    menu.addAction(WithKeyBeside("Select &All", KeyOf(ListKey::MarkAll)), &menu, commands.markAll);
  }
  menu.addAction("Save &List as CSV...", &menu, commands.save);
}

}  // namespace norvane::ui
