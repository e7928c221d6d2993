#pragma once

#include <functional>

#include <QMenu>

#include "forms/Grid.h"

namespace norvane::ui {

/// What a list's own entries of its menu do.
struct ListCommands {
  std::function<void()> copy, markAll, save;
  std::function<void(int col)> sort;
};

/// Fills the menu of a list: the buttons of its form but the exit button, then what every list offers. An entry presses
/// its button.
void FillListMenu(QMenu& menu, const Grid& grid, const ListCommands& commands);

}  // namespace norvane::ui
