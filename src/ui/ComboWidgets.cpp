#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include "ui/Apostrophe.h"
#include "ui/Convert.h"
#include "ui/StandardWidgets.h"

namespace norvane::ui {
namespace {

/// Items come one by one and go all at once: only those that are missing are added.
void FillCombo(QComboBox& widget, const ComboBox& combo) {
  const QSignalBlocker quiet(&widget);
  const std::vector<std::string>& items = combo.Items();
  if (items.empty()) widget.clear();
  for (auto i = static_cast<std::size_t>(widget.count()); i < items.size(); ++i) widget.addItem(ToQt(items[i]));
}

void ShowComboText(QComboBox& widget, const ComboBox& combo) {
  const QSignalBlocker quiet(&widget);
  widget.setCurrentIndex(combo.ListIndex());
  if (widget.isEditable() && widget.currentText() != ToQt(combo.Text()))
    ShowStored(*widget.lineEdit(), ToQt(combo.Text()));
}

/// What is typed is completed as it goes on, and Enter picks what was found. A completion that isn't picked goes.
void FindAsTyped(ComboBox& combo, QComboBox& widget, Binding& binding) {
  QLineEdit* edit = widget.lineEdit();
  QObject::connect(edit, &QLineEdit::returnPressed, &binding, [&combo] { combo.UserEnter(); });
  QObject::connect(edit, &QLineEdit::editingFinished, &binding, [&] { ShowComboText(widget, combo); });
}

}  // namespace

Binding* MakeComboBox(ComboBox& combo, QWidget* parent) {
  auto* widget = new QComboBox(parent);
  widget->setEditable(combo.Style() != ComboStyle::ItemsOnly);
  widget->setInsertPolicy(QComboBox::NoInsert);
  if (combo.Style() == ComboStyle::AnyText) widget->setCompleter(nullptr);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setMinimumWidth(WidthOf(*widget, combo.Characters()) + kInputPadding);
  IgnoreStrayWheel(*widget);
  auto* binding = new Binding(combo, *widget, [&combo, widget](Aspect aspect) {
    if (aspect == Aspect::Items) FillCombo(*widget, combo);
    ShowComboText(*widget, combo);
  });
  QObject::connect(widget, &QComboBox::activated, binding, [&combo](int index) { combo.UserPick(index); });
  if (QLineEdit* edit = widget->lineEdit()) {
    TypeApostrophes(*edit);
    edit->setAccessibleName(widget->accessibleName());
    QObject::connect(edit, &QLineEdit::textEdited, binding,
                     [&combo](const QString& text) { combo.UserType(FromQt(text)); });
    // The toolkit would pick the item whose text is there as the focus goes.
    QObject::disconnect(edit, &QLineEdit::editingFinished, widget, nullptr);
    if (combo.Style() == ComboStyle::Search) FindAsTyped(combo, *widget, *binding);
  }
  return binding;
}

}  // namespace norvane::ui
