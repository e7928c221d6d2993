#pragma once

#include <string>
#include <string_view>

#include "forms/FileLists.h"

namespace norvane {

/// Backup and restore report without the line about whom to contact.
inline constexpr std::string_view kMaintenanceClosing = ".";

/// What a change of the drive does on both screens: the folder list goes to the drive. If the drive can't be read, that
/// is reported and the drive list goes back to the one it showed `before`.
void FollowDrive(Reporter& reporter, DriveList& drives, FolderList& folders, const std::string& before);

}  // namespace norvane
