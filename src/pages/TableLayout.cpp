#include "pages/TableLayout.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "pages/TableRowLayout.h"
#include "pages/TableRules.h"

namespace norvane::pages {
namespace {

constexpr double kTolerance = 0.01;

/// A table that is wider than the body hangs over both margins evenly.
double LeftOf(const Table& table, const Body& body) {
  double width = 0;
  for (const Column& column : table.columns) width += column.width;
  return body.Place(width > body.Width() ? Alignment::Centre : table.alignment, width);
}

class TablePlacer {
 public:
  TablePlacer(Flow& flow, const Table& table) : flow_(flow), table_(table), measurer_(flow.Ruler(), table) {
    part_.left = LeftOf(table, flow.Area());
  }

  void Run() {
    measurer_.Measure(0, heading_);
    if (table_.border == TableBorder::Totals) KeepTogether();
    if (heading_.height > flow_.Area().Height() / 2) GiveUpHeading();
    if (table_.rows.empty()) MakeRoom(0);
    for (std::size_t number = 1; number <= table_.rows.size(); ++number) {
      measurer_.Measure(number, row_);
      PlaceRow();
    }
    ClosePart();
  }

 private:
  void KeepTogether() {
    double height = heading_.height;
    for (std::size_t number = 1; number <= table_.rows.size(); ++number) {
      measurer_.Measure(number, row_);
      height += row_.height;
    }
    // One that no page can hold has to break after all.
    if (flow_.NeedsNewPage(height) && height <= flow_.Area().Height()) flow_.NewPage();
  }

  // A heading that leaves hardly any room for rows is set once, like a row.
  void GiveUpHeading() {
    row_ = std::exchange(heading_, {});
    PlaceRow();
  }

  void PlaceRow() {
    if (heading_.height + row_.height > flow_.Area().Height() + kTolerance) {
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
      const double fitting = std::floor((room - 2 * kCellPaddingDown + kTolerance) / cell.lineHeight);
      const auto most = static_cast<std::size_t>(std::max(fitting, 1.0));
      const std::size_t count = std::min(cell.lineCount - taken_[i], most);
      DrawLines(row_, i, taken_[i], count, top);
      height = std::max(height, static_cast<double>(count) * cell.lineHeight + 2 * kCellPaddingDown);
      taken_[i] += count;
    }
    EndRow(height);
    return height;
  }

  /// Opens the table's part that a row of this height belongs to: on the next page if it does not fit below what stands
  /// here, together with the heading.
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

  Flow& flow_;
  const Table& table_;
  RowMeasurer measurer_;
  MeasuredRow heading_;
  MeasuredRow row_;
  std::vector<std::size_t> taken_;  ///< lines of each cell that stand already
  TablePart part_;
};

}  // namespace

void PlaceTable(Flow& flow, const Table& table) {
  TablePlacer(flow, table).Run();
}

}  // namespace norvane::pages
