#include "maintenance/frmRestore.h"

#include "core/FileNames.h"
#include "core/FileSystem.h"
#include "maintenance/DriveAndFolder.h"
#include "maintenance/KeptCopies.h"
#include "maintenance/Working.h"
#include "store/DatabaseFile.h"

namespace norvane {
namespace {

/// These store what they show by a key, which may be another record's in the file that has been restored.
constexpr const char* kHoldersOfKeys[] = {
    screen::kProfile,       screen::kInvoiceDetail, screen::kReceipts,          screen::kfrmInventory,
    screen::kInventoryCats, screen::kBackOrderSet,  screen::kBackOrderFill,     screen::kGL,
    screen::kVendors,       screen::kExpenseTypes,  screen::kPaymentCategories, screen::kShippingTypes};

}  // namespace

frmRestore::frmRestore(Program& host)
    : Form(host, kName, {.caption = "Select Norvane.mdb for restore", .width = 7800, .height = 6900}) {
  using namespace layout;
  SetLayout(Column({Stretch(Fields({Field("&Drive", Drive1), Field("&Folder", Dir1), Field("F&ile", File1)})),
                    Strip({Space(), btnRestore, btnCancel})}));
  SetExitButton(btnCancel);
  Dir1.Change = [this] { Dir1_Change(); };
  Drive1.Change = [this] { FollowDrive(desktop, Drive1, Dir1, DriveBefore); };
  Drive1.GotFocus = [this] { DriveBefore = Drive1.Drive(); };
  File1.Click = [this] { FileName = File1.Files()[static_cast<std::size_t>(File1.ListIndex())]; };
  btnRestore.Click = [this] { btnRestore_Click(); };
  btnCancel.Click = [this] { Unload(); };
}

void frmRestore::Form_Load() {
  DriveBefore = Drive1.Drive();
  Dir1_Change();
}

void frmRestore::Dir1_Change() {
  Trap(
      desktop, "frmBackup.Dir1_Change -",
      [&] {
        File1.SetPath(Dir1.Path());
        File1.SetPattern(kDatabaseFile);
        btnRestore.SetEnabled(!File1.Files().empty());
        if (!File1.Files().empty()) FileName = File1.Files().front();
      },
      kMaintenanceClosing);
}

void frmRestore::btnRestore_Click() {
  Trap(
      desktop, "frmBackup.btnRestore_Click -", [&] { Restore(); }, kMaintenanceClosing);
}

void frmRestore::Restore() {
  const std::filesystem::path live = workspace.File(kDatabaseFile);
  const std::filesystem::path source = File1.Path() / FileName;
  RequireDatabase(source);
  // Refuses what can't be restored before a copy of the live file is kept.
  DatabaseCopy copy(program.engine, source, live);
  KeepCopy(program, kBeforeRestore);
  copy.CopyRest(WorkingNotice(program, "Restoring").Report());
  UnloadHoldersOfKeys();
  desktop.Say(FileExists(Located(live)) ? "Norvane data restored successfully"
                                        : "Norvane data NOT restored.  Make sure you have read access to the path and "
                                          "retry.");
}

// An unload stores the rows that wait in a grid. These belong to the file that has gone, so they go first.
void frmRestore::UnloadHoldersOfKeys() {
  for (const char* name : kHoldersOfKeys) {
    const Form* holder = screens.Find(name);
    if (!holder) continue;
    for (Control* control : holder->Controls()) {
      if (auto* grid = dynamic_cast<Grid*>(control)) grid->SetRows(1);
    }
    screens.Unload(name);
  }
  globals.RowChanged = false;
}

}  // namespace norvane
