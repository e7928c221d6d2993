#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "pages/Fonts.h"
#include "pages/Pages.h"
#include "pages/TableFormat.h"

namespace norvane::pages {

// A document as it was recorded: its contents, not yet their places. All measures are in points.

struct Margins {
  double left = kPointsPerInch;
  double right = kPointsPerInch;
  double top = kPointsPerInch;
  double bottom = kPointsPerInch;
};

struct Paragraph {
  std::string text;
  Font font;
  Alignment alignment = Alignment::Left;
};

/// A rectangle from the page's top left corner; its text isn't wrapped. A line too wide for it is set
/// smaller, down to 6 points, and then ends in an ellipsis.
struct TextBox {
  std::string text;
  double left = 0, top = 0, width = 0, height = 0;
  Font font;
  Alignment alignment = Alignment::Left;
};

struct PageBreak {};

/// Rectangles from the page's top left corner. They take no room: what follows is placed as if they weren't there.
struct FilledBox {
  Box box;
};
struct LinkedBox {
  Link link;
};

enum class TableBorder {
  None = 0,
  Totals = 8,  ///< a frame and a line under each row; such a table is kept on one page
  Grid = 9,    ///< a frame and a line around every cell
  List = 10,   ///< a line under the heading and at the end, hairlines between the rows
};

struct TableRow {
  std::string cells;              ///< separated by `|`; those beyond the last column are dropped
  std::optional<float> height{};  ///< by default the height of its text
};

/// Row 0 is the heading, columns count from 1, both ends count.
struct CellRange {
  int firstRow = 0, firstColumn = 0, lastRow = 0, lastColumn = 0;
};

struct Table {
  std::vector<Column> columns;
  TableRow heading;
  std::vector<TableRow> rows;
  std::vector<CellRange> bold;
  TableBorder border = TableBorder::None;
  bool isForm = false;  ///< the number of its rows was forced
  int surplusRows = 0;  ///< rows that the form had no room for
  Font font;
  Alignment alignment = Alignment::Left;  ///< of the whole table between the margins
};

using Element = std::variant<Paragraph, TextBox, PageBreak, FilledBox, LinkedBox, Table>;

struct Document {
  Margins margins;
  std::string header;  ///< left, centre and right part separated by `|`
  std::string footer;
  std::vector<Element> elements;
};

}  // namespace norvane::pages
