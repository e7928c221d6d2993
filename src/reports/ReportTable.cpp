#include "reports/ReportTable.h"

namespace norvane {

namespace {

constexpr int kFormRows = 20;
constexpr int kMostFormColumns = 6;

}  // namespace

ReportTable::ReportTable(pages::DocumentBuilder& document, const Conversions& convert, const TableKind& kind)
    : document_(document), convert_(convert), kind_(kind) {
  document_.StartTable();
  document_.SetTableBorder(kind_.border);
  Raw("");
}

void ReportTable::EndRow() {
  row_.back() = ';';
  Raw(row_);
  row_.clear();
  ++rowCount_;
}

void ReportTable::Raw(std::string_view body) {
  document_.AddTable(kind_.format, kind_.heading, body);
}

void ReportTable::Bold(int row, int columns) {
  document_.SetTableBold(row, 1, row, columns);
}

void ReportTable::End() {
  document_.EndTable();
}

void ReportTable::EndList(std::string_view rowHeight) {
  SetRowHeights(rowCount_, rowHeight);
  End();
}

void ReportTable::EndForm() {
  document_.SetTableRows(kFormRows);
  SetRowHeights(kFormRows, "0.25in");
  Bold(0, kMostFormColumns);
  End();
}

void ReportTable::SetRowHeights(int rows, std::string_view height) {
  for (int row = 1; row <= rows; ++row) document_.SetTableRowHeight(row, height);
}

}  // namespace norvane
