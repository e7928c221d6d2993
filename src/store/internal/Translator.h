#pragma once

#include <string>
#include <vector>

#include "store/internal/Catalog.h"
#include "store/internal/Lexer.h"
#include "store/internal/Syntax.h"

namespace norvane::store {

/// How a literal goes into its parameter.
enum class BindAs {
  Number,  ///< compared with numbers: as it is
  Money,   ///< compared with money: in ten-thousandths, with whatever fraction of one it has
  // Stored in a column, converted to its type.
  Long,
  Double,
  Currency,
  Date,
  Boolean,
  Text,
};

/// The parameter ?n of a translation, n counted from 1 by its place.
struct Binding {
  int literal = 0;
  bool negative = false;
  BindAs as = BindAs::Text;
};

/// A statement of the store's dialect in SQLite's.
struct Translation {
  std::string sql;
  std::vector<Binding> bindings;
  std::vector<ResultColumn> columns;  ///< none if the statement changes rows
  /// The insert skips a row whose key is there already, so no change means a duplicate.
  bool mustChange = false;

  /// The one table whose rows these are, if they can be changed in place.
  std::string table;
  std::vector<std::string> tableColumns;  ///< the table's column of each result column
  std::vector<std::size_t> key;           ///< the result columns that are its key
};

/// Raises -2147217865 for an unknown table, -2147217904 for an unknown column, -2147217913 for operands of types that
/// do not meet, -2147217900 for what makes no statement.
Translation Translate(const syntax::Statement& statement, const Lexed& lexed, const Catalog& catalog);

}  // namespace norvane::store
