#include "ui/ColumnWidths.h"

#include <algorithm>
#include <numeric>

#include "ui/Convert.h"

namespace norvane::ui {
namespace {

constexpr int kRowsMeasured = 200;

class Sharing {
 public:
  Sharing(const std::vector<ColumnNeeds>& columns, int room) : columns_(columns), room_(room) {
    for (const ColumnNeeds& column : columns) {
      widths_.push_back(column.given > 0 ? std::max(std::min(column.given, column.whole), column.least) : 0);
      room_ -= widths_.back();
    }
  }

  void CutShort() {
    for (int most = *std::max_element(widths_.begin(), widths_.end()); room_ < 0 && most > 0; --most) {
      for (std::size_t i = 0; i < columns_.size(); ++i)
        Give(i, -std::max(0, widths_[i] - std::max(most, columns_[i].least)));
    }
  }

  /// Raises each column to the width wanted for it, as far as there is room.
  template <class Wanted>
  void Raise(Wanted wanted) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      if (columns_[i].given > 0) Give(i, std::clamp(wanted(columns_[i]) - widths_[i], 0, std::max(0, room_)));
    }
  }

  /// Shares out what is left by the widths that the columns have.
  void Spread() {
    const int all = std::accumulate(widths_.begin(), widths_.end(), 0);
    const int left = std::max(0, room_);
    for (std::size_t i = 0; all > 0 && i < columns_.size(); ++i) Give(i, left * widths_[i] / all);
  }

  void GiveRest(int column) {
    if (column >= 0) Give(static_cast<std::size_t>(column), std::max(0, room_));
  }

  std::vector<int> Widths() { return std::move(widths_); }

 private:
  void Give(std::size_t column, int pixels) {
    widths_[column] += pixels;
    room_ -= pixels;
  }

  const std::vector<ColumnNeeds>& columns_;
  std::vector<int> widths_;
  int room_;
};

}  // namespace

ColumnContent LookAt(const Grid& grid, int col, const CellTexts& texts, const QFontMetrics& metrics) {
  const QString sample = texts.Sample(grid.ColDataType(col));
  ColumnContent content{.heading = metrics.horizontalAdvance(ToQt(grid.DisplayText(0, col)))};
  content.width = std::max(content.heading, metrics.horizontalAdvance(sample));
  int filled = 0;
  int figures = 0;
  int exacts = 0;
  int others = 0;
  // Spread over the whole list: a running balance is widest somewhere in the middle.
  const int stride = 1 + (grid.Rows() - 1) / kRowsMeasured;
  for (int row = 1; row < grid.Rows(); row += stride) {
    const QString text = ToQt(grid.DisplayText(row, col));
    content.width = std::max(content.width, metrics.horizontalAdvance(text));
    if (text.isEmpty()) continue;
    ++filled;
    const bool isFigure = texts.IsFigure(text);
    const bool isExact = texts.IsExact(text);
    figures += isFigure;
    exacts += isExact;
    others += !isFigure && !isExact;
  }
  content.isFigures = filled > 0 && figures == filled;
  content.isExact = filled == 0 ? !sample.isEmpty() : exacts > 0 && others == 0;
  return content;
}

std::vector<int> FitColumns(const std::vector<ColumnNeeds>& columns, int room, Rest rest) {
  if (columns.empty()) return {};
  Sharing sharing(columns, room);
  sharing.CutShort();
  sharing.Raise([](const ColumnNeeds& column) { return column.whole; });
  sharing.Raise([](const ColumnNeeds& column) { return column.given; });
  sharing.Raise([](const ColumnNeeds& column) { return static_cast<int>(column.given * kColumnGrowth); });
  if (rest.spreads) sharing.Spread();
  sharing.GiveRest(rest.column);
  return sharing.Widths();
}

}  // namespace norvane::ui
