#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sqlite3.h>
#include <sstream>
#include <string>

#include "maintenance/Maintenance.h"
#include "screens/Office.h"

namespace norvane::test {

namespace fs = std::filesystem;

/// The program with this room's screens, and a folder to back up to.
class MaintenanceTest : public Office {
 protected:
  MaintenanceTest() {
    RegisterMaintenance(program);
    program.engine.WaitForOthers(std::chrono::milliseconds(0));
    fs::create_directory(stick);
    desktop.drives = {"/", stick};
    desktop.currentFolder = stick;
    desktop.documentsFolder = database.Folder() / "no documents";
    globals.IniPath = database.Folder() / "norvane.ini";
  }

  static std::string Bytes(const fs::path& file) {
    std::stringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
  }
  static void Put(const fs::path& file, const std::string& bytes) { std::ofstream(file, std::ios::binary) << bytes; }
  /// Every file below the database's folder with its content.
  std::map<std::string, std::string> AllFiles() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(database.Folder())) {
      if (entry.is_regular_file()) files[fs::relative(entry, database.Folder())] = Bytes(entry);
    }
    return files;
  }
  /// Puts the database into a folder as a program leaves it that ends in the middle of a change: with a journal.
  void Crash(const fs::path& folder) const {
    sqlite3* writer = nullptr;
    sqlite3_open(live.c_str(), &writer);
    const char* halfDone =
        "pragma cache_size = 1; begin; delete from tb_ExpenseTypes;"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 2000)"
        "insert into tb_InvCategories select i + 1, 'half done' from n";
    EXPECT_EQ(sqlite3_exec(writer, halfDone, nullptr, nullptr, nullptr), SQLITE_OK);
    for (const char* name : {"norvane.mdb", "norvane.mdb-journal"}) {
      fs::copy_file(database.Folder() / name, folder / name, fs::copy_options::overwrite_existing);
    }
    sqlite3_close(writer);
  }
  static std::vector<std::string> NamesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
  fs::path Copies() const { return database.Folder() / "Copies"; }

  const fs::path live = database.File();
  const fs::path stick = database.Folder() / "stick";
};

}  // namespace norvane::test
