#include "store/internal/Journal.h"

#include <unistd.h>

#include "core/FileReplacement.h"

namespace norvane::store {

std::filesystem::path JournalOf(const std::filesystem::path& database) {
  return database.string() + "-journal";
}

NoJournal::NoJournal(const std::filesystem::path& database) : journal_(JournalOf(database)) {
  ::unlink(journal_.c_str());
}

NoJournal::~NoJournal() {
  ::unlink(journal_.c_str());
}

DatabaseHandle KeepOthersOut(const std::filesystem::path& database, std::chrono::milliseconds patience) {
  sqlite3* opened = nullptr;
  sqlite3_open_v2(database.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  DatabaseHandle handle(opened);
  sqlite3_busy_timeout(opened, static_cast<int>(patience.count()));
  if (sqlite3_exec(opened, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_BUSY) {
    Raise(ErrorNumber::PermissionDenied);
  }
  return handle;
}

void PutInPlace(FileReplacement& database) {
  ::unlink(JournalOf(database.Target()).c_str());
  database.Commit();
}

}  // namespace norvane::store
