#include "store/Salvage.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

#include "core/FileReplacement.h"
#include "core/FileSystem.h"
#include "core/WholeFile.h"
#include "store/Engine.h"
#include "store/internal/EngineState.h"
#include "store/internal/Journal.h"
#include "store/internal/RowRescue.h"
#include "store/internal/StoreError.h"

namespace norvane {

using namespace store;

namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerAlone = 0600;

/// Takes the indexes away while rows come in, and gives the statements that make them again.
std::vector<std::string> TakeIndexes(Workshop& shop) {
  std::vector<std::string> names;
  std::vector<std::string> statements;
  {
    const StatementHandle indexes = Prepare(
        shop.Database(), "SELECT name, sql FROM sqlite_master WHERE type = 'index' AND sql NOT NULL", shop.Name());
    while (Step(indexes.get(), shop.Name())) {
      names.emplace_back(ColumnText(indexes.get(), 0));
      statements.emplace_back(ColumnText(indexes.get(), 1));
    }
  }
  for (const std::string& name : names) shop.Run("DROP INDEX \"" + name + "\"");
  return statements;
}

std::vector<SalvagedTable> Fill(const fs::path& target, const std::string& schema, const DamagedFile& damaged,
                                const Progress& progress) {
  Workshop shop = Workshop::Make(target);
  // The file is brought onto the disk as a whole.
  shop.Run("PRAGMA synchronous = off; PRAGMA journal_mode = off; PRAGMA locking_mode = exclusive");
  shop.Run("BEGIN;" + schema);
  const std::vector<std::string> indexes = TakeIndexes(shop);
  RowRescue rescue(damaged, shop, progress);
  if (!rescue.TakeRows()) throw error::UnrecognizedDatabase(shop.Name());
  for (const std::string& index : indexes) shop.Run(index);
  std::vector<SalvagedTable> tables = rescue.Count();
  shop.Run("COMMIT");
  if (!shop.IsSound()) throw error::UnrecognizedDatabase(shop.Name());
  return tables;
}

/// Another name for the file; where a file system knows no links, its only one until the new file has its place.
void KeepAs(const fs::path& file, const fs::path& keptAs) {
  if (::link(file.c_str(), keptAs.c_str()) != 0) {
    if (errno == EEXIST) Raise(ErrorNumber::FileAlreadyExists);
    if (::rename(file.c_str(), keptAs.c_str()) != 0) RaiseFileError(errno);
  }
  ::rename(JournalOf(file).c_str(), JournalOf(keptAs).c_str());
  SynchronizeFolder(file.parent_path());
}

}  // namespace

std::vector<SalvagedTable> SalvageDatabase(Engine& engine, const fs::path& file, const std::string& schema,
                                           const fs::path& keptAs, const Progress& progress) {
  const fs::path located = Located(file);
  const auto use = HoldAlone(engine, located, error::CouldNotUse(file.string()));
  std::vector<SalvagedTable> tables;
  WatchingForSpace([&] {
    FileReplacement salvaged(located, kOwnerAlone);
    const NoJournal noJournal(salvaged.Unfinished());
    const DatabaseHandle alone = KeepOthersOut(salvaged.Target(), engine.Internals().patience);
    // Closed last: that ends all locks which the process has on the file.
    const DamagedFile damaged(salvaged.Target());
    tables = Fill(salvaged.Unfinished(), schema, damaged, progress);
    KeepAs(salvaged.Target(), keptAs);
    PutInPlace(salvaged);
  });
  return tables;
}

}  // namespace norvane
