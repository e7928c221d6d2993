#pragma once

#include <string_view>

#include "forms/Grid.h"

namespace norvane {

/// The first data row whose cell in `col` holds the text; 0 if there is none.
int RowOf(const Grid& grid, int col, std::string_view text);

}  // namespace norvane
