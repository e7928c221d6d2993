#include "screens/stock/InvSearch.h"

#include <string_view>

#include "core/Val.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
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
    TakeFromStock(picked);
    auto& invoice = screens.Touch<InvoiceDetail>();
    AddLine(invoice, picked);
    MarkBackOrder(invoice);
    invoice.StoreLine(globals.RowSelected, 0);
    invoice.GetInvoiceTotal();
    Unload();
    invoice.Refresh();
    invoice.ItemList.SetFocus();
  });
}

// The unit leaves stock now, whether or not the invoice is ever saved.
void InvSearch::TakeFromStock(int picked) {
  const std::int32_t itemNum = convert.ToLong(InventoryList.Cell(picked, 0));
  globals.oInventory->OpenCn();
  globals.QtyLeft = globals.oInventory->QtyInStock(itemNum, 0, 1);
  globals.oInventory->CloseCn();
}

// Moving the cursor to the new row makes the invoice store an edit that waits in another one.
void InvSearch::AddLine(InvoiceDetail& invoice, int picked) {
  Grid& lines = invoice.ItemList;
  lines.SetRows(lines.Rows() + 1);
  lines.SetRow(lines.Rows() - 1);
  globals.RowSelected = lines.Row();
  const auto fill = [&](int col, std::string_view text) { lines.SetCell(globals.RowSelected, col, text); };
  const std::string price = convert.CurrencyText(InventoryList.Cell(picked, 2));
  fill(InvoiceDetail::kItemNum, InventoryList.Cell(picked, 0));
  fill(InvoiceDetail::kDescription, InventoryList.Cell(picked, 1));
  fill(InvoiceDetail::kCharge, price);
  fill(InvoiceDetail::kQuantity, "1");
  fill(InvoiceDetail::kTotal, price);
}

void InvSearch::MarkBackOrder(InvoiceDetail& invoice) {
  const int row = globals.RowSelected;
  Grid& lines = invoice.ItemList;
  if (invoice.IsShort()) {
    lines.SetCell(row, InvoiceDetail::kBackOrder, "-1");
    invoice.ReportBackOrder(row);
  } else {
    lines.SetCell(row, InvoiceDetail::kBackOrder, "");
    if (globals.QtyLeft == 0) {
      desktop.Say("Last " + lines.Cell(row, InvoiceDetail::kDescription) + " in Inventory added to Invoice.");
    }
  }
}

void InvSearch::btnInventory_Click() {
  globals.CurCatNum = 1;
  screens.Show(screen::kfrmInventory);
}

}  // namespace norvane
