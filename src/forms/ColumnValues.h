#pragma once

#include "core/Conversions.h"
#include "forms/Grid.h"

namespace norvane {

/// What all cells of a column are, the empty ones aside.
enum class CellKind { Text, Number, Amount, Date };

/// Amounts are numbers of a column for currency, or with the currency's symbol.
CellKind KindOfCells(const Grid& grid, int col, const Conversions& convert);

/// The value of a cell of that kind as a number: a day's serial for a date. Below every other for an empty cell.
double ValueOfCell(std::string_view text, CellKind kind, const Conversions& convert);

}  // namespace norvane
