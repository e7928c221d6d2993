#pragma once

#include <cstdint>
#include <string>

#include "pages/DocumentBuilder.h"

namespace norvane::pages {

/// Records a list of six columns that fills so many pages of 40 rows, the heading among them.
inline void WriteList(DocumentBuilder& report, std::int64_t pages) {
  constexpr int kRowsPerPage = 39;
  constexpr auto kFormat = ">0.5in|2.75in|>1in|^0.75in|^0.75in|1.75in;";
  constexpr auto kHeading = "Item#|Description|Charge|Par|In Stock|Warranty;";
  report.SetMargins("0.5in", "0.5in", "0.5in", "0.5in");
  report.StartDocument();
  report.SetHeader("Inventory|Norvane & Daughters|11/22/2026");
  report.StartTable();
  report.SetTableBorder(TableBorder::List);
  report.AddTable(kFormat, kHeading, "");
  report.SetTableRowHeight(0, "0.25in");
  for (int row = 1; row <= pages * kRowsPerPage; ++row) {
    const std::string number = std::to_string(row);
    report.AddTable(kFormat, kHeading, number + "|Oak table, model " + number + "|$1,234.50|5|12|Two years;");
    report.SetTableRowHeight(row, "0.25in");
  }
  report.EndTable();
  report.EndDocument();
}

}  // namespace norvane::pages
