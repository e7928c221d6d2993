#include "MaintenanceTest.h"
#include "maintenance/frmRestore.h"
#include "screens/clients/Profile.h"
#include "screens/setup/PaymentCategories.h"
#include "screens/setup/frmSetup.h"

namespace norvane::test {
namespace {

class RestoreTest : public MaintenanceTest {
 protected:
  RestoreTest() {
    database.Execute("INSERT INTO tb_PaymentTypes VALUES ('Saved')");
    fs::copy_file(live, stick / "norvane.mdb");
    database.Execute("UPDATE tb_PaymentTypes SET Type = 'Changed' WHERE Type = 'Saved'");
  }
  std::string Marked() { return database.Cell("SELECT Type FROM tb_PaymentTypes WHERE Type IN ('Saved', 'Changed')"); }
  frmRestore& Open() {
    program.screens.Show(frmRestore::kName);
    return The<frmRestore>();
  }
};

TEST_F(RestoreTest, IsPossibleWhereAFolderHoldsABackup) {
  fs::create_directory(stick / "empty");
  fs::create_directory(stick / "both");
  Put(stick / "both" / "NORVANE.mdb", "other");
  Put(stick / "both" / "norvane.mdb", "exact");
  frmRestore& screen = Open();
  EXPECT_TRUE(screen.btnRestore.Enabled());
  screen.Dir1.SetPath((stick / "empty").string());
  EXPECT_FALSE(screen.btnRestore.Enabled());
  screen.Dir1.SetPath((stick / "both").string());
  EXPECT_TRUE(screen.btnRestore.Enabled());
  EXPECT_THAT(screen.File1.Files(), ElementsAre("norvane.mdb", "NORVANE.mdb"));
}

TEST_F(RestoreTest, ReplacesTheDatabaseAndKeepsACopyOfIt) {
  const std::string replaced = Bytes(live);
  Press(Open().btnRestore, "Norvane data restored successfully");
  EXPECT_EQ(Marked(), "Saved");
  EXPECT_TRUE(IsOpen(frmRestore::kName));
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("2026-11-22 14.29.00 before restore"));
  EXPECT_EQ(Bytes(Copies() / "2026-11-22 14.29.00 before restore" / "norvane.mdb"), replaced);
  // From which it is restored by choosing the folder.
  The<frmRestore>().Dir1.SetPath((Copies() / "2026-11-22 14.29.00 before restore").string());
  Press(The<frmRestore>().btnRestore, "Norvane data restored successfully");
  EXPECT_EQ(Marked(), "Changed");
}

TEST_F(RestoreTest, DropsWhatBelongsToTheDatabaseThatWent) {
  StartWithClients();
  Main().mnuClient.Choose();
  Profile& profile = The<Profile>();
  profile.txtLname.UserType("Typed before the restore");
  program.screens.Show(PaymentCategories::kName);
  auto& types = The<PaymentCategories>();
  types.PaymentList.UserClick(1, 1);
  frmRestore& screen = Open();
  globals.RowChanged = true;
  const auto source = Bytes(stick / "norvane.mdb");
  Press(screen.btnRestore, "Norvane data restored successfully");
  EXPECT_FALSE(IsOpen(Profile::kName));
  EXPECT_FALSE(IsOpen(PaymentCategories::kName));
  EXPECT_FALSE(globals.RowChanged);
  EXPECT_EQ(Bytes(live), source) << "nothing is stored by the screens that went";
  EXPECT_EQ(Main().CustList2.Rows(), 4) << "lists keep what they show";
}

TEST_F(RestoreTest, RefusesWithoutTouchingAnything) {
  StartWithClients();
  fs::create_directory(stick / "text");
  Put(stick / "text" / "norvane.mdb", "SQLite format 3, says the text");
  const auto before = AllFiles();
  const auto refuse = [&](const fs::path& folder, const std::string& error) {
    frmRestore& screen = Open();
    screen.Dir1.SetPath(folder.string());
    Press(screen.btnRestore, "frmBackup.btnRestore_Click -");
    EXPECT_EQ(LastBox().text, "frmBackup.btnRestore_Click -" + error + ".");
    EXPECT_EQ(AllFiles(), before);
  };
  refuse(stick / "text", "3343 Unrecognized database format '" + (stick / "text" / "norvane.mdb").string() + "'.");
  refuse(database.Folder(), "70 Permission denied");
  Main().mnuSetup.Choose();
  ASSERT_EQ(Connections(), 1) << "the setup keeps its connection open";
  refuse(stick, "70 Permission denied");
}

/// What a program that ended in the middle of a change left beside its file is undone in the restored one.
TEST_F(RestoreTest, UndoesTheHalfDoneInACopyOfACrashedDatabase) {
  Crash(stick);
  const auto files = NamesIn(stick);
  ASSERT_THAT(files, ElementsAre("norvane.mdb", "norvane.mdb-journal"));
  Press(Open().btnRestore, "Norvane data restored successfully");
  EXPECT_EQ(database.Cell("SELECT count(*) FROM tb_ExpenseTypes"), "8");
  EXPECT_EQ(database.Cell("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(NamesIn(stick), files) << "the source stays as it is";
}

}  // namespace
}  // namespace norvane::test
