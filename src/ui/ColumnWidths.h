#pragma once

#include <vector>

#include <QFontMetrics>

#include "ui/CellTexts.h"

namespace norvane::ui {

/// Columns grow by up to this factor where there is room: their widths were chosen for a smaller font.
inline constexpr double kColumnGrowth = 1.3;

/// Widths in pixels.
struct ColumnContent {
  int heading = 0;
  int width = 0;  ///< of its widest text, heading included
  bool isFigures = false;
  bool isExact = false;  ///< amounts or dates
};

/// Measures a column by its first rows; all of them would take too long, and they are alike.
ColumnContent LookAt(const Grid& grid, int col, const CellTexts& texts, const QFontMetrics& metrics);

/// In pixels.
struct ColumnNeeds {
  int given = 0;  ///< the width that its form gave it; 0 hides the column
  int whole = 0;  ///< the width of its longest text
  int least = 0;  ///< the narrowest at which its texts can be read
};

/// What becomes of room that no column needs.
struct Rest {
  int column = -1;       ///< takes it, unless it is -1
  bool spreads = false;  ///< all columns take their share first
};

/// Divides the room among the columns. First each gets the width it was given or what its texts need, whichever is
/// less, but never less than its least. Where that is too much, the widest columns are cut to one common width before
/// the grid scrolls; as far as there is room, all texts get what they need, then each column the width it was given,
/// then it grows with the font. `rest` says who takes what is left.
std::vector<int> FitColumns(const std::vector<ColumnNeeds>& columns, int room, Rest rest);

}  // namespace norvane::ui
