#pragma once

#include <vector>

#include "pages/Document.h"
#include "pages/PageWriter.h"

namespace norvane::pages {

/// The part of a table on one page.
struct TablePart {
  double left = 0;
  std::vector<double> edges;  ///< the upper edge, then each row's lower one
  bool hasHeading = false;    ///< as its first row
};

/// Draws the lines of a table's part; they lie on the edges and take no room. Each part is ruled as if it were a table
/// of its own.
void DrawRules(PageWriter& writer, const Table& table, const TablePart& part);

}  // namespace norvane::pages
