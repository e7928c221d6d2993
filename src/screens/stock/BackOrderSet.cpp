#include "screens/stock/BackOrderSet.h"

#include <cmath>
#include <memory>

#include "core/Rounding.h"
#include "data/Invoice.h"
#include "store/Recordset.h"

namespace norvane {

BackOrderSet::BackOrderSet(Program& host)
    : Form(host, kName, {.caption = "Set Order Date for Backordered Items", .width = 12'000, .height = 6'000}) {
  using namespace layout;
  SetLayout(Column({Strip({btnSave, btnSetAll, Space(), Command2}), Stretch(InventoryList)}));
  SetExitButton(Command2);
  InventoryList.Click = [this] { IgnoringErrors([this] { InventoryList.SetCol(kOrderDate); }); };
  InventoryList.GotFocus = [this] { InventoryList.SetCol(kOrderDate); };
  InventoryList.AfterEdit = [this](int, int) { DatesChanged = true; };
  btnSave.Click = Trapping("BackOrderSet.btnSave_Click -", [this] { btnSave_Click(); });
  btnSetAll.Click = Trapping("BackOrderSet.btnSetAll_Click -", [this] { btnSetAll_Click(); });
  Command2.Click = Trapping("BackOrderSet.Command2_Click -", [this] { Command2_Click(); });
}

// It reads the lines again, whatever the report listed.
void BackOrderSet::Form_Load() {
  InventoryList.SetFocus();
  Trapped("BackOrderSet.Form_Load -", [&] {
    globals.rsBackOrders = std::make_shared<Recordset>();
    const Object<Invoice> invoice = globals.oInvoice;
    invoice->OpenCn();
    globals.rsBackOrders = invoice->GetBackOrderItems();
    invoice->CloseCn();
    SetForm();
  });
}

void BackOrderSet::SetForm() {
  Trapped("BackOrderSet.SetForm -", [&] {
    InventoryList.Clear();
    InventoryList.SetRows(1);
    InventoryList.SetColumns({{"TransNum", 1000},
                              {"Invoice Date", 1000},
                              {"Inventory#", 800},
                              {"Invoice#", 800},
                              {"Description", 1800},
                              {"Qty", 500},
                              {"Client", 1000},
                              {"Order Date", 1000, ColumnType::Date, "..."}});
    InventoryList.SetColEditable(kOrderDate, true);
    for (const Object<Recordset> lines = globals.rsBackOrders; !lines->Eof(); lines->MoveNext()) {
      InventoryList.AddItem(
          GridRow({lines->Text("TransNum"), convert.ToText(lines->Field("InvoiceDate")), lines->Text("ItemNum"),
                   lines->Text("InvoiceNum"), lines->Text("Notes"),
                   convert.ToText(std::abs(convert.ToDouble(lines->Field("backorderqty")))),
                   lines->Text("fname") + " " + lines->Text("lname"), convert.ToText(lines->Field("ordered"))}));
    }
  });
}

// Counts in 16 bits: more rows than that raise 6 before the first one is written.
void BackOrderSet::btnSetAll_Click() {
  if (InventoryList.Rows() < 2) return;
  const std::string today = convert.ToText(desktop.Today());
  const int last = RoundToInteger(static_cast<double>(InventoryList.Rows() - 1));
  for (int row = 1; row <= last; ++row) InventoryList.SetCell(row, kOrderDate, today);
  DatesChanged = true;
}

void BackOrderSet::btnSave_Click() {
  SaveRows();
  DatesChanged = false;
}

// A row without a valid date ends it: the rows before are saved, those after it aren't. The connection stays open for
// the next use.
void BackOrderSet::SaveRows() {
  Trapped("BackOrderSet.SaveRows -", [&] {
    if (InventoryList.Rows() < 2) return;
    const Object<Invoice> invoice = globals.oInvoice;
    invoice->OpenCn();
    for (int row = 1; row < InventoryList.Rows(); ++row) {
      const std::int32_t transNum = convert.ToLong(InventoryList.Cell(row, kTransNum));
      invoice->SaveOrderDate(transNum, convert.ToDate(InventoryList.Cell(row, kOrderDate)));
    }
  });
}

void BackOrderSet::Command2_Click() {
  if (DatesChanged) {
    const Answer answer = AskYesNoCancel("Save Changes to BackOrder Items?", "Save Order Dates?");
    if (answer == Answer::Cancel) return;
    if (answer == Answer::Yes) Trapped("BackOrderSet.btnSave_Click -", [this] { btnSave_Click(); });
  }
  Unload();
}

}  // namespace norvane
