#include "store/internal/SourceFile.h"

#include <chrono>
#include <thread>

#include "core/FileSystem.h"
#include "store/internal/Journal.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kBetweenAttempts(10);

}  // namespace

SourceFile::SourceFile(const fs::path& file, std::chrono::milliseconds patience)
    : path_(fs::absolute(file)), patience_(patience) {
  if (!FileExists(path_)) Raise(ErrorNumber::FileNotFound);
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(path_.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
  database_.reset(opened);
  if (code != SQLITE_OK) Raise(ErrorNumber::PermissionDenied);
  sqlite3_file_control(opened, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&bytes_));
}

// Where the file system has no locks the file is read without one.
void SourceFile::Lock() {
  const auto start = std::chrono::steady_clock::now();
  while (File().pMethods->xLock(&File(), SQLITE_LOCK_SHARED) == SQLITE_BUSY) {
    if (std::chrono::steady_clock::now() - start >= patience_) Raise(ErrorNumber::PermissionDenied);
    std::this_thread::sleep_for(kBetweenAttempts);
  }
}

void SourceFile::Unlock() {
  File().pMethods->xUnlock(&File(), SQLITE_LOCK_NONE);
}

std::uint64_t SourceFile::Size() {
  sqlite3_int64 size = 0;
  if (File().pMethods->xFileSize(&File(), &size) != SQLITE_OK) throw error::DiskOrNetwork();
  return static_cast<std::uint64_t>(size);
}

void SourceFile::Read(std::uint64_t offset, std::span<std::byte> bytes) {
  const int code =
      File().pMethods->xRead(&File(), bytes.data(), static_cast<int>(bytes.size()), static_cast<sqlite3_int64>(offset));
  if (code != SQLITE_OK) throw error::DiskOrNetwork();
}

std::optional<fs::path> SourceFile::Journal() {
  int isWriting = 0;
  File().pMethods->xCheckReservedLock(&File(), &isWriting);
  if (isWriting || !FileExists(JournalOf(path_))) return std::nullopt;
  return JournalOf(path_);
}

}  // namespace norvane::store
