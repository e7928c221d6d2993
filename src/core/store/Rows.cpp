#include "core/store/Rows.h"

#include <limits>

#include "core/Characters.h"
#include "core/store/Sqlite.h"

namespace norvane {
namespace {

std::int64_t InLongRange(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    Raise(ErrorNumber::Overflow);
  }
  return value;
}

}  // namespace

int Rows::Find(std::string_view name) const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (EqualNoCase(columns_[i].name, name)) return static_cast<int>(i);
  }
  return -1;
}

void Rows::Read(sqlite3_stmt* statement) {
  const std::size_t first = cells_.size();
  cells_.resize(first + columns_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const int column = static_cast<int>(i);
    if (sqlite3_column_type(statement, column) == SQLITE_NULL) continue;
    ReadCell(cells_[first + i], columns_[i].type, statement, column);
  }
}

void Rows::ReadCell(Cell& cell, FieldType type, sqlite3_stmt* statement, int column) {
  cell.null = false;
  switch (type) {
    case FieldType::Long:
      cell.whole = InLongRange(sqlite3_column_int64(statement, column));
      break;
    case FieldType::Currency:
      cell.whole = sqlite3_column_int64(statement, column);
      break;
    case FieldType::Boolean:
      cell.whole = sqlite3_column_int64(statement, column) != 0;
      break;
    case FieldType::Double:
    case FieldType::Date:
      cell.real = sqlite3_column_double(statement, column);
      break;
    case FieldType::Text:
      SetText(cell, ColumnText(statement, column));
      break;
  }
}

void Rows::SetText(Cell& cell, std::string_view text) {
  cell.offset = texts_.size();
  cell.length = static_cast<std::uint32_t>(text.size());
  texts_ += text;
}

void Rows::Set(std::size_t row, int column, const Value& value) {
  Cell& cell = cells_[row * columns_.size() + column];
  cell.null = norvane::IsNull(value);
  if (const auto* number = std::get_if<std::int32_t>(&value)) cell.whole = *number;
  if (const auto* number = std::get_if<double>(&value)) cell.real = *number;
  if (const auto* amount = std::get_if<Currency>(&value)) cell.whole = amount->TenThousandths();
  if (const auto* date = std::get_if<Date>(&value)) cell.real = date->Serial();
  if (const auto* truth = std::get_if<bool>(&value)) cell.whole = *truth;
  if (const auto* text = std::get_if<std::string>(&value)) SetText(cell, *text);
}

Value Rows::Get(std::size_t row, int column) const {
  const Cell& cell = At(row, column);
  if (cell.null) return Null{};
  switch (columns_[column].type) {
    case FieldType::Long:
      return static_cast<std::int32_t>(cell.whole);
    case FieldType::Double:
      return cell.real;
    case FieldType::Currency:
      return Currency::FromTenThousandths(cell.whole);
    case FieldType::Date:
      return Date(cell.real);
    case FieldType::Boolean:
      return cell.whole != 0;
    case FieldType::Text:
      break;
  }
  return std::string(Text(row, column));
}

std::string_view Rows::Text(std::size_t row, int column) const {
  const Cell& cell = At(row, column);
  return cell.null ? std::string_view() : std::string_view(texts_).substr(cell.offset, cell.length);
}

double Rows::Number(std::size_t row, int column) const {
  const FieldType type = columns_[column].type;
  const Cell& cell = At(row, column);
  return type == FieldType::Double || type == FieldType::Date ? cell.real : static_cast<double>(cell.whole);
}

}  // namespace norvane
