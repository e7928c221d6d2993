#pragma once

#include <string_view>
#include <vector>

#include "pages/Document.h"
#include "pages/LineBreaker.h"

namespace norvane::pages {

/// Rows stand a little apart from their text, columns more.
inline constexpr double kCellPaddingAcross = 0.05 * kPointsPerInch;
inline constexpr double kCellPaddingDown = 0.5;

struct MeasuredCell {
  Font font;
  double lineHeight = 0;  ///< points
  std::size_t firstLine = 0;
  std::size_t lineCount = 0;
};

/// A row whose text is broken into lines. The lines point into the row's cells.
struct MeasuredRow {
  std::vector<MeasuredCell> cells;  ///< one a column
  std::vector<BrokenLine> lines;    ///< of all cells
  double height = 0;                ///< points
};

/// Breaks the rows of one table into lines and finds their heights.
class RowMeasurer {
 public:
  RowMeasurer(TextRuler& ruler, const Table& table) : ruler_(ruler), table_(table) {}

  /// Measures row `number`, 0 being the heading, into `measured`, whose storage is used again.
  void Measure(std::size_t number, MeasuredRow& measured);

 private:
  void Shrink(const TableRow& row, std::size_t number, MeasuredRow& measured);
  void MeasureAt(float size, const TableRow& row, std::size_t number, MeasuredRow& measured);
  void MeasureCell(std::string_view text, const Column& column, Font font, MeasuredRow& measured);
  bool IsBold(std::size_t row, std::size_t column) const;
  float SizeForWords(std::string_view text, const Font& font, double room);

  TextRuler& ruler_;
  const Table& table_;
};

}  // namespace norvane::pages
