#pragma once

#include <string>

#include "forms/FileLists.h"
#include "forms/Form.h"
#include "forms/ScreenNames.h"

namespace norvane {

/// Copies a backup over the database.
class frmRestore : public Form {
 public:
  static constexpr const char* kName = screen::kfrmRestore;
  explicit frmRestore(Program& program);

  DriveList Drive1{*this, "Drive1", desktop};
  FolderList Dir1{*this, "Dir1", desktop};
  FileList File1{*this, "File1"};
  Button btnRestore{*this, "btnRestore", {.caption = "&Restore", .icon = "restore"}};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .icon = "cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void Dir1_Change();
  void btnRestore_Click();
  void Restore();
  void UnloadHoldersOfKeys();

  std::string DriveBefore;
  std::string FileName;
};

}  // namespace norvane
