#pragma once

#include "ui/WidgetFactory.h"

namespace norvane::ui {

/// Registers the bar that shows how far long work is.
void RegisterProgressBar(WidgetFactory& factory);

}  // namespace norvane::ui
