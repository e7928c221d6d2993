#include "ui/WidgetFactory.h"

#include <ranges>

namespace norvane::ui {

Binding* WidgetFactory::Make(Control& control, QWidget* parent) const {
  for (const auto& maker : std::views::reverse(makers_)) {
    if (Binding* binding = maker(control, parent)) return binding;
  }
  return nullptr;
}

}  // namespace norvane::ui
