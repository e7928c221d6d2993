#include "forms/ListText.h"

#include <numeric>

#include "core/Csv.h"
#include "core/RuntimeError.h"
#include "forms/ColumnValues.h"

namespace norvane {

namespace {

std::vector<int> ShownColumns(const Grid& grid) {
  std::vector<int> shown;
  for (int col = 0; col < grid.Cols(); ++col) {
    const bool isMarker = grid.Kind() == GridKind::Editable && col == 0;
    if (grid.ColWidth(col) > 0 && !isMarker) shown.push_back(col);
  }
  return shown;
}

std::vector<int> AllRows(const Grid& grid) {
  std::vector<int> rows(static_cast<std::size_t>(grid.Rows()) - 1);
  std::iota(rows.begin(), rows.end(), 1);
  return rows;
}

std::string PlainText(const std::string& text, CellKind kind, const Conversions& convert) {
  if (text.empty() || kind == CellKind::Text || kind == CellKind::Number) return text;
  if (kind == CellKind::Amount) return csv::NumberText(convert.ToCurrency(text));
  return csv::DateText(convert.ToDate(text));
}

/// Empty if the sum is out of range.
std::string SumText(const Grid& grid, int col, const std::vector<int>& rows, const Conversions& convert) {
  try {
    Currency sum;
    for (const int row : rows) {
      const std::string text = grid.Cell(row, col);
      if (convert.IsNumeric(text)) sum += convert.ToCurrency(text);
    }
    return convert.CurrencyText(sum);
  } catch (const RuntimeError&) {
    return {};
  }
}

std::string Summary(const Grid& grid, const std::vector<int>& rows, const char* what, const Conversions& convert) {
  std::string text = convert.ToText(static_cast<std::int32_t>(rows.size())) + what;
  for (int col = 0; col < grid.Cols(); ++col) {
    if (!grid.ColTotalled(col)) continue;
    const std::string sum = SumText(grid, col, rows, convert);
    if (!sum.empty()) text += ", " + grid.Cell(0, col) + " " + sum;
  }
  return text;
}

/// Rows that something is in: a row-editing grid ends with an empty one.
std::vector<int> FilledRows(const Grid& grid, std::vector<int> rows) {
  const auto isEmpty = [&](int row) {
    for (int col = 1; col < grid.Cols(); ++col) {
      if (grid.ColTotalled(col) && !grid.Cell(row, col).empty()) return false;
    }
    return true;
  };
  if (grid.Kind() == GridKind::Editable) std::erase_if(rows, isEmpty);
  return rows;
}

}  // namespace

std::string TabbedText(const Grid& grid, const std::vector<int>& rows) {
  const std::vector<int> columns = ShownColumns(grid);
  std::string text;
  for (const int row : rows) {
    for (const int col : columns) {
      if (col != columns.front()) text += '\t';
      text += grid.DisplayText(row, col);
    }
    text += '\n';
  }
  return text;
}

std::string CsvText(const Grid& grid, const Conversions& convert) {
  const std::vector<int> columns = ShownColumns(grid);
  std::vector<CellKind> kinds;
  kinds.reserve(columns.size());
  for (const int col : columns) kinds.push_back(KindOfCells(grid, col, convert));
  csv::Writer writer;
  for (const int col : columns) writer.Text(grid.Cell(0, col));
  writer.EndRow();
  for (const int row : AllRows(grid)) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      writer.Text(PlainText(grid.DisplayText(row, columns[i]), kinds[i], convert));
    }
    writer.EndRow();
  }
  return writer.Take();
}

std::string SummaryText(const Grid& grid, const Conversions& convert) {
  bool totalled = false;
  for (int col = 0; col < grid.Cols(); ++col) totalled = totalled || grid.ColTotalled(col);
  if (!totalled) return {};
  const std::vector<int> rows = FilledRows(grid, AllRows(grid));
  std::string text = Summary(grid, rows, rows.size() == 1 ? " row" : " rows", convert);
  const std::vector<int> marked = grid.MarkedRows();
  if (marked.size() > 1) text += "      " + Summary(grid, marked, " marked", convert);
  return text;
}

}  // namespace norvane
