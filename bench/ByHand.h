#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <list>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvane::bench {

/// A bare connection on the SQLite C interface, to compare with. A statement is prepared at its first use and kept.
class ByHand {
 public:
  using Row = std::vector<std::string>;
  using Parameters = std::initializer_list<std::int64_t>;

  explicit ByHand(const std::filesystem::path& file) {
    sqlite3* connection = nullptr;
    sqlite3_open_v2(file.c_str(), &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(connection);
  }

  static std::string Text(sqlite3_stmt* row, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return text ? text : "";
  }

  /// Calls `take` with the statement for each of its rows.
  template <class Take>
  void Each(std::string_view sql, Parameters parameters, Take take) {
    sqlite3_stmt* statement = Prepared(sql);
    int place = 0;
    for (const std::int64_t parameter : parameters) sqlite3_bind_int64(statement, ++place, parameter);
    while (sqlite3_step(statement) == SQLITE_ROW) take(statement);
    sqlite3_reset(statement);
  }
  /// The rows' columns as texts, one row each or all in one list.
  std::vector<Row> Rows(std::string_view sql, Parameters parameters = {}) {
    std::vector<Row> rows;
    Each(sql, parameters, [&](sqlite3_stmt* row) { AppendTo(rows.emplace_back(), row); });
    return rows;
  }
  Row Cells(std::string_view sql, Parameters parameters = {}) {
    Row cells;
    Each(sql, parameters, [&](sqlite3_stmt* row) { AppendTo(cells, row); });
    return cells;
  }

 private:
  static void AppendTo(Row& cells, sqlite3_stmt* row) {
    for (int column = 0; column < sqlite3_column_count(row); ++column) cells.push_back(Text(row, column));
  }

  sqlite3_stmt* Prepared(std::string_view sql) {
    for (const auto& [text, statement] : statements_) {
      if (text == sql) return statement.get();
    }
    sqlite3_stmt* statement = nullptr;
    const auto size = static_cast<int>(sql.size());
    if (sqlite3_prepare_v2(connection_.get(), sql.data(), size, &statement, nullptr) != SQLITE_OK)
      throw std::runtime_error(sqlite3_errmsg(connection_.get()));
    statements_.emplace_back(std::string(sql), Statement(statement, &sqlite3_finalize));
    return statement;
  }

  using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;
  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> connection_{nullptr, &sqlite3_close};
  std::list<std::pair<std::string, Statement>> statements_;
};

}  // namespace norvane::bench
