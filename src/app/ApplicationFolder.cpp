#include "app/ApplicationFolder.h"

#include <optional>
#include <string>

#include <QDate>
#include <QStandardPaths>
#include <QString>

#include "core/FileNames.h"
#include "core/WholeFile.h"
#include "sample/Sample.h"
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

/// Creates the folder whole or not at all, so that the next start can repeat what failed at the first. `write` writes
/// the database of the delivered one and returns whether it could. A missing file is reported when the database is
/// opened.
template <class Write>
void MakeFolder(const fs::path& folder, Write write) {
  std::error_code failed;
  const fs::path delivered = DeliveredDatabase();
  if (fs::exists(folder, failed) || delivered.empty()) return;
  fs::path unfinished = folder;
  unfinished += ".new";
  fs::create_directories(folder.parent_path(), failed);
  fs::remove_all(unfinished, failed);
  fs::create_directory(unfinished, failed);
  fs::permissions(unfinished, fs::perms::owner_all, failed);
  fs::create_directory_symlink(delivered.parent_path() / kHelpFolder, unfinished / kHelpFolder, failed);
  // The first places of the windows; without them the screens have their own.
  if (const auto places = ReadWholeFile(delivered.parent_path() / kSettingsFile)) {
    WriteFileAtomically(unfinished / kSettingsFile, *places);
  }
  if (write(delivered, unfinished / kDatabaseFile)) {
    fs::rename(unfinished, folder, failed);
    SynchronizeFolder(folder.parent_path());
  } else {
    fs::remove_all(unfinished, failed);
  }
}

bool CopyDatabase(const fs::path& delivered, const fs::path& target) {
  const std::optional<std::string> database = ReadWholeFile(delivered);
  return database && WriteFileAtomically(target, *database);
}

bool WriteSampleDatabase(const fs::path& delivered, const fs::path& target) {
  const auto today = static_cast<sample::Day>(ui::FromQt(QDate::currentDate()).Day());
  try {
    sample::WriteSample(delivered, target, {.size = {}, .seed = 1, .today = today});
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

fs::path OwnFolder() {
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

bool HasBeenWorkedIn(const fs::path& folder) {
  std::error_code failed;
  return fs::exists(folder / kDatabaseFile, failed) || fs::exists(folder / kSettingsFile, failed);
}

}  // namespace

std::optional<fs::path> ApplicationFolder(const char* executable, const std::function<FirstStart()>& choose) {
  const fs::path beside = FolderOf(executable);
  if (HasBeenWorkedIn(beside)) return beside;
  const fs::path own = OwnFolder();
  std::error_code failed;
  if (fs::exists(own, failed) || DeliveredDatabase().empty()) return own;
  const FirstStart chosen = choose();
  if (chosen == FirstStart::Quit) return std::nullopt;
  if (chosen == FirstStart::Sample) return SampleFolder();
  MakeFolder(own, CopyDatabase);
  return own;
}

fs::path SampleFolder() {
  fs::path folder = OwnFolder();
  folder += "-sample";
  MakeFolder(folder, WriteSampleDatabase);
  return folder;
}

}  // namespace norvane
