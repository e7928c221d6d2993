#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "store/DatabaseCopy.h"
#include "store/Engine.h"
#include "store/internal/Sqlite.h"

namespace norvane::store {

/// An open database file under repair, compaction or in the making; its errors are theirs.
class Workshop {
 public:
  /// Raises 3024 without the file, 3343 for an empty one.
  Workshop(const std::filesystem::path& file, std::chrono::milliseconds patience, const Progress& progress = {});
  /// A new one, in an empty file.
  static Workshop Make(const std::filesystem::path& file) { return Workshop(file); }
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;

  sqlite3* Database() const { return database_.get(); }
  const std::string& Name() const { return name_; }
  void Run(const std::string& sql);
  /// The first cell of what a query gives.
  std::string Cell(const std::string& sql);
  /// Whether the file passes the check and holds tables of this system.
  bool IsSound();

 private:
  explicit Workshop(const std::filesystem::path& file);
  void Open(const std::filesystem::path& file);
  static int Report(void* context);

  std::string name_;
  Progress progress_;
  double size_ = 1;
  DatabaseHandle database_;
};

/// Runs work with which a full disk has a number of its own, 3026.
void WatchingForSpace(const std::function<void()>& work);

/// Raises `inUse` if the file can't be had alone.
std::unique_ptr<SoleUse> HoldAlone(Engine& engine, const std::filesystem::path& file, const RuntimeError& inUse);

}  // namespace norvane::store
