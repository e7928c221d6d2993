#include "screens/stock/InventoryCats.h"

#include <memory>

#include "core/FileNames.h"
#include "core/Val.h"
#include "data/Inventory.h"
#include "screens/stock/frmInventory.h"
#include "store/Recordset.h"

namespace norvane {

InventoryCats::InventoryCats(Program& host)
    : Form(host, kName, {.caption = "Edit / Add Inventory Categories", .width = 4800, .height = 5200}),
      rows_(InventoryList, globals, desktop,
            {.labels = {.setOldRowStatus = "InventoryCats.SetOldRowStatus -",
                        .setNewRowStatus = "InventoryCats.SetNewRowStatus -",
                        .afterRowEdit = "InventoryCats.InventoryList_AfterRowEdit -",
                        .afterEdit = "InventoryCats.InventoryList_AfterEdit -",
                        .saveRow = "InventoryCats.SaveRow -",
                        .rowColChange = "InventoryCats.InventoryList_RowColChange -"},
             .testColumns = {kDescription},
             .storesAtOnce = true},
            [this](std::int32_t row) { StoreRow(row); }) {
  SetLayout(
      layout::Column({layout::Stretch(InventoryList), layout::Strip({btnNew, btnDelete, layout::Space(), btnExit})}));
  SetExitButton(btnExit);
  InventoryList.GotFocus = [this] { InventoryList.SetCol(kDescription); };
  InventoryList.AfterEdit = [this](int row, int) { InventoryList_AfterEdit(row); };
  InventoryList.Click = [this] { InventoryList_Click(); };
  btnNew.Click = [this] { rows_.GoToNewRow(); };
  btnDelete.Click = [this] { btnDelete_Click(); };
  btnExit.Click = [this] { btnExit_Click(); };
}

void InventoryCats::Form_Load() {
  Trapped("InventoryCats.Form_Load -", [&] {
    InventoryList.Clear();
    InventoryList.SetColumns({{"^", 300}, {"Category#", 0}, {"Description", 1500}});
    rows_.Fill(globals.rsCategories, [](const Recordset& category) {
      return GridRow({"", category.Text("CatNum"), category.Text("description")});
    });
  });
}

void InventoryCats::InventoryList_AfterEdit(int row) {
  rows_.AfterEdit(row, [&] { return !InventoryList.Cell(row, kDescription).empty(); });
}

void InventoryCats::StoreRow(std::int32_t row) {
  if (InventoryList.Cell(row, kDescription).empty()) return;
  const Object<Inventory> inventory = globals.oInventory;
  inventory->OpenCn();
  inventory->SaveCategory(ValLong(InventoryList.Cell(row, kCatNum)), InventoryList.Cell(row, kDescription));
  inventory->CloseCn();
  InventoryList.SetCell(row, kCatNum, convert.ToText(std::int32_t{inventory->CatNum}));
}

void InventoryCats::InventoryList_Click() {
  Trapped("InventoryCats.InventoryList_Click -", [&] {
    if (InventoryList.Row() >= 1) SelectRow(InventoryList.Row());
  });
}

void InventoryCats::SelectRow(int row) {
  const std::string key = InventoryList.Cell(row, kCatNum);
  globals.CurCatNum = key.empty() ? 0 : convert.ToLong(key);
  SelCatName = key.empty() ? "" : InventoryList.Cell(row, kDescription);
}

void InventoryCats::btnDelete_Click() {
  if (InventoryList.Row() < 1) return;
  SelectRow(InventoryList.Row());
  if (globals.CurCatNum == 0) return;
  if (AskYesNo("Deleting a category is not recommended when items exist in the inventory category.  All items in  " +
                   SelCatName + " will be deleted also.  Do you wish to do this?",
               "Delete Inventory Category ... " + SelCatName + "?")) {
    DeleteSelected();
  }
}

void InventoryCats::DeleteSelected() {
  if (IsOpen(globals.rsCategories.Share())) globals.rsCategories->Close();
  globals.oInventory = std::make_shared<Inventory>(workspace);
  globals.oInventory->InitAccess(workspace.File(kDatabaseFile));
  globals.oInventory->OpenCn();
  globals.oInventory->DeleteCategory(globals.CurCatNum);
  globals.rsCategories = globals.oInventory->rsCategories();
  globals.oInventory->CloseCn();
  rows_.RemoveRow(InventoryList.Row());
}

void InventoryCats::btnExit_Click() {
  screens.Unload(frmInventory::kName);
  globals.CurCatNum = 1;
  screens.Show(frmInventory::kName);
  Unload();
}

void InventoryCats::Form_Unload() {
  rows_.Close();
}

}  // namespace norvane
