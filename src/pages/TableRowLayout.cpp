#include "pages/TableRowLayout.h"

#include <algorithm>

namespace norvane::pages {
namespace {

constexpr float kSmallestShrunkSize = 7.0F;
constexpr std::size_t kMostShrunkLines = 2;
constexpr float kSmallestShareForWord = 0.7F;
/// In points: so little of the padding a text may take before it is broken or set smaller.
constexpr double kOverhang = 0.2;

}  // namespace

void RowMeasurer::Measure(std::size_t number, MeasuredRow& measured) {
  const TableRow& row = number == 0 ? table_.heading : table_.rows[number - 1];
  measured.cells.clear();
  measured.lines.clear();
  measured.height = row.height ? *row.height - givenUp_ * SpareHeight(row) : LeastHeight();
  std::string_view rest = row.cells;
  for (std::size_t column = 0; column < table_.columns.size(); ++column) {
    const double room = table_.columns[column].width - 2 * kCellPaddingAcross + kOverhang;
    CellText cell{TakeCell(rest), table_.font, std::max(room, 0.0)};
    cell.font.face.bold |= IsBold(number, column + 1);
    measured.cells.push_back(MeasureCell(cell, row.height, measured.lines));
    if (!cell.text.empty()) measured.height = std::max(measured.height, measured.cells.back().Height());
  }
}

void RowMeasurer::FitFormInto(double room) {
  double height = 0;
  double spare = 0;
  MeasuredRow measured;
  for (std::size_t number = 0; number <= table_.rows.size(); ++number) {
    Measure(number, measured);
    height += measured.height;
    if (number > 0) spare += SpareHeight(table_.rows[number - 1]);
  }
  const double excess = height - room;
  if (excess > 0 && excess <= spare) givenUp_ = excess / spare;
}

double RowMeasurer::SpareHeight(const TableRow& row) const {
  return row.cells.empty() && row.height ? std::max(*row.height - LeastHeight(), 0.0) : 0.0;
}

// In a row of set height, a cell that doesn't fit is set smaller. What doesn't fit at the smallest size fits at none,
// and stays at it.
MeasuredCell RowMeasurer::MeasureCell(CellText cell, const std::optional<float>& rowHeight,
                                      std::vector<BrokenLine>& lines) {
  const std::size_t first = lines.size();
  MeasuredCell measured = Break(cell, first, lines);
  const auto fits = [&] { return !rowHeight || measured.Height() <= *rowHeight + kFitTolerance; };
  const auto fitsShrunk = [&] { return fits() && measured.lineCount <= kMostShrunkLines; };
  if (cell.text.empty() || fits()) return measured;
  float size = cell.font.size;
  const float smallest = std::min(size, kSmallestShrunkSize);
  cell.font.size = smallest;
  measured = Break(cell, first, lines);
  if (!fitsShrunk()) return measured;
  do {
    size = std::max(size - kSizeStep, smallest);
    cell.font.size = size;
    measured = Break(cell, first, lines);
  } while (!fitsShrunk());
  return measured;
}

MeasuredCell RowMeasurer::Break(const CellText& cell, std::size_t firstLine, std::vector<BrokenLine>& lines) {
  lines.resize(firstLine);
  Font font = cell.font;
  font.size = SizeForWords(cell);
  BreakLines(ruler_, font.face, cell.text, cell.width / font.size, lines);
  return {font, ruler_.LineHeight(font), firstLine, lines.size() - firstLine};
}

// A word or an amount that is too wide for its column is set smaller before it is broken.
float RowMeasurer::SizeForWords(const CellText& cell) {
  const Font& font = cell.font;
  if (ruler_.Width(font.face, cell.text) * font.size <= cell.width) return font.size;
  return FittingSize(WidestWord(ruler_, font.face, cell.text), cell.width, font.size,
                     table_.font.size * kSmallestShareForWord);
}

bool RowMeasurer::IsBold(std::size_t row, std::size_t column) const {
  const auto contains = [](int first, std::size_t value, int last) {
    return first <= static_cast<std::int64_t>(value) && static_cast<std::int64_t>(value) <= last;
  };
  return std::any_of(table_.bold.begin(), table_.bold.end(), [&](const CellRange& range) {
    return contains(range.firstRow, row, range.lastRow) && contains(range.firstColumn, column, range.lastColumn);
  });
}

}  // namespace norvane::pages
