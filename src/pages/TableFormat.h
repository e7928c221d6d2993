#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace norvane::pages {

/// The values are those that the operations are given.
enum class Alignment { Left = 0, Centre = 1, Right = 2 };

struct Column {
  Alignment alignment = Alignment::Left;
  double width = 0;  ///< points
};

/// Reads a table's format, as in "^1in|2.5in|>1.125in;": columns separated by `|` and closed by `;`, each an optional
/// `^` (centred), `>` (right) or `<` (left) and a width. A surplus separator at the end opens no column. Raises 5 for a
/// column without a width above 0.
std::vector<Column> ReadTableFormat(std::string_view format);

/// The heading's cells, still separated by `|`: the text before the first `;`.
std::string_view ReadTableHeading(std::string_view heading);

/// Removes and returns the first row of a body: its cells, still separated by `|`, without the closing `;`. The last
/// row may lack it. False if the body is used up.
bool TakeRow(std::string_view& body, std::string_view& cells);

/// Removes and returns the first cell of a row. A row that is used up gives empty cells.
std::string_view TakeCell(std::string_view& cells);

}  // namespace norvane::pages
