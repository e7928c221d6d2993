#pragma once

#include <string_view>
#include <vector>

#include "pages/Document.h"
#include "pages/LineBreaker.h"

namespace norvane::pages {

/// Between a cell's edges and its text, in points.
inline constexpr double kCellPaddingAcross = 0.05 * kPointsPerInch;
inline constexpr double kCellPaddingDown = 0.5;

struct MeasuredCell {
  Font font;
  double lineHeight = 0;  ///< points
  std::size_t firstLine = 0;
  std::size_t lineCount = 0;

  double Height() const { return static_cast<double>(lineCount) * lineHeight + 2 * kCellPaddingDown; }
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
  /// Lowers the empty rows of a form, all by the same share of what they can spare, if the table then fits into `room`
  /// points; otherwise they stay as they are.
  void FitFormInto(double room);

 private:
  struct CellText {
    std::string_view text;
    Font font;
    double width = 0;  ///< points
  };

  double LeastHeight() const { return ruler_.LineHeight(table_.font) + 2 * kCellPaddingDown; }
  double SpareHeight(const TableRow& row) const;
  MeasuredCell MeasureCell(CellText cell, const std::optional<float>& rowHeight, std::vector<BrokenLine>& lines);
  MeasuredCell Break(const CellText& cell, std::size_t firstLine, std::vector<BrokenLine>& lines);
  bool IsBold(std::size_t row, std::size_t column) const;
  float SizeForWords(const CellText& cell);

  TextRuler& ruler_;
  const Table& table_;
  double givenUp_ = 0;  ///< share of an empty row's spare height
};

}  // namespace norvane::pages
