#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Value.h"
#include "core/store/FieldType.h"

struct sqlite3_stmt;

namespace norvane {

/// The rows of a result in memory: sixteen bytes a field, all texts one behind the other in one buffer.
class Rows {
 public:
  explicit Rows(std::vector<ResultColumn> columns) : columns_(std::move(columns)) {}

  const std::vector<ResultColumn>& Columns() const { return columns_; }
  std::vector<ResultColumn>& Columns() { return columns_; }
  /// -1 if there is no such column; in any case of letters.
  int Find(std::string_view name) const;
  std::size_t Count() const { return columns_.empty() ? 0 : cells_.size() / columns_.size(); }

  /// Appends the statement's current row. Raises 6 for a number out of its column's range.
  void Read(sqlite3_stmt* statement);
  /// Appends a row of Nulls.
  void AppendEmpty() { cells_.resize(cells_.size() + columns_.size()); }
  /// `value` must be a Null or of the column's type.
  void Set(std::size_t row, int column, const Value& value);

  bool IsNull(std::size_t row, int column) const { return At(row, column).null; }
  Value Get(std::size_t row, int column) const;
  /// Of a text column.
  std::string_view Text(std::size_t row, int column) const;
  /// Of any other column, whatever its type.
  double Number(std::size_t row, int column) const;
  /// Of a column of Longs, money (in ten-thousandths) or Booleans.
  std::int64_t Whole(std::size_t row, int column) const { return At(row, column).whole; }

 private:
  struct Cell {
    union {
      std::int64_t whole = 0;
      double real;
      std::size_t offset;
    };
    std::uint32_t length = 0;
    bool null = true;
  };
  static_assert(sizeof(Cell) == 16);

  const Cell& At(std::size_t row, int column) const { return cells_[row * columns_.size() + column]; }
  void SetText(Cell& cell, std::string_view text);
  void ReadCell(Cell& cell, FieldType type, sqlite3_stmt* statement, int column);

  std::vector<ResultColumn> columns_;
  std::vector<Cell> cells_;
  std::string texts_;
};

}  // namespace norvane
