#include "screens/stock/frmInventory.h"

#include <string_view>

#include "core/Val.h"
#include "data/Inventory.h"
#include "data/SharedLists.h"
#include "screens/RowOf.h"
#include "screens/stock/CategoryItem.h"
#include "screens/stock/InventoryCats.h"
#include "store/Recordset.h"

namespace norvane {

frmInventory::frmInventory(Program& host)
    : Form(host, kName, {.caption = "Edit/Add Inventory", .width = 10200, .height = 6600}),
      rows_(InventoryList, globals, desktop,
            {.labels = {.setOldRowStatus = "frmInventory.SetOldRowStatus -",
                        .setNewRowStatus = "frmInventory.SetNewRowStatus -",
                        .afterRowEdit = "frmInventory.InventoryList_AfterRowEdit -",
                        .afterEdit = "frmInventory.InventoryList_AfterEdit -",
                        .saveRow = "frmInventory.SaveRow -",
                        .rowColChange = "frmInventory.InventoryList_RowColChange -",
                        .lostFocus = "frmInventory.InventoryList_LostFocus -"},
             .testColumns = {kDescription}},
            [this](std::int32_t row) { StoreRow(row); }) {
  using namespace layout;
  SetLayout(Column({Strip({Field("Category:", cmbCategory), btnCategories, Space(), btnNewItem, btnDelete, Command2}),
                    Stretch(InventoryList)}));
  SetExitButton(Command2);
  InventoryList.SetEmptyHint("Press + and type what you sell: its description, its price and how many there are.");
  cmbCategory.Click = [this] { cmbCategory_Click(); };
  InventoryList.GotFocus = [this] { InventoryList.SetCol(kDescription); };
  InventoryList.AfterEdit = [this](int row, int) { InventoryList_AfterEdit(row); };
  InventoryList.Click = [this] { InventoryList_Click(); };
  btnNewItem.Click = Trapping("frmInventory.btnNewItem_Click -", [this] { rows_.GoToNewRow(); });
  btnDelete.Click = [this] { btnDelete_Click(); };
  btnCategories.Click = [this] { btnCategories_Click(); };
  Command2.Click = [this] { Unload(); };
}

// Loading.

void frmInventory::Form_Load() {
  Trapped("frmInventory.Form_Load -", [&] {
    desktop.DoEvents();
    screens.Show(screen::kGettingInventory);
    desktop.DoEvents();
    catShown_ = globals.CurCatNum;
    GetInventory(workspace, catShown_, SelItemNum);
    SetForm();
    screens.Unload(screen::kGettingInventory);
  });
}

void frmInventory::SetForm() {
  Trapped("frmInventory.SetForm -", [&] {
    SetUpGrid();
    cmbCategory.Clear();
    if (globals.rsInventory->RecordCount() == 0) {
      InventoryList.SetRow(1);
    } else {
      ListItems();
      InventoryList.SetRows(ItemRow + 1);
      if (InventoryList.Rows() >= 7) InventoryList.SetTopRow(InventoryList.Rows() - 5);
      rows_.SetMarker(InventoryList.Rows() - 1, "*");
      InventoryList.SetRow(InventoryList.Rows() - 1);
    }
    FillCategories();
  });
}

void frmInventory::SetUpGrid() {
  rows_.StartOver();
  InventoryList.Clear();
  InventoryList.SetRows(2);
  InventoryList.SetColumns({{"^", 300},
                            {"Item#", 0},
                            {"Item Description", 2500},
                            {">Charge", 1000, ColumnType::Currency},
                            {">Par", 800, ColumnType::Number},
                            {">In Stock", 800, ColumnType::Number},
                            {"Warranty", 1500}});
  ItemRow = 1;
}

void frmInventory::ListItems() {
  const Object<Recordset> items = globals.rsInventory;
  for (items->MoveFirst(); !items->Eof(); items->MoveNext()) {
    InventoryList.AddItem(
        GridRow({"", items->Text("ItemNum"), items->Text("description"), convert.CurrencyText(items->Field("charge")),
                 items->Text("Par"), items->Text("InStock"), items->Text("Warranty")}),
        ItemRow);
    ++ItemRow;
  }
}

void frmInventory::FillCategories() {
  const Object<Recordset> categories = globals.rsCategories;
  if (categories->RecordCount() == 0) {
    desktop.Say(
        "No categories for which to enter inventory.  Please enter a category, for example...General, Labor, "
        "Services, Hardware, Software, Foods, Books, CD's, etc.");
    btnCategories_Click();
    return;
  }
  OfferCategories(cmbCategory, *categories);
}

void frmInventory::cmbCategory_Click() {
  Trapped("frmInventory.cmbCategory_Click -", [&] {
    globals.CurCatNum = catShown_ = ValLong(std::string_view(cmbCategory.Text()).substr(0, 4));
    GetInventory(workspace, catShown_, SelItemNum);
    InventoryList.SetRows(1);
    ItemRow = 1;
    const std::int32_t count = globals.rsInventory->RecordCount();
    if (count > 0) {
      ListItems();
      InventoryList.SetTopRow(1);
      InventoryList.SetRows(count + 2);
    }
    if (InventoryList.Rows() == 1) {
      InventoryList.SetRows(2);
      InventoryList.SetFocus();
      rows_.SetMarker(1, "*");
    }
    rows_.StartOver();
    rows_.OldRow = InventoryList.Rows() - 1;
    rows_.NewRow = InventoryList.Row();
    rows_.SetOldRowStatus();
  });
}

bool frmInventory::MarkItem(std::int32_t category, std::int32_t number) {
  for (const std::string& item : cmbCategory.Items()) {
    if (ValLong(std::string_view(item).substr(0, 4)) == category && catShown_ != category) cmbCategory.SetText(item);
  }
  const int row = RowOf(InventoryList, kItemNum, convert.ToText(number));
  if (row == 0) return false;
  InventoryList.SetRow(row);
  InventoryList_Click();
  return true;
}

// Editing.

bool frmInventory::IsComplete(int row) const {
  for (int col = kDescription; col <= kInStock; ++col) {
    if (InventoryList.Cell(row, col).empty()) return false;
  }
  return true;
}

void frmInventory::InventoryList_AfterEdit(int row) {
  rows_.AfterEdit(row, [&] {
    if (!IsComplete(row)) return false;
    InventoryList.SetCell(row, kCharge, convert.CurrencyText(std::string_view(InventoryList.Cell(row, kCharge))));
    if (row == InventoryList.Rows() - 1 && InventoryList.Cell(row, kItemNum).empty()) {
      InventoryList.SetCell(row, kItemNum, "0");
      InventoryList.SetRows(InventoryList.Rows() + 1);
    }
    return true;
  });
}

// What is typed for the stock replaces the count: stock is taken by editing that column.
void frmInventory::StoreRow(std::int32_t row) {
  if (InventoryList.Cell(row, kDescription).empty()) return;
  for (int col = kPar; col <= kWarranty; ++col) {
    if (InventoryList.Cell(row, col).empty()) InventoryList.SetCell(row, col, "0");
  }
  const Object<Inventory> item = globals.oInventory;
  item->Category = catShown_;
  item->description = InventoryList.Cell(row, kDescription);
  item->charge = convert.ToCurrency(InventoryList.Cell(row, kCharge));
  item->Par = convert.ToLong(InventoryList.Cell(row, kPar));
  item->InStock = convert.ToLong(InventoryList.Cell(row, kInStock));
  item->Warranty = InventoryList.Cell(row, kWarranty);
  std::int32_t itemNum = ValLong(InventoryList.Cell(row, kItemNum));
  item->OpenCn();
  item->SaveItemAccess(itemNum);
  item->CloseCn();
  InventoryList.SetCell(row, kItemNum, convert.ToText(std::int32_t{item->ItemNum}));
  InventoryList.SetCell(row, kCharge, convert.CurrencyText(std::string_view(InventoryList.Cell(row, kCharge))));
}

void frmInventory::InventoryList_Click() {
  IgnoringErrors([&] {
    const std::string key = InventoryList.Cell(InventoryList.Row(), kItemNum);
    SelItemNum = key.empty() ? 0 : convert.ToLong(key);
    SelItemName = key.empty() ? "" : InventoryList.Cell(InventoryList.Row(), kDescription);
  });
}

// Buttons.

void frmInventory::btnDelete_Click() {
  Trapped("frmInventory.btnDelete_Click -", [&] {
    if (SelItemNum == 0) return;
    if (!AskYesNo("Delete Inventory Item " + SelItemName + " ?", "Delete Inventory Item ... " + SelItemName + "?")) {
      return;
    }
    const std::string category = cmbCategory.Text();
    globals.InventoryStale = true;
    GetInventory(workspace, catShown_, SelItemNum);
    // The number may be given to another item.
    SelItemNum = 0;
    SelItemName.clear();
    SetForm();
    cmbCategory.SetText(category);
    cmbCategory_Click();
    globals.InventoryStale = false;
  });
}

void frmInventory::btnCategories_Click() {
  screens.Show(InventoryCats::kName, {.owner = this, .modal = true});
}

void frmInventory::Form_Unload() {
  rows_.Close();
}

}  // namespace norvane
