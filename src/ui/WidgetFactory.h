#pragma once

#include <functional>
#include <vector>

#include "core/RegionalSettings.h"
#include "forms/Control.h"
#include "ui/Binding.h"

namespace norvane::ui {

/// Makes the widget of a control by the control's class.
class WidgetFactory {
 public:
  /// Makes a widget below `parent`, bound to `control`.
  template <class ControlClass>
  using Maker = std::function<Binding*(ControlClass& control, QWidget* parent)>;

  template <class ControlClass>
  void Register(Maker<ControlClass> maker) {
    makers_.push_back([maker = std::move(maker)](Control& control, QWidget* parent) -> Binding* {
      auto* fitting = dynamic_cast<ControlClass*>(&control);
      return fitting ? maker(*fitting, parent) : nullptr;
    });
  }

  /// Null for a control that has no widget, such as a timer. The parent owns the widget.
  Binding* Make(Control& control, QWidget* parent) const;

 private:
  std::vector<Maker<Control>> makers_;
};

/// Registers the controls of forms/Controls.h and the grid. Dates are shown in the region's short form;
/// grids recognise amounts and dates as the region writes them.
void RegisterStandardWidgets(WidgetFactory& factory, const RegionalSettings& settings);

}  // namespace norvane::ui
