#include "pages/TableLayout.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "pages/TableRowLayout.h"
#include "pages/TableRules.h"

namespace norvane::pages {
namespace {

/// A table that is wider than the body hangs over both margins evenly.
double LeftOf(const Table& table, const Body& body) {
  double width = 0;
  for (const Column& column : table.columns) width += column.width;
  return body.Place(width > body.Width() ? Alignment::Centre : table.alignment, width);
}

class TablePlacer {
 public:
  TablePlacer(PageFlow& flow, const Table& table) : flow_(flow), table_(table), measurer_(flow.Ruler(), table) {
    part_.left = LeftOf(table, flow.Area());
  }

  void Run(double heightBelow) {
    if (table_.isForm) measurer_.FitFormInto(flow_.Room() - heightBelow);
    measurer_.Measure(0, heading_);
    // One that no page can hold has to break after all.
    if (table_.border == TableBorder::Totals) flow_.KeepTogether(KeptHeight());
    if (heading_.height > flow_.Area().Height() / 2) GiveUpHeading();
    if (table_.rows.empty()) MakeRoom(0);
    for (std::size_t number = 1; number <= table_.rows.size(); ++number) {
      measurer_.Measure(number, row_);
      PlaceRow();
    }
    ClosePart();
  }

  double KeptHeight() {
    const std::size_t last = table_.border == TableBorder::Totals ? table_.rows.size() : 1;
    double height = 0;
    for (std::size_t number = 0; number <= std::min(last, table_.rows.size()); ++number) {
      measurer_.Measure(number, row_);
      height += row_.height;
    }
    return height;
  }

 private:
  // A heading that leaves hardly any room for rows is written once, like a row.
  void GiveUpHeading() {
    row_ = std::exchange(heading_, {});
    PlaceRow();
  }

  void PlaceRow() {
    if (heading_.height + row_.height > flow_.Area().Height() + kFitTolerance) {
      PlaceInPieces();
    } else {
      MakeRoom(row_.height);
      Draw(row_);
    }
  }

  void PlaceInPieces() {
    taken_.assign(row_.cells.size(), 0);
    double remaining = row_.height;
    while (true) {
      MakeRoom(HeightOfOneLine());
      remaining -= DrawPiece(remaining);
      if (IsTaken()) return;
      NextPage();
    }
  }

  double HeightOfOneLine() const {
    double height = 0;
    for (const MeasuredCell& cell : row_.cells) height = std::max(height, cell.lineHeight);
    return height + 2 * kCellPaddingDown;
  }

  bool IsTaken() const {
    for (std::size_t i = 0; i < taken_.size(); ++i) {
      if (taken_[i] < row_.cells[i].lineCount) return false;
    }
    return true;
  }

  /// Draws as many of the remaining lines as the page holds, from the top of each cell, and at least one. Returns the
  /// height used.
  double DrawPiece(double remaining) {
    const double room = flow_.Room();
    double height = std::min(room, remaining);
    const double top = flow_.Position() + kCellPaddingDown;
    for (std::size_t i = 0; i < taken_.size(); ++i) {
      const MeasuredCell& cell = row_.cells[i];
      const double fitting = std::floor((room - 2 * kCellPaddingDown + kFitTolerance) / cell.lineHeight);
      const auto most = static_cast<std::size_t>(std::max(fitting, 1.0));
      const std::size_t count = std::min(cell.lineCount - taken_[i], most);
      DrawLines(row_, i, taken_[i], count, top);
      height = std::max(height, static_cast<double>(count) * cell.lineHeight + 2 * kCellPaddingDown);
      taken_[i] += count;
    }
    EndRow(height);
    return height;
  }

  /// Opens the part of the table for a row of this height: on the next page if it does not fit on this one, together
  /// with the heading.
  void MakeRoom(double height) {
    if (flow_.NeedsNewPage(height + (IsOpen() ? 0 : heading_.height))) NextPage();
    if (!IsOpen()) OpenPart();
  }

  bool IsOpen() const { return !part_.edges.empty(); }

  void OpenPart() {
    part_.edges.push_back(flow_.Position());
    part_.hasHeading = !heading_.cells.empty();
    if (part_.hasHeading) Draw(heading_);
  }

  void ClosePart() {
    if (IsOpen()) DrawRules(flow_.Writer(), table_, part_);
    part_.edges.clear();
  }

  void NextPage() {
    ClosePart();
    flow_.NewPage();
  }

  void Draw(const MeasuredRow& row) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const MeasuredCell& cell = row.cells[i];
      const double height = static_cast<double>(cell.lineCount) * cell.lineHeight;
      DrawLines(row, i, 0, cell.lineCount, flow_.Position() + (row.height - height) / 2);
    }
    EndRow(row.height);
  }

  void DrawLines(const MeasuredRow& row, std::size_t index, std::size_t first, std::size_t count, double top) {
    const MeasuredCell& cell = row.cells[index];
    const Column& column = table_.columns[index];
    const double left = LeftOfColumn(index) + kCellPaddingAcross;
    const double right = LeftOfColumn(index) + column.width - kCellPaddingAcross;
    for (std::size_t i = first; i < first + count; ++i) {
      const BrokenLine& line = row.lines[cell.firstLine + i];
      const double x = Aligned(column.alignment, left, right, line.width * cell.font.size);
      flow_.Writer().Write(x, top, cell.font, line.text);
      top += cell.lineHeight;
    }
  }

  double LeftOfColumn(std::size_t index) const {
    double left = part_.left;
    for (std::size_t i = 0; i < index; ++i) left += table_.columns[i].width;
    return left;
  }

  void EndRow(double height) {
    flow_.Advance(height);
    part_.edges.push_back(flow_.Position());
  }

  PageFlow& flow_;
  const Table& table_;
  RowMeasurer measurer_;
  MeasuredRow heading_;
  MeasuredRow row_;
  std::vector<std::size_t> taken_;  ///< lines of each cell that are drawn already
  TablePart part_;
};

}  // namespace

void PlaceTable(PageFlow& flow, const Table& table, double heightBelow) {
  TablePlacer(flow, table).Run(heightBelow);
}

double KeptHeightOf(PageFlow& flow, const Table& table) {
  return TablePlacer(flow, table).KeptHeight();
}

}  // namespace norvane::pages
