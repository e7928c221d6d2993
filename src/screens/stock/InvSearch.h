#pragma once

#include "forms/Form.h"

namespace norvane {

/// Picks an item and adds one unit of it to the invoice that is open, as a new line that is stored at once.
class InvSearch : public Form {
 public:
  static constexpr const char* kName = screen::kInvSearch;
  explicit InvSearch(Program& program);

  /// The columns of InventoryList.
  enum ItemColumn { kItemNum, kDescription, kCharge, kInStock };

  ComboBox cmbCategory{*this, "cmbCategory", ComboStyle::ItemsOnly, 32};
  Button btnInventory{*this, "btnInventory", {.toolTip = "Add to/Edit Inventory", .icon = "inventory"}};
  Grid InventoryList{*this, "InventoryList", GridKind::List};
  Button btnOK{*this, "btnOK", {.caption = "&OK", .isDefault = true}};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void ListItems();
  void cmbCategory_Click();
  void btnOK_Click();
  void btnInventory_Click();
};

}  // namespace norvane
