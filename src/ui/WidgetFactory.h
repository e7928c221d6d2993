#pragma once

#include <functional>
#include <vector>

#include "core/Conversions.h"
#include "forms/Control.h"
#include "ui/Binding.h"

namespace norvane::ui {

class WindowMemory;

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

/// What the widgets of grids and dates work with.
struct WidgetServices {
  const Conversions& convert;  ///< the region's
  const Clock& clock;
  WindowMemory& memory;  ///< keeps the widths of columns
};

/// Registers the controls of forms/Controls.h and the grid. The services must outlive the factory.
void RegisterStandardWidgets(WidgetFactory& factory, const WidgetServices& services);

}  // namespace norvane::ui
