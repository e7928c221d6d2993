#include "store/DatabaseFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <functional>
#include <string_view>
#include <unistd.h>

#include "core/FileReplacement.h"
#include "core/FileSystem.h"
#include "core/Trap.h"
#include "core/WholeFile.h"
#include "store/Engine.h"
#include "store/internal/EngineState.h"
#include "store/internal/Journal.h"
#include "store/internal/Sqlite.h"
#include "store/internal/StoreError.h"

namespace norvane {

using namespace store;

namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerAlone = 0600;
constexpr int kStepsBetweenReports = 10'000;

/// What repair and compaction raise for what SQLite refused last.
RuntimeError MaintenanceError(sqlite3* database, const std::string& file) {
  switch (sqlite3_errcode(database)) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return error::CouldNotUse(file);
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_CONSTRAINT:  // two rows under one key
      return error::UnrecognizedDatabase(file);
    default:
      return LastError(database, file);
  }
}

/// A full disk has a number of its own here.
void WatchingForSpace(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    if (error.Number() == static_cast<std::int32_t>(ErrorNumber::DiskFull)) throw error::NotEnoughSpace();
    throw;
  }
}

/// An open database file under repair or compaction.
class Workshop {
 public:
  Workshop(const fs::path& file, std::chrono::milliseconds patience, const Progress& progress = {})
      : name_(file.string()), progress_(progress) {
    if (!FileExists(file)) throw error::CouldNotFind(name_);
    if (FileSystemSize(file) == 0) throw error::UnrecognizedDatabase(name_);
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(fs::absolute(file).c_str(), &opened, kFlags, nullptr);
    database_.reset(opened);
    if (code != SQLITE_OK) throw MaintenanceError(opened, name_);
    sqlite3_busy_timeout(opened, static_cast<int>(patience.count()));
    size_ = static_cast<double>(FileSystemSize(file));
    if (progress_) sqlite3_progress_handler(opened, kStepsBetweenReports, &Workshop::Report, this);
  }
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;

  void Run(const std::string& sql) {
    if (sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
      throw MaintenanceError(database_.get(), name_);
    }
  }

  /// The first cell of what a query gives.
  std::string Cell(const std::string& sql) {
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &prepared, nullptr);
    const StatementHandle statement(prepared);
    if (code != SQLITE_OK) throw MaintenanceError(database_.get(), name_);
    const int stepped = sqlite3_step(prepared);
    if (stepped == SQLITE_DONE) return "";
    if (stepped != SQLITE_ROW) throw MaintenanceError(database_.get(), name_);
    return std::string(ColumnText(prepared, 0));
  }

 private:
  static constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;

  static std::uintmax_t FileSystemSize(const fs::path& file) {
    std::error_code failed;
    const std::uintmax_t size = fs::file_size(file, failed);
    return failed ? 0 : size;
  }

  /// All work here reads the file from one end to the other, so what was read is what is done.
  static int Report(void* context) {
    const auto& self = *static_cast<Workshop*>(context);
    int pages = 0;
    int ignored = 0;
    sqlite3_db_status(self.database_.get(), SQLITE_DBSTATUS_CACHE_MISS, &pages, &ignored, 0);
    self.progress_(std::min(1.0, pages * kPageSize / self.size_));
    return 0;
  }
  static constexpr double kPageSize = 4096;

  std::string name_;
  Progress progress_;
  double size_ = 1;
  DatabaseHandle database_;
};

/// Whether the file passes the check and holds tables of this system.
bool IsSound(Workshop& shop) {
  return shop.Cell("PRAGMA integrity_check(1)") == "ok" &&
         shop.Cell("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name LIKE 'tb\\_%' ESCAPE '\\'") != "0";
}

std::unique_ptr<SoleUse> HoldAlone(Engine& engine, const fs::path& file, const RuntimeError& inUse) {
  auto use = engine.HoldAlone(file);
  if (!use) throw inUse;
  return use;
}

std::string Literal(const fs::path& file) {
  std::string text = "'";
  for (const char c : file.string()) text += c == '\'' ? std::string("''") : std::string(1, c);
  return text += "'";
}

void WriteCompacted(Workshop& source, const fs::path& target) {
  FileReplacement compacted(target, kOwnerAlone);
  const NoJournal noJournal(compacted.Unfinished());
  // The file is brought onto the disk as a whole.
  source.Run("PRAGMA synchronous = off");
  source.Run("VACUUM INTO " + Literal(compacted.Unfinished()));
  {
    Workshop copy(compacted.Unfinished(), {});
    if (!IsSound(copy)) throw error::UnrecognizedDatabase(target.string());
  }
  PutInPlace(compacted);
}

}  // namespace

void RequireDatabase(const fs::path& file) {
  constexpr std::string_view kMagic("SQLite format 3\0", 16);
  std::array<char, kMagic.size()> start = {};
  if (!FileExists(Located(file))) Raise(ErrorNumber::FileNotFound);
  std::ifstream(Located(file), std::ios::binary).read(start.data(), start.size());
  if (std::string_view(start.data(), start.size()) != kMagic) throw error::UnrecognizedDatabase(file.string());
}

void RollBackJournal(const fs::path& file) {
  const fs::path located = Located(file);
  if (!FileExists(JournalOf(located))) return;
  IgnoringErrors([&] { Workshop(located, {}).Cell("PRAGMA schema_version"); });
}

void CopyDatabase(Engine& engine, const fs::path& source, const fs::path& target, const Progress& progress) {
  DatabaseCopy(engine, source, target).CopyRest(progress);
}

void DeleteDatabase(Engine& engine, const fs::path& file) {
  const fs::path located = Located(file);
  if (!FileExists(located)) Raise(ErrorNumber::FileNotFound);
  const auto use = HoldAlone(engine, located, RuntimeError(ErrorNumber::PermissionDenied));
  if (::unlink(located.c_str()) != 0) RaiseFileError(errno, ErrorNumber::FileNotFound);
  ::unlink(JournalOf(located).c_str());
  SynchronizeFolder(located.parent_path());
}

// Nothing is written while the file may still turn out to be beyond repair.
void RepairDatabase(Engine& engine, const fs::path& file, const Progress& progress) {
  const fs::path located = Located(file);
  const auto use = HoldAlone(engine, located, error::CouldNotUse(file.string()));
  Workshop shop(located, engine.Internals().patience, progress);
  WatchingForSpace([&] {
    shop.Run("BEGIN EXCLUSIVE");
    if (!IsSound(shop)) {
      shop.Run("REINDEX");
      if (!IsSound(shop)) throw error::UnrecognizedDatabase(file.string());
    }
    shop.Run("COMMIT");
  });
}

void CompactDatabase(Engine& engine, const fs::path& source, const fs::path& target, const Progress& progress) {
  const fs::path located = Located(source);
  const auto use = HoldAlone(engine, located, error::CouldNotUse(source.string()));
  Workshop shop(located, engine.Internals().patience, progress);
  std::error_code failed;
  if (fs::exists(fs::symlink_status(Located(target), failed))) throw error::DatabaseExists();
  WatchingForSpace([&] { WriteCompacted(shop, target); });
}

}  // namespace norvane
