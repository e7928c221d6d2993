#pragma once

#include "forms/Form.h"

namespace norvane {

/// Records when back-ordered lines were ordered. Only the date column can be edited.
class BackOrderSet : public Form {
 public:
  static constexpr const char* kName = screen::kBackOrderSet;
  explicit BackOrderSet(Program& program);

  /// The columns of InventoryList.
  enum LineColumn { kTransNum, kInvoiceDate, kItemNum, kInvoiceNum, kDescription, kQty, kClient, kOrderDate };

  Grid InventoryList{*this, "InventoryList", GridKind::List};
  // The tooltips are other screens', and are meant to be.
  Button btnSave{*this, "btnSave", {.toolTip = "Save Client", .icon = "save"}};
  Button btnSetAll{*this, "btnSetAll", {.caption = "&Set All Ordered Today!", .toolTip = "Inventory Categories"}};
  Button Command2{*this, "Command2", {.toolTip = "Exit Inventory", .icon = "exit"}};

 private:
  void Form_Load() override;
  void SetForm();
  void btnSetAll_Click();
  void btnSave_Click();
  void SaveRows();
  void Command2_Click();

  bool DatesChanged = false;  ///< a date was edited and isn't saved
};

}  // namespace norvane
