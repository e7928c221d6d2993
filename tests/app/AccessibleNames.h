#pragma once

#include <string>
#include <vector>

class QWidget;

namespace norvane::test {

/// Walks what an assistive tool sees of a window, cells included. Returns the controls and cells without a name or with
/// no role, by their places in the tree, and the fields whose value isn't the text shown.
std::vector<std::string> InaccessibleParts(QWidget& window);

}  // namespace norvane::test
