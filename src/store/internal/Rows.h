#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Value.h"
#include "store/FieldType.h"

struct sqlite3_stmt;

namespace norvane::store {

/// The rows of a result in memory, packed: lists stay in memory as long as the screens that show them.
///
/// A field takes its length and then only the bytes that matter: those of a text, the low ones of a whole
/// number, the high ones of a double. So a list weighs about as much as its texts.
class Rows {
 public:
  explicit Rows(std::vector<ResultColumn> columns) : columns_(std::move(columns)) {}

  const std::vector<ResultColumn>& Columns() const { return columns_; }
  /// -1 if there is no such column; in any case of letters.
  int Find(std::string_view name) const;
  std::size_t Count() const { return starts_.size(); }

  /// Appends the statement's current row. Raises 6 for a number out of its column's range.
  void Read(sqlite3_stmt* statement);
  /// Appends a row of Nulls.
  void AppendEmpty();
  /// Gives a row the values that are there, each a Null or of its column's type.
  void Change(std::size_t row, const std::vector<std::optional<Value>>& values);
  /// Releases the space reserved for more rows.
  void Trim();

  bool IsNull(std::size_t row, int column) const { return !At(row, column).data(); }
  Value Get(std::size_t row, int column) const;
  /// Of a text column.
  std::string_view Text(std::size_t row, int column) const { return At(row, column); }
  /// Of any other column, whatever its type.
  double Number(std::size_t row, int column) const;
  /// Of a column of Longs, money (in ten-thousandths) or Booleans.
  std::int64_t Whole(std::size_t row, int column) const;

 private:
  /// The bytes of a field; a Null has no data.
  std::string_view At(std::size_t row, int column) const;
  void AppendField(FieldType type, sqlite3_stmt* statement, int column);
  void AppendValue(const Value& value);

  std::vector<ResultColumn> columns_;
  std::vector<std::size_t> starts_;  ///< where each row begins
  std::string bytes_;
};

}  // namespace norvane::store
