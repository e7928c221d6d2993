#include "pages/TableFormat.h"

#include "core/RuntimeError.h"
#include "pages/Measure.h"

namespace norvane::pages {
namespace {

constexpr char kCellEnd = '|';
constexpr char kRowEnd = ';';

std::string_view TakeUntil(std::string_view& text, char separator) {
  const std::size_t end = text.find(separator);
  const std::string_view taken = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return taken;
}

Alignment TakeAlignment(std::string_view& column) {
  const char prefix = column.empty() ? '\0' : column.front();
  if (prefix != '^' && prefix != '>' && prefix != '<') return Alignment::Left;
  column.remove_prefix(1);
  return prefix == '^' ? Alignment::Centre : prefix == '>' ? Alignment::Right : Alignment::Left;
}

Column ReadColumn(std::string_view text) {
  Column column;
  column.alignment = TakeAlignment(text);
  column.width = PointsOf(text);
  if (column.width <= 0) Raise(ErrorNumber::InvalidProcedureCall);
  return column;
}

}  // namespace

std::vector<Column> ReadTableFormat(std::string_view format) {
  std::string_view rest = TakeUntil(format, kRowEnd);
  std::vector<Column> columns;
  while (!rest.empty()) columns.push_back(ReadColumn(TakeUntil(rest, kCellEnd)));
  return columns;
}

std::string_view ReadTableHeading(std::string_view heading) {
  return TakeUntil(heading, kRowEnd);
}

bool TakeRow(std::string_view& body, std::string_view& cells) {
  if (body.empty()) return false;
  cells = TakeUntil(body, kRowEnd);
  return true;
}

std::string_view TakeCell(std::string_view& cells) {
  return TakeUntil(cells, kCellEnd);
}

}  // namespace norvane::pages
