#include <algorithm>

#include <QButtonGroup>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/StandardWidgets.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kButtonWidth = 84;  // buttons of short captions are alike

/// Makes an accelerator press its button at once. The toolkit would show the button going down first, and keys typed in
/// the meantime would go to the wrong widget.
void PressAtOnce(QPushButton& button) {
  new EventFilter(button, [&button](QEvent& event) {
    if (event.type() != QEvent::Shortcut || static_cast<QShortcutEvent&>(event).isAmbiguous()) return false;
    button.click();
    return true;
  });
}

/// The options of one group name within a window exclude each other, and the arrow keys go from one to the next.
QButtonGroup& GroupOf(QWidget& parent, const std::string& name) {
  const QString key = "options:" + ToQt(name);
  if (auto* found = parent.window()->findChild<QButtonGroup*>(key)) return *found;
  auto* group = new QButtonGroup(parent.window());
  group->setObjectName(key);
  return *group;
}

}  // namespace

Binding* MakeButton(Button& button, QWidget* parent) {
  auto* widget = new QPushButton(parent);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setAutoDefault(true);
  widget->setDefault(button.Style().isDefault);
  widget->setIcon(NamedIcon(button.Style().icon));
  widget->setIconSize({kIconSize, kIconSize});
  widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  const bool isPicture = button.Caption().empty();
  widget->setProperty("picture", isPicture);
  if (isPicture) widget->setAccessibleName(ToQt(button.ToolTip()));
  if (!isPicture) widget->setIconSize({kIconSize - 6, kIconSize - 6});
  widget->ensurePolished();
  auto* binding = new Binding(button, *widget, [&button, widget](Aspect) {
    // Spaces set a caption apart from its icon.
    const QString caption = ToQt(button.Caption());
    widget->setText(widget->icon().isNull() || caption.isEmpty() ? caption : "  " + caption);
    if (!caption.isEmpty()) widget->setAccessibleName(QString(caption).remove('&'));
    if (!button.Caption().empty()) widget->setMinimumWidth(std::max(kButtonWidth, widget->sizeHint().width()));
  });
  QObject::connect(widget, &QPushButton::clicked, binding, [&button] { button.Press(); });
  PressAtOnce(*widget);
  return binding;
}

Binding* MakeOptionButton(OptionButton& option, QWidget* parent) {
  auto* widget = new QRadioButton(parent);
  QButtonGroup& group = GroupOf(*parent, option.Group());
  group.addButton(widget);
  auto* binding = new Binding(option, *widget, [&option, widget, &group](Aspect) {
    widget->setText(ToQt(option.Caption()));
    group.setExclusive(false);
    widget->setChecked(option.Value());
    group.setExclusive(true);
  });
  QObject::connect(widget, &QRadioButton::clicked, binding, [&option] { option.Press(); });
  return binding;
}

}  // namespace norvane::ui
