#include "reports/BackOrderFill.h"

#include "data/FillShares.h"
#include "data/Invoice.h"
#include "reports/PrtBackOrderFill.h"
#include "store/Recordset.h"

namespace norvane {

BackOrderFill::BackOrderFill(Program& host)
    : Form(host, kName, {.caption = "Back Orders that can be filled", .width = 12'000, .height = 6'000}) {
  using namespace layout;
  SetLayout(Column({Strip({btnPrint, Space(), Command2}), Stretch(InventoryList)}));
  SetExitButton(Command2);
  WireTo(btnPrint, PrtBackOrderFill::kName, Trapping("BackOrderFill.btnPrint_Click -", [this] { btnPrint_Click(); }));
  Command2.Click = [this] { Unload(); };
}

void BackOrderFill::Form_Load() {
  InventoryList.SetFocus();
  Trapped("BackOrderFill.Form_Load -", [&] {
    SetForm();
    if (InventoryList.Rows() > 1) return;
    desktop.Say("No back orders can be filled from stock.");
    Unload();
  });
}

// All lines are marked at first.
void BackOrderFill::SetForm() {
  InventoryList.Clear();
  InventoryList.SetRows(1);
  InventoryList.SetColumns({{"TransNum", 1000},
                            {"Invoice Date", 1000},
                            {"Inventory#", 800},
                            {"Invoice#", 800},
                            {"Description", 1800},
                            {"Qty", 500},
                            {"Client", 1000},
                            {"Order Date", 1000},
                            {"Sales Rep", 0}});
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  const Object<Recordset> lines = invoice->GetCountedBackOrders();
  invoice->CloseCn();
  FillShares shares(*lines, convert);
  if (lines->RecordCount() > 0) lines->MoveFirst();
  for (; !lines->Eof(); lines->MoveNext()) {
    if (!shares.Fills(*lines)) continue;
    InventoryList.AddItem(
        GridRow({lines->Text("TransNum"), convert.ToText(lines->Field("InvoiceDate")), lines->Text("ItemNum"),
                 lines->Text("InvoiceNum"), lines->Text("Notes"), convert.ToText(FillShares::UnitsOf(*lines, convert)),
                 lines->Text("fname") + " " + lines->Text("lname"), convert.ToText(lines->Field("ordered")),
                 lines->Text("SalesRep")}));
  }
  InventoryList.UserMarkAll();
}

// An open invoice closes first: its sheet would store the back orders that it shows.
void BackOrderFill::btnPrint_Click() {
  const std::size_t marked = InventoryList.MarkedRows().size();
  if (marked == 0) return;
  const std::string lines = marked == 1 ? "1 line" : std::to_string(marked) + " lines";
  if (!AskYesNo("Print the picking list of " + lines + " and set the back orders to 0?", "Fill Back Orders?")) return;
  if (!screens.Close(screen::kInvoiceDetail)) return;
  screens.Reopen(PrtBackOrderFill::kName);
  const auto* list = screens.Find<PrtBackOrderFill>();
  if (list && list->IsComplete() && ClearMarked()) SetForm();
}

bool BackOrderFill::ClearMarked() {
  const Object<Invoice> invoice = globals.oInvoice;
  bool cleared = true;
  invoice->OpenCn();
  for (const int row : InventoryList.MarkedRows()) {
    cleared = cleared && invoice->ClearBackOrder(convert.ToLong(InventoryList.Cell(row, kTransNum)));
  }
  invoice->CloseCn();
  return cleared;
}

}  // namespace norvane
