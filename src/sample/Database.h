#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

namespace norvane::sample {

/// Money, a whole count of ten-thousandths, as the store keeps it.
using Money = std::int64_t;
inline constexpr Money kCent = 100;
inline constexpr Money kDollar = 10'000;

/// A cell; Null is the empty alternative. Booleans are -1 and 0, dates are day numbers.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A database file open for one large, single write. Every failure throws std::runtime_error with the store's message.
class Database {
 public:
  explicit Database(const std::filesystem::path& file);
  void Run(const std::string& sql);
  sqlite3* Handle() const { return handle_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* handle) const;
  };
  std::unique_ptr<sqlite3, Close> handle_;
};

/// Adds rows to one table.
class Inserter {
 public:
  /// `columns` is the list as SQL writes it: names with commas between.
  Inserter(Database& database, const std::string& table, const std::string& columns);
  /// One row, a cell for each column.
  void Add(std::initializer_list<Cell> row);

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  Database& database_;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

}  // namespace norvane::sample
