#include "app/ApplicationFolder.h"

#include <string>

#include <QStandardPaths>
#include <QString>

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDatabase = "norvane.mdb";
constexpr const char* kHelp = "help";

fs::path ToPath(const QString& path) {
  return {path.toStdU16String()};
}

fs::path FolderOf(const char* executable) {
  const fs::path started(executable);
  if (started.has_parent_path()) return fs::absolute(started).lexically_normal().parent_path();
  return ToPath(QStandardPaths::findExecutable(QString::fromLocal8Bit(executable))).parent_path();
}

/// The database as it was installed; empty if there is none.
fs::path DeliveredDatabase() {
  return ToPath(QStandardPaths::locate(QStandardPaths::AppDataLocation, kDatabase));
}

void MakeOwnFolder(const fs::path& folder) {
  const fs::path delivered = DeliveredDatabase();
  std::error_code failed;  // a database that is missing is reported when it is opened
  fs::create_directories(folder, failed);
  fs::permissions(folder, fs::perms::owner_all, failed);
  if (delivered.empty()) return;
  fs::copy_file(delivered, folder / kDatabase, failed);
  fs::permissions(folder / kDatabase, fs::perms::owner_read | fs::perms::owner_write, failed);
  fs::create_directory_symlink(delivered.parent_path() / kHelp, folder / kHelp, failed);
}

}  // namespace

fs::path ApplicationFolder(const char* executable) {
  const fs::path beside = FolderOf(executable);
  if (fs::exists(beside / kDatabase)) return beside;
  const fs::path own = ToPath(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  if (!fs::exists(own)) MakeOwnFolder(own);
  return own;
}

}  // namespace norvane
