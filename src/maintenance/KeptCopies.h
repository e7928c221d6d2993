#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/RuntimeError.h"
#include "store/DatabaseCopy.h"

namespace norvane {

class Program;

// Copies of the database that the program keeps without being asked, in a folder beside it. Each is in a subfolder
// named after its date, time and reason, so that it is restored by choosing that folder. The last 20 and the last of
// each month are kept. A copy that fails stops nothing: the main screen's status bar says so.

inline constexpr const char* kCopiesFolder = "Copies";

// The reasons, as the names of the subfolders give them.
inline constexpr std::string_view kFirstStart = "first start";
inline constexpr std::string_view kBeforeRestore = "before restore";
inline constexpr std::string_view kBeforeCompaction = "before compaction";
inline constexpr std::string_view kBeforeDeletion = "before deletion";
inline constexpr std::string_view kBeforeRemoval = "before removal";

/// Keeps a copy now. A missing database gives none, and is no failure.
void KeepCopy(Program& program, std::string_view reason);

/// Whether there is a database, and no copy of it from today for that reason.
bool NeedsCopyOfToday(const Program& program, std::string_view reason);

/// A copy on its way into its subfolder, which goes again if the copy fails. Raises as a DatabaseCopy does.
class KeptCopy {
 public:
  KeptCopy(Program& program, std::string_view reason);
  ~KeptCopy();
  KeptCopy(const KeptCopy&) = delete;
  KeptCopy& operator=(const KeptCopy&) = delete;

  /// Copies the rest at once.
  void Complete(const Progress& progress);
  /// Copies a little. True when the copy is complete.
  bool CopySlice();
  double Done() const { return copy_->Done(); }

 private:
  std::filesystem::path copies_;
  std::filesystem::path folder_;
  std::unique_ptr<DatabaseCopy> copy_;
};

/// Says in the main screen's status bar that there is no copy, and why.
void SayNoCopyKept(Program& program, const RuntimeError& error);

/// Deletes the copies that are no longer to be kept. Folders that hold anything else stay.
void DiscardOldCopies(const std::filesystem::path& copies);

}  // namespace norvane
