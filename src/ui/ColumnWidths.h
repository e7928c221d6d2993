#pragma once

#include <vector>

#include <QFontMetrics>

#include "ui/CellTexts.h"

namespace norvane::ui {

/// Columns were measured for a smaller font; they grow by up to this where there is room.
inline constexpr double kColumnGrowth = 1.3;

struct ColumnContent {
  int width = 0;  ///< of its widest text, in pixels
  bool isFigures = false;
  bool isExact = false;  ///< amounts or dates
};

/// What a column's cells hold, told by the first rows: all of them would take too long, and they are of a kind.
ColumnContent LookAt(const Grid& grid, int col, const CellTexts& texts, const QFontMetrics& metrics);

/// In pixels.
struct ColumnNeeds {
  int given = 0;  ///< the width that its form gave it; 0 hides the column
  int whole = 0;  ///< what its texts take
  int least = 0;  ///< without which they could not be read
};

/// Shares the room out among the columns. First each gets the width it was given or what its texts need, whichever is
/// less, but never less than its least. Where that is too much, texts are cut short before the user has to scroll, the
/// last ones first; as far as there is room, all texts get what they need, then each column the width it was given,
/// then it grows with the font. What is left is the column's of number `rest`, if there is one.
std::vector<int> FitColumns(const std::vector<ColumnNeeds>& columns, int room, int rest);

}  // namespace norvane::ui
