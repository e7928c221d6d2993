#include "ui/WidgetFactory.h"

namespace norvane::ui {

Binding* WidgetFactory::Make(Control& control, QWidget* parent) const {
  for (const auto& make : makers_) {
    if (Binding* binding = make(control, parent)) return binding;
  }
  return nullptr;
}

}  // namespace norvane::ui
