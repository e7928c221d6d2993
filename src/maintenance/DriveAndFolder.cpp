#include "maintenance/DriveAndFolder.h"

#include "core/Trap.h"

namespace norvane {

void FollowDrive(Reporter& reporter, DriveList& drives, FolderList& folders, const std::string& before) {
  const auto follow = [&] { folders.SetPath(drives.Drive()); };
  if (Trap(reporter, "frmBackup.Drive1_Change -", follow, kMaintenanceClosing)) return;
  drives.GoBackTo(before);
}

}  // namespace norvane
