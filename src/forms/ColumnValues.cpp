#include "forms/ColumnValues.h"

#include <limits>

#include "core/RuntimeError.h"

namespace norvane {

namespace {

/// A number that is too large for its type is a text like any other.
bool IsReadable(std::string_view text, const Conversions& convert) {
  if (!convert.IsNumeric(text)) return false;
  try {
    convert.ToDouble(text);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace

CellKind KindOfCells(const Grid& grid, int col, const Conversions& convert) {
  const std::string& symbol = convert.Settings().currencySymbol;
  bool numbers = true;
  bool dates = true;
  bool filled = false;
  bool symbols = grid.ColDataType(col) == ColumnType::Currency;
  for (int row = 1; row < grid.Rows() && (numbers || dates); ++row) {
    const std::string text = grid.DisplayText(row, col);
    if (text.empty()) continue;
    filled = true;
    numbers = numbers && IsReadable(text, convert);
    dates = dates && !numbers && convert.IsDate(text);
    symbols = symbols || (!symbol.empty() && text.find(symbol) != std::string::npos);
  }
  if (!filled || (!numbers && !dates)) return CellKind::Text;
  if (dates) return CellKind::Date;
  return symbols ? CellKind::Amount : CellKind::Number;
}

double ValueOfCell(std::string_view text, CellKind kind, const Conversions& convert) {
  if (text.empty()) return -std::numeric_limits<double>::infinity();
  return kind == CellKind::Date ? convert.ToDate(text).Serial() : convert.ToDouble(text);
}

}  // namespace norvane
