#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>
#include <string_view>

#include "core/RuntimeError.h"

namespace norvane::store {

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using DatabaseHandle = std::unique_ptr<sqlite3, CloseDatabase>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// The store's error for a code of SQLite; `file` is the name that the texts show.
RuntimeError ErrorOf(int code, const std::string& file);

/// Whether the last statement was refused because its expressions are nested deeper than SQLite reads.
bool IsTooDeep(sqlite3* database);

/// Raises what ErrorOf gives, and that the query is too complex if it is too deep.
StatementHandle Prepare(sqlite3* database, const std::string& sql, const std::string& file);
/// True on a row, False at the end. Raises what ErrorOf gives.
bool Step(sqlite3_stmt* statement, const std::string& file);
/// Valid until the next step.
std::string_view ColumnText(sqlite3_stmt* statement, int column);

}  // namespace norvane::store
