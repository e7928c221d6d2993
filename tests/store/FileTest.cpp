#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/resource.h>

#include "store/StoreTest.h"
#include "store/internal/Sqlite.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

class FileTest : public testing::Test {
 protected:
  FileTest() { engine.WaitForOthers(std::chrono::milliseconds(20)); }

  std::string OpeningError(const fs::path& file) {
    return ErrorOf([&] { ConnectionTo(engine, file.string())->Open(); });
  }

  /// The names of the files beside the database.
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(database.Folder())) names.push_back(entry.path().filename());
    return names;
  }

  static void Run(Connection& connection, const std::string& statement) {
    Recordset().Open(statement, connection, CursorType::Dynamic, LockType::Optimistic);
  }

  test::Database database;
  Engine engine;
};

TEST_F(FileTest, ReportsFilesThatItCannotOpen) {
  const fs::path folder = database.Folder();
  for (const fs::path& none : {folder / "none.mdb", folder / "nowhere" / "norvane.mdb", folder}) {
    EXPECT_EQ(OpeningError(none), "-2147467259 Could not find file '" + none.string() + "'.");
  }
  const fs::path bad = folder / "bad.mdb";
  const std::string unrecognized = "-2147467259 Unrecognized database format '" + bad.string() + "'.";
  for (const std::string& content : {std::string(), std::string("not a database"), std::string(5000, 'x')}) {
    std::ofstream(bad, std::ios::binary) << content;
    EXPECT_EQ(OpeningError(bad), unrecognized);
  }
  EXPECT_THAT(Files(), testing::UnorderedElementsAre("norvane.mdb", "bad.mdb"));
  EXPECT_EQ(engine.OpenConnections(bad), 0);

  fs::copy_file(database.File(), bad, fs::copy_options::overwrite_existing);
  fs::resize_file(bad, 8192);
  auto connection = ConnectionTo(engine, bad.string());
  EXPECT_EQ(ErrorOf([&] {
              connection->Open();
              Run(*connection, "select * from tb_GL");
            }),
            unrecognized);
}

TEST_F(FileTest, ReportsAFileThatAnotherHolds) {
  const std::string inUse = "-2147467259 Could not use '" + database.File().string() + "'; file already in use.";
  auto connection = ConnectionTo(engine, database.File().string());
  {
    const test::OtherUser other(database, test::OtherUser::Work::Locking);
    EXPECT_EQ(OpeningError(database.File()), inUse);
  }
  connection->Open();
  {
    const test::OtherUser other(database, test::OtherUser::Work::Writing);
    EXPECT_EQ(ErrorOf([&] { Run(*connection, "select * from tb_GL"); }), "");
    EXPECT_EQ(ErrorOf([&] { Run(*connection, "delete * from tb_GL"); }), inUse);
  }
  EXPECT_EQ(ErrorOf([&] { Run(*connection, "delete * from tb_GL"); }), "");
}

TEST_F(FileTest, HoldsAFileAloneOnlyWhileNoProgramHasAConnection) {
  const std::string inUse = "-2147467259 Could not use '" + database.File().string() + "'; file already in use.";
  Engine otherProgram;
  for (Engine* each : {&engine, &otherProgram}) {
    const auto connection = ConnectionTo(*each, database.File().string());
    connection->Open();
    EXPECT_FALSE(engine.HoldAlone(database.File()));
    connection->Close();
    const auto held = otherProgram.HoldAlone(database.File());
    EXPECT_TRUE(held);
    EXPECT_FALSE(engine.HoldAlone(database.File()));
    EXPECT_EQ(OpeningError(database.File()), inUse);
    EXPECT_EQ(ErrorOf([&] { ConnectionTo(otherProgram, database.File().string())->Open(); }), inUse);
  }
  EXPECT_EQ(OpeningError(database.File()), "");
  EXPECT_TRUE(engine.HoldAlone(database.Folder() / "none.mdb"));
}

/// An inode is given out again at once, so a new file may have that of the one it replaces.
TEST_F(FileTest, KnowsNothingOfTheFileThatAnotherReplaced) {
  auto connection = ConnectionTo(engine, database.File().string());
  connection->Open();
  Run(*connection, "select * from tb_GL");
  connection->Close();
  const std::string version = database.Cell("pragma schema_version");
  fs::remove(database.File());
  sqlite3* made = nullptr;
  ASSERT_EQ(sqlite3_open(database.File().c_str(), &made), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(made, ("create table Own (Number); pragma schema_version = " + version).c_str(), nullptr,
                         nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(made);
  connection->Open();
  EXPECT_EQ(ErrorOf([&] { Run(*connection, "select * from Own"); }), "");
}

TEST_F(FileTest, ReadsAReadOnlyFileAndRefusesToChangeIt) {
  fs::permissions(database.File(), fs::perms::owner_read);
  auto connection = ConnectionTo(engine, database.File().string());
  connection->Open();
  Recordset rows;
  rows.Open("select type from tb_PaymentTypes", *connection, CursorType::ForwardOnly);
  EXPECT_GT(rows.RecordCount(), 0);
  EXPECT_EQ(ErrorOf([&] { Run(*connection, "delete * from tb_PaymentTypes"); }),
            "-2147467259 Cannot update.  Database or object is read-only.");
}

TEST_F(FileTest, LeavesOneFileAndCountsItsConnections) {
  EXPECT_EQ(engine.OpenConnections(database.File()), 0);
  auto one = ConnectionTo(engine, database.File().string());
  auto other = ConnectionTo(engine, (database.Folder() / "." / "NORVANE.mdb").string());
  one->Open();
  other->Open();
  EXPECT_EQ(engine.OpenConnections(database.File()), 2);
  Run(*one, "insert into tb_InvCategories (CatNum, Description) values (2, 'x')");
  other.reset();
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);
  one->Close();
  EXPECT_EQ(engine.OpenConnections(database.File()), 0);
  EXPECT_THAT(Files(), testing::ElementsAre("norvane.mdb"));
  EXPECT_EQ(database.Cell("pragma integrity_check"), "ok");
  EXPECT_EQ(database.Cell("pragma journal_mode"), "delete");
}

/// A program that ended in the middle of a change leaves a journal, from which the first reader restores the file.
TEST_F(FileTest, RollsBackWhatACrashLeft) {
  const fs::path crashed = database.Folder() / "crashed.mdb";
  {
    sqlite3* writer = nullptr;
    ASSERT_EQ(sqlite3_open(database.File().c_str(), &writer), SQLITE_OK);
    const char* halfDone =
        "pragma cache_size = 1; begin; delete from tb_ExpenseTypes;"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 2000)"
        "insert into tb_InvCategories select i + 1, 'half done' from n";
    ASSERT_EQ(sqlite3_exec(writer, halfDone, nullptr, nullptr, nullptr), SQLITE_OK);
    fs::copy_file(database.File(), crashed);
    fs::copy_file(database.File().string() + "-journal", crashed.string() + "-journal");
    sqlite3_close(writer);
  }
  auto connection = ConnectionTo(engine, crashed.string());
  connection->Open();
  Recordset rows;
  rows.Open("select type from tb_ExpenseTypes", *connection, CursorType::ForwardOnly);
  EXPECT_EQ(rows.RecordCount(), 8);
  EXPECT_FALSE(fs::exists(crashed.string() + "-journal"));
}

/// The system refuses to write beyond a limit, as it does on a disk that fails.
TEST_F(FileTest, ReportsADiskThatRefusesToWrite) {
  auto connection = ConnectionTo(engine, database.File().string());
  connection->Open();
  struct rlimit limit = {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const struct rlimit nothing = {0, limit.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &nothing);
  const std::string error = ErrorOf([&] { Run(*connection, "delete * from tb_PaymentTypes"); });
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(error, "-2147467259 Disk or network error.");
}

TEST_F(FileTest, KeepsTheReasonWhyAConnectionIsClosed) {
  auto connection = ConnectionTo(engine, (database.Folder() / "none.mdb").string());
  EXPECT_THROW(connection->Open(), RuntimeError);
  try {
    connection->Use();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 3709);
    EXPECT_THAT(error.Cause(), testing::StartsWith("Could not find file '"));
  }
}

TEST_F(FileTest, ReadsTheTablesAgainWhenTheyChange) {
  auto connection = ConnectionTo(engine, database.File().string());
  connection->Open();
  Run(*connection, "select * from tb_Client");
  connection->Close();
  database.Execute("alter table tb_GL add column Extra currency; drop table tb_Client");
  connection->Open();
  // The query that lacks one of its tables is lost with it, and nothing else.
  for (const std::string gone : {"tb_Client", "ClientBals"}) {
    EXPECT_THAT(ErrorOf([&] { Run(*connection, "select * from " + gone); }),
                testing::HasSubstr("cannot find the input table or query '" + gone + "'"));
  }
  EXPECT_EQ(ErrorOf([&] { Run(*connection, "select Extra from tb_GL"); }), "");
}

}  // namespace
}  // namespace norvane
