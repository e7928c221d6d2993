#pragma once

#include "forms/Form.h"

namespace norvane {

class InvoiceDetail;

/// Picks an item and adds one unit of it to the invoice that stands open, as a new line that is stored at once.
class InvSearch : public Form {
 public:
  static constexpr const char* kName = screen::kInvSearch;
  explicit InvSearch(Program& program);

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
  void TakeFromStock(int picked);
  void AddLine(InvoiceDetail& invoice, int picked);
  void MarkBackOrder(InvoiceDetail& invoice);
  void btnInventory_Click();
};

}  // namespace norvane
