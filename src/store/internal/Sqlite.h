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

/// The store's error for what SQLite refused last on that database; `file` is the name that the texts show.
RuntimeError LastError(sqlite3* database, const std::string& file);

/// Raises LastError, as the next one does.
StatementHandle Prepare(sqlite3* database, const std::string& sql, const std::string& file);
/// True on a row, False at the end.
bool Step(sqlite3_stmt* statement, const std::string& file);
/// Valid until the next step.
std::string_view ColumnText(sqlite3_stmt* statement, int column);

}  // namespace norvane::store
