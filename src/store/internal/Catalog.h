#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/FieldType.h"

struct sqlite3;

namespace norvane::store {

/// A table or a saved query of the file.
struct TableSchema {
  struct Column {
    std::string name;
    FieldType type = FieldType::Text;
  };
  std::string name;
  std::vector<Column> columns;
  std::vector<std::size_t> key;  ///< the columns of the primary key in order
  bool isQuery = false;          ///< can only be read

  /// -1 if there is no such column; in any case of letters.
  int Find(std::string_view column) const;
  bool HasTextKey() const { return !key.empty() && columns[key[0]].type == FieldType::Text; }
};

/// What tables the file holds, with the type that each column was declared with.
class Catalog {
 public:
  /// Leaves out a saved query whose tables are not there. Raises what the file raises when it is read.
  static Catalog Read(sqlite3* database, const std::string& file);
  /// Nothing if there is no such table; in any case of letters.
  const TableSchema* Find(std::string_view table) const;
  const std::vector<TableSchema>& Tables() const { return tables_; }

 private:
  std::vector<TableSchema> tables_;
};

}  // namespace norvane::store
