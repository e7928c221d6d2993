#pragma once

#include <cstdint>
#include <string>

#include "forms/Form.h"
#include "screens/RowEditing.h"

namespace norvane {

/// The inventory's categories, edited in place and stored at once. Leaving opens the inventory again, on category 1.
class InventoryCats : public Form {
 public:
  static constexpr const char* kName = screen::kInventoryCats;
  explicit InventoryCats(Program& program);

  /// The columns of InventoryList.
  enum CategoryColumn { kMarker, kCatNum, kDescription };

  Grid InventoryList{*this, "InventoryList", GridKind::Editable};
  Button btnNew{*this, "btnNew", {.caption = "&New", .icon = "add"}};
  Button btnDelete{*this, "btnDelete", {.caption = "&Delete", .icon = "delete"}};
  Button btnExit{*this, "btnExit", {.caption = "&Exit", .icon = "exit"}};

 private:
  void Form_Load() override;
  void InventoryList_AfterEdit(int row);
  void InventoryList_Click();
  void SelectRow(int row);
  void StoreRow(std::int32_t row);
  void btnDelete_Click();
  void DeleteSelected();
  void btnExit_Click();
  void Form_Unload() override;

  RowEditing rows_;
  std::string SelCatName;  ///< of the row clicked last
};

}  // namespace norvane
