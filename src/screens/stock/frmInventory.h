#pragma once

#include <cstdint>
#include <string>

#include "forms/Form.h"
#include "screens/RowEditing.h"

namespace norvane {

/// The stock items of one category, edited in place.
class frmInventory : public Form {
 public:
  static constexpr const char* kName = screen::kfrmInventory;
  explicit frmInventory(Program& program);

  /// The columns of InventoryList.
  enum ItemColumn { kMarker, kItemNum, kDescription, kCharge, kPar, kInStock, kWarranty };

  ComboBox cmbCategory{*this, "cmbCategory", ComboStyle::ItemsOnly, 32};
  Grid InventoryList{*this, "InventoryList", GridKind::Editable};
  Button btnNewItem{
      *this, "btnNewItem", {.toolTip = "Enter new item into selected inventory category ", .icon = "add"}};
  Button btnDelete{*this, "btnDelete", {.toolTip = "Delete selected inventory item", .icon = "delete"}};
  Button btnCategories{*this, "btnCategories", {.caption = "&Categories", .toolTip = "Inventory Categories"}};
  Button Command2{*this, "Command2", {.toolTip = "Exit Inventory", .icon = "exit"}};

  /// Marks an item's row as a click does, in its category. False if it isn't listed there.
  bool MarkItem(std::int32_t category, std::int32_t number);

 private:
  void Form_Load() override;
  void SetForm();
  void SetUpGrid();
  void ListItems();
  void FillCategories();
  void cmbCategory_Click();

  void InventoryList_AfterEdit(int row);
  bool IsComplete(int row) const;
  void StoreRow(std::int32_t row);
  void InventoryList_Click();

  void btnDelete_Click();
  void btnCategories_Click();
  void Form_Unload() override;

  RowEditing rows_;
  std::int32_t catShown_ = 0;   ///< the category listed; CurCatNum may be what another screen picked since
  int ItemRow = 1;              ///< the next row while items are loaded
  std::int32_t SelItemNum = 0;  ///< of the row clicked last, 0 if it had no key
  std::string SelItemName;
};

}  // namespace norvane
