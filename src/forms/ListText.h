#pragma once

#include <string>
#include <vector>

#include "core/Conversions.h"
#include "forms/Grid.h"

namespace norvane {

// What a list says outside of its window. Columns that aren't shown are left out.

/// Rows as the clipboard takes them: cells with tabs between them, each row on a line.
std::string TabbedText(const Grid& grid, const std::vector<int>& rows);

/// The whole list, headings first, as a CSV file. Amounts are plain numbers with a point and days year-month-day, so
/// that a spreadsheet of any region reads them.
std::string CsvText(const Grid& grid, const Conversions& convert);

/// "12 rows, Charges $1,234.50", and the same of the marked rows where there are several. Empty for a grid that has no
/// totalled column.
std::string SummaryText(const Grid& grid, const Conversions& convert);

}  // namespace norvane
