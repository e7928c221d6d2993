#pragma once

#include <string_view>

#include "forms/Grid.h"

namespace norvane::test {

/// Both clicks of a double click.
inline void DoubleClick(Grid& grid, int row, int col) {
  grid.UserClick(row, col);
  grid.UserDoubleClick(row, col);
}

/// Types character by character into the current cell, and leaves the edit open.
inline void Type(Grid& grid, std::string_view text) {
  for (const char& c : text) grid.UserText({&c, 1});
}

/// Clicks a cell, types over its content and presses Enter.
inline void Enter(Grid& grid, int row, int col, std::string_view text) {
  grid.UserClick(row, col);
  Type(grid, text);
  grid.UserKey(Key::Enter);
}

/// Empties a cell and presses Enter.
inline void Empty(Grid& grid, int row, int col) {
  grid.UserClick(row, col);
  grid.UserKey(Key::F2);
  grid.SetEditText("");
  grid.UserKey(Key::Enter);
}

/// Clicks a cell and picks an item of its drop-down.
inline void Pick(Grid& grid, int row, int col, int item) {
  grid.UserClick(row, col);
  grid.PickItem(item);
}

}  // namespace norvane::test
