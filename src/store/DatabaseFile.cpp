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
#include "store/internal/Workshop.h"

namespace norvane {

using namespace store;

namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerAlone = 0600;

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
    if (!copy.IsSound()) throw error::UnrecognizedDatabase(target.string());
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
    if (!shop.IsSound()) {
      shop.Run("REINDEX");
      if (!shop.IsSound()) throw error::UnrecognizedDatabase(file.string());
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
