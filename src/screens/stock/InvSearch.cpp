#include "screens/stock/InvSearch.h"

#include <string_view>

#include "core/Val.h"
#include "data/SharedLists.h"
#include "screens/sales/InvoiceDetail.h"
#include "screens/stock/CategoryItem.h"
#include "store/Recordset.h"

namespace norvane {

InvSearch::InvSearch(Program& host)
    : Form(host, kName,
           {.caption = "Add Inventory Item to Invoice", .width = 7200, .height = 5400, .goesWithOwner = true}) {
  using namespace layout;
  SetLayout(Column({Strip({Field("Category:", cmbCategory), Space(), btnInventory}), Stretch(InventoryList),
                    Strip({Space(), btnOK, btnCancel})}));
  SetExitButton(btnCancel);
  InventoryList.SetEmptyHint("No items in this category. The button above opens the stock list to enter some.");
  cmbCategory.Click = [this] { cmbCategory_Click(); };
  InventoryList.DblClick = [this] { btnOK_Click(); };
  InventoryList.KeyDown = [this](int keyCode) {
    if (keyCode == static_cast<int>(Key::Enter)) btnOK_Click();
  };
  btnInventory.Click = [this] { btnInventory_Click(); };
  btnOK.Click = [this] { btnOK_Click(); };
  btnCancel.Click = [this] { Unload(); };
}

void InvSearch::Form_Load() {
  Trapped("InvSearch.Form_Load -", [&] {
    GetInventory(workspace, globals.CurCatNum, 0);
    InventoryList.Clear();
    InventoryList.SetColumns({{"Item#", 800}, {"Description", 4000}, {"Charge", 800}, {"In Stock", 500}});
    InventoryList.SetTopRow(1);
    ListItems();
    InventoryList.SetRows(globals.rsInventory->RecordCount() + 1);
    if (globals.rsCategories->RecordCount() == 0) {
      // There is nothing to pick before a category exists.
      Unload();
      screens.Show(screen::kfrmInventory);
    } else {
      OfferCategories(cmbCategory, *globals.rsCategories);
    }
  });
}

void InvSearch::ListItems() {
  for (const Object<Recordset> items = globals.rsInventory; !items->Eof(); items->MoveNext()) {
    InventoryList.AddItem(GridRow({items->Text("ItemNum"), items->Text("description"),
                                   convert.CurrencyText(items->Field("charge")), items->Text("InStock")}));
  }
}

// Three characters: of a number with four digits the last is not read.
void InvSearch::cmbCategory_Click() {
  Trapped("InvSearch.cmbCategory_Click -", [&] {
    globals.CurCatNum = ValLong(std::string_view(cmbCategory.Text()).substr(0, 3));
    GetInventory(workspace, globals.CurCatNum, 0);
    InventoryList.SetRows(1);
    ListItems();
  });
}

void InvSearch::btnOK_Click() {
  Trapped("InvSearch.btnOK_Click -", [&] {
    globals.BeforeQty = 1;
    const int picked = InventoryList.Row();
    if (picked == 0) return;
    auto& invoice = screens.Touch<InvoiceDetail>();
    const auto cell = [&](ItemColumn column) { return InventoryList.Cell(picked, column); };
    if (!invoice.AddItem(convert.ToLong(cell(kItemNum)), cell(kDescription), cell(kCharge))) return;
    Unload();
    invoice.Refresh();
    invoice.ItemList.SetFocus();
  });
}

void InvSearch::btnInventory_Click() {
  globals.CurCatNum = 1;
  screens.Show(screen::kfrmInventory);
}

}  // namespace norvane
