#include "ui/StandardWidgets.h"

#include <algorithm>

#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>

#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/GridView.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"

namespace norvane::ui {
namespace {

Binding* MakePicture(Picture& picture, QWidget* parent) {
  auto* widget = new QLabel(parent);
  widget->setAlignment(Qt::AlignCenter);
  widget->setPixmap(NamedPicture(picture.Source(), parent->devicePixelRatioF()));
  return new Binding(picture, *widget, nullptr);
}

void FillPanels(QStatusBar& widget, const StatusBar& bar) {
  auto panels = widget.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  while (panels.size() > static_cast<qsizetype>(bar.Panels().size())) delete panels.takeLast();
  while (panels.size() < static_cast<qsizetype>(bar.Panels().size())) {
    panels.push_back(new QLabel(&widget));
    panels.back()->setTextFormat(Qt::PlainText);
    widget.addWidget(panels.back());
  }
  for (qsizetype i = 0; i < panels.size(); ++i) {
    const auto& panel = bar.Panels()[static_cast<std::size_t>(i)];
    panels[i]->setText(ToQt(panel.text));
    panels[i]->setMinimumWidth(std::max(ToPixels(panel.width), panels[i]->sizeHint().width()));
  }
}

Binding* MakeStatusBar(StatusBar& bar, QWidget* parent) {
  auto* widget = new QStatusBar(parent);
  widget->setSizeGripEnabled(false);
  return new Binding(bar, *widget, [&bar, widget](Aspect) { FillPanels(*widget, bar); });
}

Binding* MakeTabs(TabControl& tabs, QWidget* parent) {
  auto* widget = new QTabWidget(parent);
  widget->setDocumentMode(false);
  auto* binding = new Binding(tabs, *widget, [&tabs, widget](Aspect) {
    const QSignalBlocker quiet(widget);
    widget->setCurrentIndex(tabs.Tab());
  });
  QObject::connect(widget, &QTabWidget::currentChanged, binding, [&tabs](int index) { tabs.SetTab(index); });
  return binding;
}

}  // namespace

int WidthOf(const QWidget& widget, int characters) {
  return widget.fontMetrics().averageCharWidth() * characters + kInputPadding;
}

/// A wheel turned over a field that has no focus scrolls what is around it and changes no value.
void IgnoreStrayWheel(QWidget& widget) {
  new EventFilter(widget, [&widget](QEvent& event) {
    if (event.type() != QEvent::Wheel || widget.hasFocus()) return false;
    event.ignore();
    return true;
  });
}

void RegisterStandardWidgets(WidgetFactory& factory, const WidgetServices& services) {
  factory.Register<Label>(MakeLabel);
  factory.Register<TextBox>(
      [services](TextBox& box, QWidget* parent) { return HelpWithEntry(*MakeTextBox(box, parent), box, services); });
  factory.Register<MaskedBox>(
      [services](MaskedBox& box, QWidget* parent) { return MakeMaskedBox(box, parent, services); });
  factory.Register<Button>(MakeButton);
  factory.Register<OptionButton>(MakeOptionButton);
  factory.Register<ComboBox>(MakeComboBox);
  factory.Register<DatePicker>(MakeDatePicker);
  factory.Register<MonthView>(MakeMonthView);
  factory.Register<Picture>(MakePicture);
  factory.Register<StatusBar>(MakeStatusBar);
  factory.Register<TabControl>(MakeTabs);
  factory.Register<Grid>(
      [services](Grid& grid, QWidget* parent) { return (new GridView(grid, parent, services))->Bound(); });
}

}  // namespace norvane::ui
