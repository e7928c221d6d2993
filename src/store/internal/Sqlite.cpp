#include "store/internal/Sqlite.h"

#include "store/internal/StoreError.h"

namespace norvane::store {

RuntimeError ErrorOf(int code, const std::string& file) {
  if (code == SQLITE_CONSTRAINT_NOTNULL) return error::NullKey();
  switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
      return error::DuplicateKey();
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return error::FileInUse(file);
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
      return error::ReadOnly();
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return error::UnrecognizedFormat(file);
    case SQLITE_FULL:
      return RuntimeError(ErrorNumber::DiskFull);
    case SQLITE_IOERR:
      return error::DiskOrNetwork();
    case SQLITE_ERROR:
      return error::IncompleteClause();
    default:
      return error::TooComplex();
  }
}

bool IsTooDeep(sqlite3* database) {
  return std::string_view(sqlite3_errmsg(database)) == "parser stack overflow";
}

StatementHandle Prepare(sqlite3* database, const std::string& sql, const std::string& file) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(database, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, nullptr);
  if (code != SQLITE_OK && IsTooDeep(database)) throw error::TooComplex();
  if (code != SQLITE_OK) throw ErrorOf(sqlite3_extended_errcode(database), file);
  return StatementHandle(statement);
}

bool Step(sqlite3_stmt* statement, const std::string& file) {
  const int code = sqlite3_step(statement);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  // The one thing that a statement which could be prepared trips over by itself is a sum that leaves its range.
  if ((code & 0xFF) == SQLITE_ERROR) throw RuntimeError(ErrorNumber::Overflow);
  throw ErrorOf(sqlite3_extended_errcode(sqlite3_db_handle(statement)), file);
}

std::string_view ColumnText(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
              : std::string_view();
}

}  // namespace norvane::store
