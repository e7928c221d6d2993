// The lines of an invoice: loading, editing and storing them, and the stock and back orders that follow.

#include "core/Rounding.h"
#include "core/Val.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "screens/clients/ClientCommands.h"
#include "screens/sales/InvoiceDetail.h"
#include "screens/stock/InvSearch.h"
#include "store/Recordset.h"

namespace norvane {

void InvoiceDetail::WireLines() {
  ItemList.GotFocus = [this] { ItemList_GotFocus(); };
  ItemList.BeforeEdit = [this](int row, int col) { ItemList_BeforeEdit(row, col); };
  ItemList.AfterEdit = [this](int row, int col) { ItemList_AfterEdit(row, col); };
  ItemList.LeaveCell.Replace([this] { ItemList_LeaveCell(); });
  btnNewItem.Click = [this] { btnNewItem_Click(); };
  btnRemove.Click = [this] { btnRemove_Click(); };
}

// Loading.

void InvoiceDetail::SetUpGrid() {
  ItemList.Clear();
  ItemList.SetColumns({{"^Sel", 400},
                       {"TransNum", 0},
                       {"Inventory#", 1000},
                       {">Quantity", 800, ColumnType::Number},
                       {">Charge", 1000, ColumnType::Currency},
                       {"Description", 3000},
                       {">Total", 1000, ColumnType::Currency},
                       {">Back Order", 800, ColumnType::Number}});
  ItemList.SetRows(1);
}

void InvoiceDetail::ListItems() {
  LineRow = 1;
  for (; !rsItems->Eof(); rsItems->MoveNext()) {
    const Value amount = rsItems->Field("amount");
    const Value quantity = rsItems->Field("Qty");
    globals.UnitCharge = convert.ToCurrency(Divide(amount, quantity, convert));
    BackOrderText = rsItems->Text("BackOrder");
    if (BackOrderText == "0") BackOrderText.clear();
    ItemList.AddItem(GridRow({"", rsItems->Text("TransNum"), rsItems->Text("ItemNum"), convert.ToText(quantity),
                              convert.CurrencyText(globals.UnitCharge), rsItems->Text("Notes"),
                              convert.CurrencyText(amount), BackOrderText}),
                     LineRow);
    ++LineRow;
  }
  ItemList.SetRows(rsItems->RecordCount() + 1);
}

// Editing.

void InvoiceDetail::ItemList_GotFocus() {
  Trapped("InvoiceDetail.ItemList_GotFocus -", [&] {
    ItemList.SetRow(ItemList.Rows() - 1);
    ItemList.SetCol(kQuantity);
  });
}

// A quantity that can't be read was never counted: the one before it still is.
void InvoiceDetail::ItemList_BeforeEdit(int row, int col) {
  if (col != kQuantity) return;
  std::int32_t& counted = CountedQty[ValLong(ItemList.Cell(row, kTransNum))];
  rows_.ReadRow("InvoiceDetail.ItemList_BeforeEdit -", row, [&] {
    const std::string quantity = ItemList.Cell(row, kQuantity);
    counted = quantity.empty() ? 0 : convert.ToLong(quantity);
  });
  globals.BeforeQty = counted;
}

// Other columns wait for nothing: they are stored along with a quantity or back order of their row, or not at all.
void InvoiceDetail::ItemList_AfterEdit(int row, int col) {
  rows_.AfterEdit(row, [&] {
    if (col != kQuantity) return col == kBackOrder;
    if (convert.ToDouble(ItemList.Cell(row, kQuantity)) == globals.BeforeQty) return false;
    ChangeQuantity(row);
    return true;
  });
}

// The stock moves now. A line becomes back-ordered by the part of the change that the stock didn't cover.
void InvoiceDetail::ChangeQuantity(int row) {
  globals.EditQty = convert.ToLong(ItemList.Cell(row, kQuantity));
  const std::int32_t itemNum = convert.ToLong(ItemList.Cell(row, kItemNum));
  if (!TakeFromStock(itemNum, globals.BeforeQty, globals.EditQty) || !IsShort()) return;
  const double change = static_cast<double>(globals.EditQty) - globals.BeforeQty;
  const double stockBefore = change + globals.QtyLeft;
  ReportBackOrder(row);
  double backOrder = Val(ItemList.Cell(row, kBackOrder)) - change;
  if (stockBefore > 0) backOrder += stockBefore;
  ItemList.SetCell(row, kBackOrder, convert.ToText(backOrder));
}

/// False after a report.
bool InvoiceDetail::TakeFromStock(std::int32_t itemNum, std::int32_t before, std::int32_t after) {
  const Object<Inventory> inventory = globals.oInventory;
  inventory->OpenCn();
  globals.QtyLeft = inventory->QtyInStock(itemNum, before, after);
  inventory->CloseCn();
  return inventory->StockCounted;
}

bool InvoiceDetail::IsShort() const {
  return globals.QtyLeft > Inventory::kNotCounted && globals.QtyLeft < 0;
}

void InvoiceDetail::ReportBackOrder(std::int32_t row) {
  desktop.Say("No " + ItemList.Cell(row, kDescription) + " in Inventory.  Is marked as Back Ordered in Invoice!");
}

void InvoiceDetail::ItemList_LeaveCell() {
  rows_.LeaveCell();
  const std::int32_t row = rows_.OldRow;
  rows_.ReadRow("InvoiceDetail.ItemList_LeaveCell -", row, [&] {
    if (row > 0 && !ItemList.Cell(row, kItemNum).empty() && !ItemList.Cell(row, kTransNum).empty()) {
      const double total =
          convert.ToDouble(ItemList.Cell(row, kCharge)) * convert.ToDouble(ItemList.Cell(row, kQuantity));
      ItemList.SetCell(row, kTotal, convert.CurrencyText(total));
    }
    if (!SkipTotal) GetInvoiceTotal();
    SkipTotal = false;
  });
}

// Storing.

// Whatever the row holds is stored; there is no test whether it is complete. The first line takes the head along, and
// every line one that a refused save has removed.
void InvoiceDetail::StoreRow(std::int32_t row) {
  StoreLine(row, ValLong(ItemList.Cell(row, kTransNum)));
  if (row == 1 || !headIsStored_) btnSave_Click();
}

void InvoiceDetail::StoreLine(std::int32_t row, std::int32_t transNum) {
  const Object<Invoice> line = globals.oInvoice;
  const auto cell = [&](ItemColumn column) { return ItemList.Cell(row, column); };
  line->TransNum = transNum;
  line->InvoiceNum = NumberShown();
  line->ItemNum = convert.ToLong(cell(kItemNum));
  line->Qty = convert.ToLong(cell(kQuantity));
  line->TransNotes = cell(kDescription);
  line->charge = convert.ToCurrency(cell(kTotal));
  line->BackOrder = cell(kBackOrder).empty() ? 0 : convert.ToLong(cell(kBackOrder));
  line->OpenCn();
  line->SaveTransAccess();
  line->CloseCn();
  globals.ItemsChanged = true;
  ItemList.SetCell(row, kTransNum, convert.ToText(line->TransNum));
  rows_.MarkStored(row);
}

// Items that come and go.

void InvoiceDetail::btnNewItem_Click() {
  Trapped("InvoiceDetail.btnNewItem_Click -", [&] {
    RequireInvoice();
    // No line exists without its head.
    if ((NewInvoice || !headIsStored_) && !Save()) return;
    NewInvoice = false;
    globals.CurCatNum = 1;
    screens.Show(InvSearch::kName, {.owner = this});
  });
}

// The unit leaves stock now, whether or not anything of the invoice is saved again.
bool InvoiceDetail::AddItem(std::int32_t itemNum, const std::string& description, const std::string& price) {
  RequireInvoice();
  if (!headIsStored_ && !Save()) return false;
  if (!TakeFromStock(itemNum, 0, 1)) return false;
  const std::int32_t row = AddLine(itemNum, description, price);
  MarkBackOrder(row, 1);
  StoreLine(row, 0);
  GetInvoiceTotal();
  return true;
}

// Moving the cursor to the new row stores an edit that waits in another one.
std::int32_t InvoiceDetail::AddLine(std::int32_t itemNum, const std::string& description, const std::string& price) {
  ItemList.SetRows(ItemList.Rows() + 1);
  ItemList.SetRow(ItemList.Rows() - 1);
  const int row = globals.RowSelected = ItemList.Row();
  const std::string charge = convert.CurrencyText(std::string_view(price));
  ItemList.SetCell(row, kItemNum, convert.ToText(itemNum));
  ItemList.SetCell(row, kDescription, description);
  ItemList.SetCell(row, kCharge, charge);
  ItemList.SetCell(row, kQuantity, "1");
  ItemList.SetCell(row, kTotal, charge);
  return row;
}

// A line of several units is on back order by what the stock didn't cover, as after raising its quantity.
void InvoiceDetail::MarkBackOrder(std::int32_t row, std::int32_t quantity) {
  const std::int32_t units = globals.QtyLeft + quantity > 0 ? globals.QtyLeft : -quantity;
  ItemList.SetCell(row, kBackOrder, IsShort() ? convert.ToText(units) : "");
  if (IsShort()) {
    ReportBackOrder(row);
  } else if (globals.QtyLeft == 0) {
    desktop.Say("Last " + ItemList.Cell(row, kDescription) + " in Inventory added to Invoice.");
  }
}

// Copies.

void InvoiceDetail::CopyToNew() {
  Trapped("InvoiceDetail.btnCopy_Click -", [&] {
    RequireInvoice();
    if (!OfferToSave() || !SelectNewInvoice(program, client_)) return;
    const std::int32_t source = NumberShown();
    screens.Unload(screen::kInvSearch);
    Form_Load();
    if (NumberShown() == 0) return;
    CopyHead(source);
    if (!Save()) return;
    NewInvoice = false;
    globals.oInvoice->OpenCn();
    const Object<Recordset> lines = globals.oInvoice->GetInvoiceItems(source);
    globals.oInvoice->CloseCn();
    for (; !lines->Eof(); lines->MoveNext()) CopyLine(*lines);
    GetInvoiceTotal();
  });
}

// Interest and parcel are the other invoice's own.
void InvoiceDetail::CopyHead(std::int32_t source) {
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  invoice->GetInvoice(source);
  invoice->CloseCn();
  invoice->Shippingdate = date_;
  invoice->TrackingNum.clear();
  invoice->Interest = Currency();
  txtDescription.SetText(invoice->description);
  txtSalesRep.SetText(invoice->SalesRep);
  txtDiscount.SetText(convert.ToText(invoice->Discount));
  ShowShippingAndCharges();
  // As text with its symbol in front a charge would be stored as 0.
  txtShipCharge.SetText(convert.ToText(invoice->ShippingCharge));
  txtTax.SetText(convert.ToText(invoice->Tax));
}

void InvoiceDetail::CopyLine(const Recordset& line) {
  const std::int32_t itemNum = line.Long("ItemNum");
  const std::int32_t quantity = RoundToLong(line.Double("Qty"));
  if (!TakeFromStock(itemNum, 0, quantity)) return;
  const Currency amount = line.Currency("Amount");
  const double price = quantity == 0 ? 0 : amount.ToDouble() / quantity;
  const std::int32_t row = AddLine(itemNum, line.Text("Notes"), convert.ToText(Currency::FromDouble(price)));
  ItemList.SetCell(row, kQuantity, convert.ToText(quantity));
  ItemList.SetCell(row, kTotal, convert.CurrencyText(amount));
  MarkBackOrder(row, quantity);
  StoreLine(row, 0);
}

// The units that the line took stay out of stock.
void InvoiceDetail::btnRemove_Click() {
  Trapped("InvoiceDetail.btnRemove_Click -", [&] {
    const int row = ItemList.Row();
    if (row > 0 && !ItemList.Cell(row, kTransNum).empty()) {
      globals.oInvoice->OpenCn();
      globals.oInvoice->DeleteInvoiceItem(convert.ToLong(ItemList.Cell(row, kTransNum)));
      globals.oInvoice->CloseCn();
      rows_.RemoveRow(row);
    }
    ItemList.SetCol(kTransNum);
    GetInvoiceTotal();
  });
}

}  // namespace norvane
