#include "support/Database.h"

#include <cstdlib>
#include <fstream>
#include <memory>
#include <sqlite3.h>
#include <sstream>
#include <stdexcept>

namespace norvane::test {

namespace {

using Connection = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

Connection Open(const std::filesystem::path& file, int flags = SQLITE_OPEN_READWRITE) {
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &connection, flags, nullptr);
  Connection owned(connection, &sqlite3_close);
  if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(connection));
  sqlite3_exec(connection, "pragma synchronous = off", nullptr, nullptr, nullptr);
  return owned;
}

void Run(sqlite3* connection, const std::string& statements) {
  char* reason = nullptr;
  if (sqlite3_exec(connection, statements.c_str(), nullptr, nullptr, &reason) == SQLITE_OK) return;
  const std::string text = reason;
  sqlite3_free(reason);
  throw std::runtime_error(text + " in: " + statements.substr(0, 200));
}

std::string Schema() {
  std::ifstream file(NORVANES_SCHEMA);
  std::stringstream text;
  text << file.rdbuf();
  if (!file || text.str().empty()) throw std::runtime_error("no schema");
  return text.str();
}

std::filesystem::path NewFolder() {
  std::string pattern = std::filesystem::temp_directory_path() / "norvanes-XXXXXX";
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
  return pattern;
}

int AppendRow(void* rows, int count, char** cells, char**) {
  std::string row;
  for (int i = 0; i < count; ++i) row.append(i ? "|" : "").append(cells[i] ? cells[i] : "NULL");
  static_cast<std::vector<std::string>*>(rows)->push_back(row);
  return 0;
}

}  // namespace

Database::Database() : folder_(NewFolder()) {
  const Connection connection = Open(File(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  Run(connection.get(), "begin;" + Schema() + "commit;");
}

Database::~Database() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void Database::Execute(const std::string& statements) {
  Run(Open(File()).get(), "begin;" + statements + ";commit;");
}

std::vector<std::string> Database::Rows(const std::string& query) {
  std::vector<std::string> rows;
  const Connection connection = Open(File());
  char* reason = nullptr;
  if (sqlite3_exec(connection.get(), query.c_str(), AppendRow, &rows, &reason) != SQLITE_OK) {
    const std::string text = reason;
    sqlite3_free(reason);
    throw std::runtime_error(text);
  }
  return rows;
}

std::string Database::Cell(const std::string& query) {
  const std::vector<std::string> rows = Rows(query);
  return rows.empty() ? "" : rows.front().substr(0, rows.front().find('|'));
}

void Database::Clear() {
  for (const std::string& table : Rows("select name from sqlite_master where type = 'table'")) {
    Execute("delete from " + table);
  }
}

OtherUser::OtherUser(const Database& database, Work work) : connection_(Open(database.File()).release()) {
  Run(connection_, work == Work::Writing ? "begin immediate" : "begin exclusive");
}

OtherUser::~OtherUser() {
  sqlite3_close(connection_);
}

}  // namespace norvane::test
