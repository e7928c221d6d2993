#include "sample/Database.h"

#include <algorithm>
#include <sqlite3.h>
#include <stdexcept>

namespace norvane::sample {
namespace {

[[noreturn]] void Fail(sqlite3* handle) {
  throw std::runtime_error(sqlite3_errmsg(handle));
}

struct Bind {
  sqlite3_stmt* statement;
  int place;

  int operator()(std::monostate) const { return sqlite3_bind_null(statement, place); }
  int operator()(std::int64_t number) const { return sqlite3_bind_int64(statement, place, number); }
  int operator()(double number) const { return sqlite3_bind_double(statement, place, number); }
  int operator()(const std::string& text) const {
    return sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  }
};

}  // namespace

Database::Database(const std::filesystem::path& file) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) Fail(handle);
}

void Database::Run(const std::string& sql) {
  if (sqlite3_exec(Handle(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail(Handle());
}

void Database::Close::operator()(sqlite3* handle) const {
  sqlite3_close(handle);
}

Inserter::Inserter(Database& database, const std::string& table, const std::string& columns) : database_(database) {
  std::string values = "?";
  for (auto left = std::count(columns.begin(), columns.end(), ','); left > 0; --left) values += ",?";
  const std::string sql = "INSERT INTO " + table + " (" + columns + ") VALUES (" + values + ")";
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database.Handle(), sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) Fail(database.Handle());
  statement_.reset(statement);
}

void Inserter::Add(std::initializer_list<Cell> row) {
  if (static_cast<int>(row.size()) != sqlite3_bind_parameter_count(statement_.get()))
    throw std::logic_error("a row needs a cell for every column");
  int place = 0;
  for (const Cell& cell : row)
    if (std::visit(Bind{statement_.get(), ++place}, cell) != SQLITE_OK) Fail(database_.Handle());
  if (sqlite3_step(statement_.get()) != SQLITE_DONE) Fail(database_.Handle());
  sqlite3_reset(statement_.get());
}

void Inserter::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

}  // namespace norvane::sample
