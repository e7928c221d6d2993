#include "reports/ReportTable.h"

#include <string>

namespace norvane {

namespace {

constexpr int kFormRows = 20;
constexpr int kMostFormColumns = 6;

std::string RowText(std::initializer_list<std::string_view> cells) {
  std::string row;
  for (const std::string_view cell : cells) row.append(cell) += '|';
  if (!row.empty()) row.back() = ';';
  return row;
}

}  // namespace

void StartTable(pages::DocumentBuilder& document, const TableKind& kind) {
  document.StartTable();
  document.SetTableBorder(kind.border);
  document.AddTable(kind.format, kind.heading, "");
}

void AddRow(pages::DocumentBuilder& document, const TableKind& kind, std::initializer_list<std::string_view> cells) {
  document.AddTable(kind.format, kind.heading, RowText(cells));
}

void EndFormTable(pages::DocumentBuilder& document) {
  document.SetTableRows(kFormRows);
  for (int row = 1; row <= kFormRows; ++row) document.SetTableRowHeight(row, "0.25in");
  document.SetTableBold(0, 1, 0, kMostFormColumns);
  document.EndTable();
}

}  // namespace norvane
