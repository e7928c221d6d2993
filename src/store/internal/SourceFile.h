#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "store/internal/Sqlite.h"

namespace norvane::store {

/// A database file that is read as bytes, under the lock that lets others read it but not write. Nothing is made,
/// rolled back or changed by this, and the file may be no database at all.
class SourceFile {
 public:
  /// `patience` is how long a lock waits. Raises 53 if there is no such file, 70 if it can't be read.
  SourceFile(const std::filesystem::path& file, std::chrono::milliseconds patience);
  SourceFile(const SourceFile&) = delete;
  SourceFile& operator=(const SourceFile&) = delete;

  // While it is locked. Raise the store's disk error.
  std::uint64_t Size();
  void Read(std::uint64_t offset, std::span<std::byte> bytes);
  /// The journal that a crash left beside the file; nothing if there is none, or if it is that of a program at work.
  std::optional<std::filesystem::path> Journal();

 private:
  friend class SourceLock;
  void Lock();
  void Unlock();
  sqlite3_file& File() const { return *bytes_; }

  std::filesystem::path path_;
  std::chrono::milliseconds patience_;
  DatabaseHandle database_;
  sqlite3_file* bytes_ = nullptr;
};

/// Holds the file's lock.
class SourceLock {
 public:
  /// Waits for another program that writes. Raises 70 if that goes on for too long.
  explicit SourceLock(SourceFile& file) : file_(file) { file_.Lock(); }
  ~SourceLock() { file_.Unlock(); }
  SourceLock(const SourceLock&) = delete;
  SourceLock& operator=(const SourceLock&) = delete;

 private:
  SourceFile& file_;
};

}  // namespace norvane::store
