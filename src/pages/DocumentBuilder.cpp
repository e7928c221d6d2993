#include "pages/DocumentBuilder.h"

#include <algorithm>
#include <utility>

#include "core/RuntimeError.h"
#include "pages/Measure.h"

namespace norvane::pages {
namespace {

float Points(std::string_view measure) {
  return static_cast<float>(PointsOf(measure));
}

}  // namespace

void DocumentBuilder::Clear() {
  document_.reset();
  table_.reset();
  open_ = false;
  alignment_ = Alignment::Left;
  font_ = kBodyFont;
  ++revision_;
}

void DocumentBuilder::SetPageSetting(int setting) {
  if (setting != 1) Raise(ErrorNumber::InvalidProcedureCall);
}

void DocumentBuilder::SetMargins(std::string_view left, std::string_view right, std::string_view top,
                                 std::string_view bottom) {
  margins_ = {PointsOf(left), PointsOf(right), PointsOf(top), PointsOf(bottom)};
}

void DocumentBuilder::StartDocument() {
  Clear();
  document_.emplace().margins = margins_;
  open_ = true;
}

void DocumentBuilder::EndDocument() {
  Open();
  table_.reset();
  open_ = false;
  Ended();
}

void DocumentBuilder::NewPage() {
  Open().elements.emplace_back(PageBreak{});
}

void DocumentBuilder::SetHeader(std::string_view text) {
  Open().header = text;
}

void DocumentBuilder::SetFooter(std::string_view text) {
  Open().footer = text;
}

void DocumentBuilder::SetFontSize(double points) {
  if (!(points > 0)) Raise(ErrorNumber::InvalidProcedureCall);
  font_.size = static_cast<float>(points);
}

void DocumentBuilder::SetFontSize(std::string_view points) {
  SetFontSize(NumberOf(points));
}

void DocumentBuilder::WriteParagraph(std::string_view text) {
  Open().elements.emplace_back(Paragraph{std::string(text), font_, alignment_});
}

void DocumentBuilder::WriteTextBox(std::string_view text, std::string_view left, std::string_view top,
                                   std::string_view width, std::string_view height) {
  Open().elements.emplace_back(
      TextBox{std::string(text), PointsOf(left), PointsOf(top), PointsOf(width), PointsOf(height), font_, alignment_});
}

void DocumentBuilder::FillBox(Fill fill, std::string_view left, std::string_view top, std::string_view width,
                              std::string_view height) {
  Open().elements.emplace_back(FilledBox{{Points(left), Points(top), Points(width), Points(height), fill}});
}

void DocumentBuilder::LinkBox(std::string_view target, std::string_view left, std::string_view top,
                              std::string_view width, std::string_view height) {
  Open().elements.emplace_back(
      LinkedBox{{Points(left), Points(top), Points(width), Points(height), std::string(target)}});
}

void DocumentBuilder::StartTable() {
  Open();
  table_.emplace();
}

void DocumentBuilder::SetTableBorder(TableBorder border) {
  OpenTable().border = border;
}

void DocumentBuilder::AddTable(std::string_view format, std::string_view heading, std::string_view body) {
  Table& table = OpenTable();
  if (table.columns.empty()) {
    table.columns = ReadTableFormat(format);
    table.heading.cells = ReadTableHeading(heading);
  }
  for (std::string_view cells; TakeRow(body, cells);) table.rows.push_back({std::string(cells)});
}

void DocumentBuilder::SetTableRows(int count) {
  Table& table = OpenTable();
  const int rows = std::max(count, 0);
  table.isForm = true;
  table.surplusRows += std::max(static_cast<int>(table.rows.size()) - rows, 0);
  table.rows.resize(static_cast<std::size_t>(rows));
}

void DocumentBuilder::SetTableRowHeight(int row, std::string_view height) {
  const float points = Points(height);
  if (TableRow* found = Row(row)) found->height = points;
}

void DocumentBuilder::SetTableBold(int firstRow, int firstColumn, int lastRow, int lastColumn) {
  Table& table = OpenTable();
  table.bold.push_back({firstRow, firstColumn, std::min(lastRow, static_cast<int>(table.rows.size())), lastColumn});
}

void DocumentBuilder::EndTable() {
  Table& table = OpenTable();
  table.font = font_;
  table.alignment = alignment_;
  if (!table.columns.empty()) Open().elements.emplace_back(std::move(table));
  table_.reset();
}

Document& DocumentBuilder::Open() {
  if (!open_) Raise(ErrorNumber::InvalidProcedureCall);
  ++revision_;
  return *document_;
}

Table& DocumentBuilder::OpenTable() {
  if (!table_) Raise(ErrorNumber::InvalidProcedureCall);
  return *table_;
}

TableRow* DocumentBuilder::Row(int row) {
  Table& table = OpenTable();
  if (row == 0) return &table.heading;
  if (row < 0 || static_cast<std::size_t>(row) > table.rows.size()) return nullptr;
  return &table.rows[static_cast<std::size_t>(row) - 1];
}

}  // namespace norvane::pages
