#pragma once

#include <chrono>
#include <filesystem>

#include "store/internal/Sqlite.h"

namespace norvane {
class FileReplacement;
}

namespace norvane::store {

/// The file beside a database in which the store keeps what it needs to undo a change that is not complete.
std::filesystem::path JournalOf(const std::filesystem::path& database);

/// Keeps an unfinished database from finding a journal that isn't its own, and leaves none.
class NoJournal {
 public:
  explicit NoJournal(const std::filesystem::path& database);
  ~NoJournal();
  NoJournal(const NoJournal&) = delete;
  NoJournal& operator=(const NoJournal&) = delete;

 private:
  std::filesystem::path journal_;
};

/// Undoes what a crash left incomplete in a database and, as long as the result is open, keeps every other program out.
/// Raises 70 if one is at work. A file that the store can't read has no users.
DatabaseHandle KeepOthersOut(const std::filesystem::path& database, std::chrono::milliseconds patience);

/// Gives a finished database its name. A journal of the file that had the name goes: it would change the new one.
void PutInPlace(FileReplacement& database);

}  // namespace norvane::store
