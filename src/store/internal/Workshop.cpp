#include "store/internal/Workshop.h"

#include <algorithm>

#include "core/FileSystem.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

namespace fs = std::filesystem;

constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
constexpr int kStepsBetweenReports = 10'000;
constexpr double kPageSize = 4096;

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

std::uintmax_t SizeOf(const fs::path& file) {
  std::error_code failed;
  const std::uintmax_t size = fs::file_size(file, failed);
  return failed ? 0 : size;
}

}  // namespace

Workshop::Workshop(const fs::path& file) : name_(file.string()) {
  Open(file);
}

Workshop::Workshop(const fs::path& file, std::chrono::milliseconds patience, const Progress& progress)
    : name_(file.string()), progress_(progress) {
  if (!FileExists(file)) throw error::CouldNotFind(name_);
  size_ = static_cast<double>(SizeOf(file));
  if (size_ == 0) throw error::UnrecognizedDatabase(name_);
  Open(file);
  sqlite3_busy_timeout(Database(), static_cast<int>(patience.count()));
  if (progress_) sqlite3_progress_handler(Database(), kStepsBetweenReports, &Workshop::Report, this);
}

void Workshop::Open(const fs::path& file) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(fs::absolute(file).c_str(), &opened, kFlags, nullptr);
  database_.reset(opened);
  if (code != SQLITE_OK) throw MaintenanceError(opened, name_);
}

void Workshop::Run(const std::string& sql) {
  if (sqlite3_exec(Database(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw MaintenanceError(Database(), name_);
  }
}

std::string Workshop::Cell(const std::string& sql) {
  sqlite3_stmt* prepared = nullptr;
  const int code = sqlite3_prepare_v2(Database(), sql.c_str(), -1, &prepared, nullptr);
  const StatementHandle statement(prepared);
  if (code != SQLITE_OK) throw MaintenanceError(Database(), name_);
  const int stepped = sqlite3_step(prepared);
  if (stepped == SQLITE_DONE) return "";
  if (stepped != SQLITE_ROW) throw MaintenanceError(Database(), name_);
  return std::string(ColumnText(prepared, 0));
}

bool Workshop::IsSound() {
  return Cell("PRAGMA integrity_check(1)") == "ok" &&
         Cell("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name LIKE 'tb\\_%' ESCAPE '\\'") != "0";
}

/// All work here reads the file from one end to the other, so what was read is what is done.
int Workshop::Report(void* context) {
  const auto& self = *static_cast<Workshop*>(context);
  int pages = 0;
  int ignored = 0;
  sqlite3_db_status(self.Database(), SQLITE_DBSTATUS_CACHE_MISS, &pages, &ignored, 0);
  self.progress_(std::min(1.0, pages * kPageSize / self.size_));
  return 0;
}

void WatchingForSpace(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    if (error.Number() == static_cast<std::int32_t>(ErrorNumber::DiskFull)) throw error::NotEnoughSpace();
    throw;
  }
}

std::unique_ptr<SoleUse> HoldAlone(Engine& engine, const fs::path& file, const RuntimeError& inUse) {
  auto use = engine.HoldAlone(file);
  if (!use) throw inUse;
  return use;
}

}  // namespace norvane::store
