#pragma once

#include <filesystem>
#include <string>

#include "forms/FileLists.h"
#include "forms/Form.h"
#include "forms/ScreenNames.h"

namespace norvane {

/// Copies the database into a folder of the user's choice.
class frmBackup : public Form {
 public:
  static constexpr const char* kName = screen::kfrmBackup;
  explicit frmBackup(Program& program);

  DriveList Drive1{*this, "Drive1", desktop};
  FolderList Dir1{*this, "Dir1", desktop};
  FolderBox txtLocation{*this, "txtLocation", desktop, Dir1};
  Button btnBackup{*this, "btnBackup", {.caption = "&Backup", .icon = "backup", .isDefault = true}};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .icon = "cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void btnBackup_Click();
  bool MakeSureOf(const std::filesystem::path& folder);
  void CopyTo(const std::filesystem::path& folder);

  std::string DriveBefore;
};

}  // namespace norvane
