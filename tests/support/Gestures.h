#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

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

/// Types along a row, each text followed by Tab.
inline void TypeCells(Grid& grid, std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) {
    Type(grid, text);
    grid.UserKey(Key::Tab);
  }
}

/// Clicks a cell, types over its content and presses Enter.
inline void Enter(Grid& grid, int row, int col, std::string_view text) {
  grid.UserClick(row, col);
  Type(grid, text);
  grid.UserKey(Key::Enter);
}

inline void EnterAndGoDown(Grid& grid, int row, int col, std::string_view text) {
  Enter(grid, row, col, text);
  grid.UserKey(Key::Down);
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

/// What a row shows from a column to the last one, with "|" between the cells.
inline std::string RowText(const Grid& grid, int row, int first = 0) {
  std::string text = grid.DisplayText(row, first);
  for (int col = first + 1; col < grid.Cols(); ++col) text += "|" + grid.DisplayText(row, col);
  return text;
}

/// What a column holds below its heading.
inline std::vector<std::string> ColumnOf(const Grid& grid, int col) {
  std::vector<std::string> cells;
  for (int row = 1; row < grid.Rows(); ++row) cells.push_back(grid.Cell(row, col));
  return cells;
}

}  // namespace norvane::test
