#include "maintenance/frmBackup.h"

#include "core/FileNames.h"
#include "core/FileSystem.h"
#include "core/SettingsFile.h"
#include "maintenance/DriveAndFolder.h"
#include "maintenance/Working.h"
#include "store/DatabaseFile.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSection = "Data";
constexpr std::string_view kKey = "BackUpTo";

}  // namespace

frmBackup::frmBackup(Program& host)
    : Form(host, kName, {.caption = "Select Backup Drive and Folder", .width = 7800, .height = 6300}) {
  using namespace layout;
  SetLayout(Column({Stretch(Fields({Field("&Location", txtLocation), Field("&Drive", Drive1), Field("&Folder", Dir1)})),
                    Strip({Space(), btnBackup, btnCancel})}));
  SetExitButton(btnCancel);
  Dir1.Change = [this] { txtLocation.SetText(Dir1.Path().string()); };
  Drive1.Change = [this] { FollowDrive(desktop, Drive1, Dir1, DriveBefore); };
  Drive1.GotFocus = [this] { DriveBefore = Drive1.Drive(); };
  btnBackup.Click = [this] { btnBackup_Click(); };
  btnCancel.Click = [this] { Unload(); };
}

void frmBackup::Form_Load() {
  DriveBefore = Drive1.Drive();
  txtLocation.SetText(GetIniString(kSection, kKey, desktop.DocumentsFolder().string(), globals.IniPath));
  const fs::path folder = txtLocation.Folder();
  if (!FolderExists(folder)) return txtLocation.SetText(Dir1.Path().string());
  Drive1.SetDrive("C");
  Dir1.SetPath(folder.string());
}

void frmBackup::btnBackup_Click() {
  Trap(
      desktop, "frmBackup.btnBackup_Click -",
      [&] {
        const fs::path folder = txtLocation.Folder();
        if (MakeSureOf(folder)) CopyTo(folder);
      },
      kMaintenanceClosing);
}

bool frmBackup::MakeSureOf(const fs::path& folder) {
  if (FolderExists(folder)) return true;
  if (!AskYesNo("Create Folder (" + txtLocation.Text() + ")?", "Path does not exist!")) return false;
  CreateFolder(folder);
  return true;
}

void frmBackup::CopyTo(const fs::path& folder) {
  const fs::path live = workspace.File(kDatabaseFile);
  const fs::path target = folder / kDatabaseFile;
  RollBackJournal(live);
  CopyDatabase(program.engine, live, target, WorkingNotice(program, "Backing up").Report());
  if (!FileExists(Located(target))) {
    return desktop.Say("Norvane data NOT backed up.  Make sure you have write access to the path and retry.");
  }
  WriteIniString(kSection, kKey, folder.string(), globals.IniPath);
  desktop.Say("Norvane data backed up successfully to " + txtLocation.Text());
  Unload();
}

}  // namespace norvane
