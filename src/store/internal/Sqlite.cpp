#include "store/internal/Sqlite.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "core/Characters.h"
#include "store/internal/StoreError.h"

namespace norvane::store {

namespace {

/// What the operating system said when SQLite last read or wrote the file, 0 if nothing.
int FileError(sqlite3* database) {
  int error = 0;
  sqlite3_file_control(database, "main", SQLITE_FCNTL_LAST_ERRNO, &error);
  return error;
}

/// A disk that refuses a read gives no bytes to judge, so it is no sign of a damaged file, for which SQLite takes it.
bool IsRefusedRead(int error) {
  return error == EIO || error == ENXIO || error == ERANGE;
}

bool IsNoSpace(int error) {
  return error == ENOSPC || error == EDQUOT;
}

/// Why no file can be made beside the database: SQLite reports one text for all reasons. 0 if one can be made.
int ErrorOfNewFile(const std::string& database) {
  const std::string probe = database + ".probe";
  const int made = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (made < 0) return errno;
  ::close(made);
  ::unlink(probe.c_str());
  return 0;
}

/// A journal that can't be made.
RuntimeError ErrorOfJournal(sqlite3* database, std::string cause) {
  const char* file = sqlite3_db_filename(database, "main");
  const int error = ErrorOfNewFile(file ? file : "");
  if (IsNoSpace(error)) return RuntimeError(ErrorNumber::DiskFull);
  return error == 0 ? error::DiskOrNetwork(std::move(cause)) : error::ReadOnly(std::move(cause));
}

/// What a statement trips over whose tables another program changed after it was translated, or a sum that leaves its
/// range.
RuntimeError ErrorOfStatement(std::string_view message) {
  if (message == "integer overflow") return RuntimeError(ErrorNumber::Overflow);
  if (message == "parser stack overflow") return error::TooComplex();
  if (Take(message, "no such table: ")) return error::UnknownTable(message.substr(message.rfind('.') + 1));
  if (message.starts_with("no such column")) return error::MissingParameter();
  return error::IncompleteClause();
}

}  // namespace

RuntimeError LastError(sqlite3* database, const std::string& file) {
  const int code = sqlite3_extended_errcode(database);
  const std::string message = sqlite3_errmsg(database);
  if (code == SQLITE_CONSTRAINT_NOTNULL) return error::NullKey();
  switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
      return error::DuplicateKey();
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return error::FileInUse(file);
    case SQLITE_CANTOPEN:
      return ErrorOfJournal(database, message);
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return error::ReadOnly(message);
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return IsRefusedRead(FileError(database)) ? error::DiskOrNetwork(message)
                                                : error::UnrecognizedFormat(file, message);
    case SQLITE_FULL:
      return RuntimeError(ErrorNumber::DiskFull);
    case SQLITE_IOERR:
      return IsNoSpace(FileError(database)) ? RuntimeError(ErrorNumber::DiskFull) : error::DiskOrNetwork(message);
    case SQLITE_ERROR:
      return ErrorOfStatement(message);
    default:
      return error::TooComplex();
  }
}

StatementHandle Prepare(sqlite3* database, const std::string& sql, const std::string& file) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(database, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, nullptr);
  if (code != SQLITE_OK) throw LastError(database, file);
  return StatementHandle(statement);
}

bool Step(sqlite3_stmt* statement, const std::string& file) {
  const int code = sqlite3_step(statement);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  throw LastError(sqlite3_db_handle(statement), file);
}

std::string_view ColumnText(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
              : std::string_view();
}

}  // namespace norvane::store
