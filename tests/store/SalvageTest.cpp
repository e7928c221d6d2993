#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <sqlite3.h>
#include <sstream>

#include "StoreTest.h"
#include "sample/Sample.h"
#include "store/Salvage.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPage = 4096;

std::string Content(const fs::path& file) {
  std::stringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

using RowSet = std::map<std::string, std::set<std::string>>;  // by table

int AddRow(void* rows, int count, char** cells, char**) {
  std::string row;
  for (int i = 0; i < count; ++i) row.append(cells[i] ? cells[i] : "NULL").append("|");
  static_cast<std::set<std::string>*>(rows)->insert(row);
  return 0;
}

/// Those of the tables in `like`, of a file that may have none of them.
RowSet RowsIn(const fs::path& file, const RowSet& like) {
  RowSet rows;
  sqlite3* database = nullptr;
  sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
  for (const auto& [table, ignored] : like) {
    sqlite3_exec(database, ("select * from " + table).c_str(), AddRow, &rows[table], nullptr);
  }
  sqlite3_close(database);
  return rows;
}

/// Puts damage as disks, crashes and bad memory leave it into one place. True if whole pages are hit.
bool Damage(std::string& file, std::mt19937& random) {
  const auto below = [&](std::size_t limit) { return random() % limit; };
  const auto garbage = [&](std::size_t place, std::size_t length) {
    for (std::size_t i = place; i < std::min(place + length, file.size()); ++i) file[i] = static_cast<char>(random());
  };
  const std::size_t page = below(file.size() / kPage) * kPage;
  const std::size_t sector = below(file.size() / 512) * 512;
  switch (below(8)) {
    case 0:
      file.replace(page, kPage, kPage, '\0');
      return true;
    case 1:
      garbage(page, kPage);
      return true;
    case 2:  // written to the wrong place
      file.replace(page, kPage, file.substr(below(file.size() / kPage) * kPage, kPage));
      return true;
    case 3:  // cut short
      file.resize(std::max(page, file.size() / 2 / kPage * kPage));
      return true;
    case 4:
      file.replace(sector, 512, 512, '\0');
      return false;
    case 5:
      garbage(sector, 512);
      return false;
    case 6:
      garbage(page, 1 + below(60));  // a page's heading
      return false;
    default:
      garbage(below(file.size()), 1 + below(4));
      return false;
  }
}

/// A business's file, with free pages that hold rows long deleted.
class SalvageTest : public testing::Test {
 protected:
  SalvageTest() {
    RowSet tables;
    for (const std::string& name : database.Rows("select name from sqlite_master where type = 'table'")) tables[name];
    delivered = RowsIn(file, tables);
    fs::rename(file, database.Folder() / "delivered.mdb");
    const sample::Size size{
        .clients = 200, .invoices = 500, .lines = 2000, .items = 60, .payments = 400, .entries = 500};
    sample::WriteSample(database.Folder() / "delivered.mdb", file, {.size = size, .today = 46'000});
    database.Execute(
        "delete from tb_trans where TransNum between 1500 and 1900; delete from tb_GL where TransNum < 1100;"
        "update tb_Client set Notes = hex(zeroblob(5000)) where CustNum = 1100");
    original = RowsIn(file, tables);
    sound = Content(file);
  }

  std::vector<SalvagedTable> Salvage() {
    fs::remove(kept);
    return SalvageDatabase(engine, file, Content(NORVANES_SCHEMA), kept);
  }
  /// What the stock shell's own recovery brings into the tables.
  RowSet RowsOfTheShell() {
    const fs::path recovered = database.Folder() / "recovered";
    fs::remove(recovered);
    // Its dump goes on from a table's other end where it meets damage. Debian's shell is built without more than that.
    const std::string shell = "sqlite3 '" + file.string() + "' .dump 2>/dev/null | sed 's/^ROLLBACK.*/COMMIT;/' | " +
                              "sqlite3 '" + recovered.string() + "' >/dev/null 2>&1";
    if (std::system(shell.c_str()) < 0) ADD_FAILURE() << "no shell";
    return RowsIn(recovered, original);
  }

  Database database;
  Engine engine;
  const fs::path file = database.File();
  const fs::path kept = database.Folder() / "damaged.mdb";
  RowSet delivered, original;
  std::string sound;
};

struct Tally {
  std::size_t right = 0;
  std::size_t wrong = 0;
};

TEST_F(SalvageTest, BringsNoFewerRowsThanTheShellAndNoWrongOnes) {
  const char* asked = std::getenv("NORVANES_DAMAGES");
  const unsigned runs = asked ? std::stoul(asked) : 25;
  std::map<std::string, Tally> sums;
  for (unsigned seed = 1; seed <= runs; ++seed) {
    SCOPED_TRACE("damage " + std::to_string(seed));
    std::mt19937 random(seed);
    std::string bytes = sound;
    bool isByPage = true;
    for (auto places = 1 + random() % 4; places > 0; --places) isByPage &= Damage(bytes, random);
    std::ofstream(file, std::ios::binary) << bytes;
    const RowSet shells = RowsOfTheShell();
    RowSet ours;
    try {
      Salvage();
      ours = RowsIn(file, original);
      EXPECT_EQ(database.Cell("PRAGMA integrity_check"), "ok");
      EXPECT_EQ(Content(kept), bytes);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 3343);
      EXPECT_EQ(Content(file), bytes);
    }
    for (const auto& [table, rows] : original) {
      const auto isRight = [&held = rows](const std::string& row) { return held.contains(row); };
      const auto right = std::ranges::count_if(ours[table], isRight);
      EXPECT_GE(right, std::ranges::count_if(shells.at(table), isRight)) << table;
      for (const std::string& row : ours[table]) {
        if (isRight(row) || delivered[table].contains(row)) continue;
        ++sums["ours"].wrong;
        // A few bytes of a text may have become another text; what is in no index can't show it.
        EXPECT_FALSE(isByPage) << table << ": " << row;
      }
      sums["ours"].right += static_cast<std::size_t>(right);
      sums["shell"].right += static_cast<std::size_t>(std::ranges::count_if(shells.at(table), isRight));
      sums["shell"].wrong += static_cast<std::size_t>(
          std::ranges::count_if(shells.at(table), [&](const std::string& row) { return !isRight(row); }));
    }
  }
  if (!asked) return;
  for (const auto& [who, sum] : sums) std::cout << who << ": " << sum.right << " right, " << sum.wrong << " wrong\n";
}

}  // namespace
}  // namespace norvane::test
