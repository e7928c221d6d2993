#pragma once

#include "pages/PageFlow.h"

namespace norvane::pages {

/// Places a table at the flow's position. It breaks between rows, with its heading repeated on each page; a row splits
/// only if it is taller than a page, and a totals table keeps together. The empty rows of a form give up height if that
/// keeps the table and `heightBelow` points more on this page. The position ends at the table's lower edge.
void PlaceTable(PageFlow& flow, const Table& table, double heightBelow);

/// How much of a table stays on one page: the whole of a totals table, else the heading with the first row.
double KeptHeightOf(PageFlow& flow, const Table& table);

}  // namespace norvane::pages
