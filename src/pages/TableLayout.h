#pragma once

#include "pages/Flow.h"

namespace norvane::pages {

/// Places a table at the flow's position. It breaks between rows, with its heading repeated on each page; a row splits
/// only if it is taller than a page, and a totals table keeps together. The position ends at the table's lower edge.
void PlaceTable(Flow& flow, const Table& table);

}  // namespace norvane::pages
