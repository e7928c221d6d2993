#include "app/ApplicationFolder.h"

#include <optional>
#include <string>

#include <QStandardPaths>
#include <QString>

#include "core/FileNames.h"
#include "core/WholeFile.h"
#include "ui/Convert.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using ui::ToPath;

fs::path FolderOf(const char* executable) {
  const fs::path started(executable);
  if (started.has_parent_path()) return fs::absolute(started).lexically_normal().parent_path();
  return ToPath(QStandardPaths::findExecutable(QString::fromLocal8Bit(executable))).parent_path();
}

/// The database as it was installed; empty if there is none.
fs::path DeliveredDatabase() {
  return ToPath(QStandardPaths::locate(QStandardPaths::AppDataLocation, kDatabaseFile));
}

/// Creates the folder whole or not at all, so that the next start can repeat what failed at the first. A missing file
/// is reported when the database is opened.
void MakeOwnFolder(const fs::path& folder) {
  const fs::path delivered = DeliveredDatabase();
  if (delivered.empty()) return;
  fs::path unfinished = folder;
  unfinished += ".new";
  std::error_code failed;
  fs::create_directories(folder.parent_path(), failed);
  fs::remove_all(unfinished, failed);
  fs::create_directory(unfinished, failed);
  fs::permissions(unfinished, fs::perms::owner_all, failed);
  fs::create_directory_symlink(delivered.parent_path() / kHelpFolder, unfinished / kHelpFolder, failed);
  // The first places of the windows; without them the screens have their own.
  if (const auto places = ReadWholeFile(delivered.parent_path() / kSettingsFile)) {
    WriteFileAtomically(unfinished / kSettingsFile, *places);
  }
  const std::optional<std::string> database = ReadWholeFile(delivered);
  if (database && WriteFileAtomically(unfinished / kDatabaseFile, *database)) {
    fs::rename(unfinished, folder, failed);
    SynchronizeFolder(folder.parent_path());
  } else {
    fs::remove_all(unfinished, failed);
  }
}

bool HasBeenWorkedIn(const fs::path& folder) {
  std::error_code failed;
  return fs::exists(folder / kDatabaseFile, failed) || fs::exists(folder / kSettingsFile, failed);
}

}  // namespace

fs::path ApplicationFolder(const char* executable) {
  const fs::path beside = FolderOf(executable);
  if (HasBeenWorkedIn(beside)) return beside;
  const fs::path own = ToPath(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  std::error_code failed;
  if (!fs::exists(own, failed)) MakeOwnFolder(own);
  return own;
}

}  // namespace norvane
