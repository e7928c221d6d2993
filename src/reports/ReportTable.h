#pragma once

#include <initializer_list>
#include <string_view>

#include "pages/DocumentBuilder.h"

namespace norvane {

/// What a report says of one of its tables: lines, columns and heading, the latter two in the notation of
/// TableFormat.h.
struct TableKind {
  pages::TableBorder border;
  std::string_view format;
  std::string_view heading;
};

/// Starts the table with its heading and no row yet, so that it shows the heading even if none comes.
void StartTable(pages::DocumentBuilder& document, const TableKind& kind);
/// Adds one row. Cells aren't escaped: a `|` or `;` in one splits it.
void AddRow(pages::DocumentBuilder& document, const TableKind& kind, std::initializer_list<std::string_view> cells);
/// Ends the table of a form: exactly 20 rows of a quarter of an inch, whatever was added, below a bold heading.
void EndFormTable(pages::DocumentBuilder& document);

}  // namespace norvane
