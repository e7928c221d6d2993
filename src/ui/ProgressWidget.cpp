#include "ui/ProgressWidget.h"

#include <QProgressBar>

#include "forms/ProgressBar.h"

namespace norvane::ui {
namespace {

constexpr int kWhole = 1'000;

// Its place is kept while it is hidden: a notice doesn't change its size when the bar appears.
Binding* MakeProgressBar(ProgressBar& bar, QWidget* parent) {
  auto* widget = new QProgressBar(parent);
  widget->setRange(0, kWhole);
  widget->setTextVisible(false);
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return new Binding(bar, *widget,
                     [&bar, widget](Aspect) { widget->setValue(static_cast<int>(bar.Share() * kWhole)); });
}

}  // namespace

void RegisterProgressBar(WidgetFactory& factory) {
  factory.Register<ProgressBar>(MakeProgressBar);
}

}  // namespace norvane::ui
