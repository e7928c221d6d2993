#include "pages/TableRowLayout.h"

#include <algorithm>

namespace norvane::pages {
namespace {

constexpr float kStep = 0.5F;
constexpr float kSmallestSizeOfRow = 7.0F;
constexpr std::size_t kMostLinesOfShrunkRow = 2;
constexpr float kSmallestShareForWord = 0.7F;
constexpr double kTolerance = 0.01;

std::size_t MostLines(const MeasuredRow& row) {
  std::size_t most = 0;
  for (const MeasuredCell& cell : row.cells) most = std::max(most, cell.lineCount);
  return most;
}

}  // namespace

void RowMeasurer::Measure(std::size_t number, MeasuredRow& measured) {
  const TableRow& row = number == 0 ? table_.heading : table_.rows[number - 1];
  MeasureAt(table_.font.size, row, number, measured);
  if (!row.height) return;
  if (measured.height > *row.height + kTolerance) Shrink(row, number, measured);
  measured.height = std::max<double>(measured.height, *row.height);
}

// What does not fit at the smallest size fits at none, and stays at it.
void RowMeasurer::Shrink(const TableRow& row, std::size_t number, MeasuredRow& measured) {
  const auto fits = [&] {
    return measured.height <= *row.height + kTolerance && MostLines(measured) <= kMostLinesOfShrunkRow;
  };
  float size = table_.font.size;
  const float smallest = std::min(size, kSmallestSizeOfRow);
  MeasureAt(smallest, row, number, measured);
  if (!fits()) return;
  do {
    size = std::max(size - kStep, smallest);
    MeasureAt(size, row, number, measured);
  } while (!fits());
}

void RowMeasurer::MeasureAt(float size, const TableRow& row, std::size_t number, MeasuredRow& measured) {
  measured.cells.clear();
  measured.lines.clear();
  Font font = table_.font;
  font.size = size;
  measured.height = ruler_.LineHeight(font) + 2 * kCellPaddingDown;
  std::string_view rest = row.cells;
  for (std::size_t column = 0; column < table_.columns.size(); ++column) {
    font.face.bold = table_.font.face.bold || IsBold(number, column + 1);
    MeasureCell(TakeCell(rest), table_.columns[column], font, measured);
  }
}

void RowMeasurer::MeasureCell(std::string_view text, const Column& column, Font font, MeasuredRow& measured) {
  const double room = std::max(column.width - 2 * kCellPaddingAcross, 0.0);
  font.size = SizeForWords(text, font, room);
  MeasuredCell cell{font, ruler_.LineHeight(font), measured.lines.size()};
  BreakLines(ruler_, font.face, text, room / font.size, measured.lines);
  cell.lineCount = measured.lines.size() - cell.firstLine;
  measured.height =
      std::max(measured.height, static_cast<double>(cell.lineCount) * cell.lineHeight + 2 * kCellPaddingDown);
  measured.cells.push_back(cell);
}

// A word or an amount that is too wide for its column is set smaller before it is broken.
float RowMeasurer::SizeForWords(std::string_view text, const Font& font, double room) {
  if (ruler_.Width(font.face, text) * font.size <= room) return font.size;
  const double widest = WidestWord(ruler_, font.face, text);
  const float smallest = std::min(table_.font.size * kSmallestShareForWord, font.size);
  float size = font.size;
  while (widest * size > room + kTolerance && size > smallest) size = std::max(size - kStep, smallest);
  return size;
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
