#include "ui/WidgetFactory.h"

namespace norvane::ui {

Binding* WidgetFactory::Make(Control& control, QWidget* parent) const {
  for (auto maker = makers_.rbegin(); maker != makers_.rend(); ++maker) {
    if (Binding* binding = (*maker)(control, parent)) return binding;
  }
  return nullptr;
}

}  // namespace norvane::ui
