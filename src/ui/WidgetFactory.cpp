#include "ui/WidgetFactory.h"

namespace norvane::ui {

Binding* WidgetFactory::Make(Control& control, QWidget* parent) const {
  for (std::size_t last = makers_.size(); last-- > 0;) {
    if (Binding* binding = makers_[last](control, parent)) return binding;
  }
  return nullptr;
}

}  // namespace norvane::ui
