#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace norvane::store {

/// A file by what it is, whatever name or link it is reached by. The moment of its birth distinguishes it from one that
/// was deleted and left its inode to it.
struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;
  std::int64_t birth = 0;
  auto operator<=>(const FileIdentity&) const = default;  // NOLINT(modernize-use-nullptr): clang-tidy 14 errs

  /// Nothing if there is no such file.
  static std::optional<FileIdentity> Of(const std::filesystem::path& file);
};

/// A lock on a database file that other instances of the program see, also while no statement runs. It is on a byte
/// that SQLite doesn't lock, leaves no file, and ends with its process.
///
/// Its descriptor is closed only when this process has no connection to the file: the system then drops all locks that
/// the process holds on it, SQLite's among them.
class FileLock {
 public:
  enum class Kind { Shared, Sole };

  FileLock() = default;
  ~FileLock() { Release(); }
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  /// Waits up to `patience` for instances that exclude it. False if one still does then, or if sole use is asked of a
  /// file that can't be written. A file that can't be opened at all, or one on a system that has no such locks, counts
  /// as locked: no other instance can do more.
  bool Take(const std::filesystem::path& file, Kind kind, std::chrono::milliseconds patience);
  void Release();

 private:
  enum class Attempt { Held, Excluded, Replaced, Refused };
  Attempt Try(const std::filesystem::path& file, Kind kind);
  int descriptor_ = -1;
};

}  // namespace norvane::store
