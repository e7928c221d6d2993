#pragma once

#include <string>
#include <vector>

class QWidget;

namespace norvane::test {

/// The visible texts of labels, buttons, options, drop-downs, tabs, group titles, menus and headings in a window that
/// don't fit their place, and those of widgets that are covered or reach beyond the widget around them.
std::vector<std::string> CutOffTexts(const QWidget& window);

}  // namespace norvane::test
