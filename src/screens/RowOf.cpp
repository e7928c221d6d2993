#include "screens/RowOf.h"

namespace norvane {

int RowOf(const Grid& grid, int col, std::string_view text) {
  for (int row = 1; row < grid.Rows(); ++row) {
    if (grid.Cell(row, col) == text) return row;
  }
  return 0;
}

}  // namespace norvane
