#pragma once

#include <filesystem>
#include <string>
#include <vector>

struct sqlite3;

namespace norvane::test {

/// The delivered database in a temporary folder of its own, which goes with this object.
///
/// The program under test works on File() through the store. A test looks at the tables and fills them from beside, in
/// SQLite's own dialect: money in ten-thousandths, dates as day numbers, Booleans -1 and 0. No connection of this
/// object stays open between calls.
class Database {
 public:
  Database();
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  const std::filesystem::path& Folder() const { return folder_; }
  std::filesystem::path File() const { return folder_ / "norvane.mdb"; }

  /// Runs statements, several with semicolons between them, as one transaction. Throws std::runtime_error with the
  /// reason.
  void Execute(const std::string& statements);
  /// The rows of a query, each as its cells joined with "|"; a Null reads as NULL.
  std::vector<std::string> Rows(const std::string& query);
  /// The first cell of a query, as Rows gives it; empty without a row.
  std::string Cell(const std::string& query);
  /// Empties every table, the delivered rows included.
  void Clear();

 private:
  std::filesystem::path folder_;
};

/// Another program at work on the file, from its making until its end.
class OtherUser {
 public:
  /// Writing lets others read but not write; Locking lets nobody do anything.
  enum class Work { Writing, Locking };
  OtherUser(const Database& database, Work work);
  ~OtherUser();
  OtherUser(const OtherUser&) = delete;
  OtherUser& operator=(const OtherUser&) = delete;

 private:
  sqlite3* connection_ = nullptr;
};

}  // namespace norvane::test
