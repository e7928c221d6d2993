#include "MaintenanceTest.h"
#include "core/SettingsFile.h"
#include "maintenance/frmBackup.h"

namespace norvane::test {
namespace {

class BackupTest : public MaintenanceTest {
 protected:
  frmBackup& Open() {
    program.screens.Show(frmBackup::kName);
    return The<frmBackup>();
  }
  void BackUpTo(const std::string& location) {
    frmBackup& screen = Open();
    screen.txtLocation.UserType(location);
    screen.btnBackup.Press();
  }
  std::string Stored() { return GetIniString("Data", "BackUpTo", "", globals.IniPath); }
};

TEST_F(BackupTest, CopiesTheDatabaseAndRemembersTheFolder) {
  Put(stick / "norvane.mdb", "an earlier backup");
  desktop.Expect("Norvane data backed up successfully to " + stick.string());
  BackUpTo(stick);
  EXPECT_EQ(Bytes(stick / "norvane.mdb"), Bytes(live));
  EXPECT_EQ(fs::status(stick / "norvane.mdb").permissions(), fs::perms(0600));
  EXPECT_THAT(NamesIn(stick), ElementsAre("norvane.mdb"));
  EXPECT_EQ(Stored(), stick.string());
  EXPECT_FALSE(IsOpen(frmBackup::kName));

  frmBackup& again = Open();
  EXPECT_EQ(again.Drive1.Drive(), "/") << "whatever drive the folder is on";
  EXPECT_EQ(again.Dir1.Path(), stick);
  EXPECT_EQ(again.txtLocation.Text(), stick.string());
}

TEST_F(BackupTest, AsksBeforeItMakesAFolder) {
  desktop.currentFolder = database.Folder();
  frmBackup& screen = Open();
  EXPECT_EQ(screen.txtLocation.Text(), database.Folder().string()) << "nothing is stored, and the default isn't there";
  screen.txtLocation.UserType("stick/été 2026/");
  Press(screen.btnBackup, "Create Folder (stick/été 2026/)?", Answer::No);
  ExpectQuestion("Path does not exist!");
  EXPECT_TRUE(fs::is_empty(stick));

  ExpectBoxes({});
  desktop.Expect("Create Folder", Answer::Yes);
  desktop.Expect("Norvane data backed up successfully to stick/été 2026/");
  screen.btnBackup.Press();
  EXPECT_EQ(Bytes(stick / "été 2026" / "norvane.mdb"), Bytes(live));
  EXPECT_EQ(Stored(), (stick / "été 2026/").string()) << "found again from any folder";
}

TEST_F(BackupTest, ReportsWhatFailsAndLeavesEverythingAsItWas) {
  const fs::path folder = database.Folder();
  fs::create_directory(stick / "taken");
  fs::create_directory(stick / "taken" / "norvane.mdb");
  fs::create_directory(stick / "old");
  Put(stick / "old" / "norvane.mdb", "read-only");
  fs::permissions(stick / "old" / "norvane.mdb", fs::perms::owner_read);
  fs::create_directory(stick / "link");
  fs::create_symlink(live, stick / "link" / "NORVANE.MDB");
  const auto before = AllFiles();
  const struct {
    std::string location;
    const char* error;
  } cases[] = {{folder, "70 Permission denied."},
               {folder.string() + "/", "70 Permission denied."},
               {stick / "link", "70 Permission denied."},
               {stick / "taken", "70 Permission denied."},
               {stick / "old", "70 Permission denied."},
               {stick / "nowhere" / "below", "76 Path not found."},
               {"", "5 Invalid procedure call or argument."}};
  for (const auto& [location, error] : cases) {
    frmBackup& screen = Open();
    screen.txtLocation.UserType(location);
    if (!fs::exists(location)) desktop.Expect("Create Folder (" + location + ")?", Answer::Yes);
    Press(screen.btnBackup, "frmBackup.btnBackup_Click -");
    EXPECT_EQ(LastBox().text, std::string("frmBackup.btnBackup_Click -") + error);
    EXPECT_TRUE(IsOpen(frmBackup::kName));
  }
  EXPECT_EQ(AllFiles(), before);
}

TEST_F(BackupTest, GoesBackToTheDriveThatCouldBeRead) {
  frmBackup& screen = Open();
  screen.Drive1.SetFocus();
  EXPECT_EQ(screen.Drive1.Drive(), stick.string()) << "the drive of the current folder";
  fs::create_directory(stick / "below");
  screen.Dir1.SetPath((stick / "below").string());
  desktop.drives.push_back(database.Folder() / "pulled out");
  screen.Drive1.Refresh();
  desktop.Expect("frmBackup.Drive1_Change -68 Device unavailable.");
  screen.Drive1.UserPick(2);
  EXPECT_EQ(screen.Drive1.Drive(), stick.string());
  EXPECT_EQ(screen.Dir1.Path(), stick / "below");
  screen.Drive1.UserPick(0);
  EXPECT_EQ(screen.txtLocation.Text(), "/");
}

/// Another program that waits for its turn sees the file whole, before or after the copy.
TEST_F(BackupTest, WaitsForNobodyWhoOnlyPreparesAChange) {
  const OtherUser other(database, OtherUser::Work::Writing);
  desktop.Expect("Norvane data backed up successfully");
  BackUpTo(stick);
  EXPECT_EQ(Bytes(stick / "norvane.mdb"), Bytes(live));
}

}  // namespace
}  // namespace norvane::test
