#include "screens/sales/CustInvoices.h"

#include <tuple>

#include "forms/DatePair.h"
#include "screens/clients/ClientCommands.h"
#include "screens/sales/GetInvoices.h"
#include "screens/sales/InvoiceDetail.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

/// What the invoice comes to. Null if it has no lines, whatever its charges.
Value ChargeOf(const Recordset& invoice, const Conversions& convert) {
  const Value lines = invoice.Field("charge");
  const Value reduction = Multiply(Divide(invoice.Field("Discount"), 100, convert), lines, convert);
  Value charge = Subtract(lines, reduction, convert);
  for (const char* extra : {"Tax", "Interest", "ShippingCharge"}) charge = Add(charge, invoice.Field(extra), convert);
  return charge;
}

}  // namespace

CustInvoices::CustInvoices(Program& host) : Form(host, kName, {.caption = "Client Sales"}) {
  using namespace layout;
  Frame3.SetWidth(1050);
  SetLayout(Column(
      {Group(Frame2, Strip({btnDetails, btnNewInvoice, btnDelete, btnPrint, btnCustInfo, btnReceipts, Space(),
                            Group(Frame3, Strip({btnInventory, btnExit}))})),
       Group(Frame1, Strip({Row({Label4, CmbInvoice}), Row({Label2, Row({txtSinceDate, DTPicker1}), btnGo}), Space()})),
       Stretch(InvoiceList), Strip({Space(), Label3, lblBalDue})}));
  SetExitButton(btnExit);
  btnDetails.Click = [this] { InvoiceList_DblClick(); };
  btnNewInvoice.Click = [this] { StartNewInvoice(program); };
  btnDelete.Click = [this] { btnDelete_Click(); };
  WireTo(btnPrint, screen::kPrtInvoice, [this] {
    SelectMarkedIfNone();
    screens.Reopen(screen::kPrtInvoice);
  });
  btnCustInfo.Click = [this] { ShowProfile(program); };
  btnReceipts.Click = Trapping("ClientInvoices.btnReceipts_Click -", [this] { ShowReceipts(program); });
  btnInventory.Click = [this] { btnInventory_Click(); };
  btnExit.Click = [this] { Unload(); };
  WritePickedDate(DTPicker1, txtSinceDate);
  btnGo.Click = [this] { btnGo_Click(); };
  InvoiceList.Click = [this] { InvoiceList_Click(); };
  InvoiceList.DblClick = [this] { InvoiceList_DblClick(); };
  InvoiceList.KeyPress = [this](int keyAscii) {
    if (keyAscii == static_cast<int>(Key::Enter)) InvoiceList_DblClick();
  };
}

void CustInvoices::Form_Load() {
  InvoiceList.SetFocus();
  Trapped("ClientInvoices.Form_Load -", [&] {
    SetDates(DTPicker1, txtSinceDate, StartOfYear(desktop));
    globals.InvoiceSince = DTPicker1.Value();
    CmbInvoice.Clear();
    for (const char* item : {kSelectedClient, kAllClients}) CmbInvoice.AddItem(item);
    CmbInvoice.SetText(kSelectedClient);
    ReadGeometry(kName);
  });
}

// The text counts, not the picker. An error leaves the notice standing.
void CustInvoices::btnGo_Click() {
  Trapped("ClientInvoices.btnGo_Click -", [&] {
    const bool all = CmbInvoice.Text() == kAllClients;
    if (all) globals.CurClientName = kAllClients;
    screens.Show(screen::kLoadingInvoices, {.owner = this});
    desktop.DoEvents();
    if (all) {
      GetAllInvoices(program);
    } else {
      GetInvoices(program, SinceDate());
    }
    screens.Unload(screen::kLoadingInvoices);
    Label3.SetVisible(!all);
    lblBalDue.SetVisible(!all);
  });
}

// The list.

void CustInvoices::ClearList() {
  InvoiceList.Clear();
  InvoiceList.SetColumns({{"Date", 1000},
                          {"Invoice#", 800},
                          {"Customer#", 0},
                          {"Last", 0},
                          {"Name", 2000},
                          {">Charges", 1000},
                          {"Description", 2000}});
  InvoiceList.SetRows(1);
}

void CustInvoices::ListInvoices(Recordset& invoices) {
  for (; !invoices.Eof(); invoices.MoveNext()) {
    InvoiceList.AddItem(GridRow({convert.ToText(invoices.Field("InvoiceDate")), invoices.Text("InvoiceNum"),
                                 invoices.Text("CustNum"), "", invoices.Text("lname") + ", " + invoices.Text("fname"),
                                 convert.CurrencyText(ChargeOf(invoices, convert)), invoices.Text("description")}));
  }
  if (invoices.RecordCount() > 0) invoices.Close();
}

void CustInvoices::SelectInvoice() {
  const int row = InvoiceList.Row();
  globals.CurInvoiceDate = convert.ToDate(InvoiceList.Cell(row, kDate));
  globals.CurInvoiceNum = convert.ToLong(InvoiceList.Cell(row, kInvoiceNum));
  globals.CurClientName = InvoiceList.Cell(row, kClient);
  globals.CurInvoiceDesc = InvoiceList.Cell(row, kDescription);
}

void CustInvoices::InvoiceList_Click() {
  Trapped("ClientInvoices.InvoiceList_Click -", [&] {
    SelectInvoice();
    globals.CurCustNum = convert.ToLong(InvoiceList.Cell(InvoiceList.Row(), kCustNum));
  });
}

/// A new invoice takes the selection along; when it is gone, stored or not, the row still marked is the selected one.
void CustInvoices::SelectMarkedIfNone() {
  if (globals.CurInvoiceNum == 0 && InvoiceList.Row() > 0) SelectInvoice();
}

// An invoice that stands open closes first, which may reload this list and so select another one.
void CustInvoices::InvoiceList_DblClick() {
  SelectMarkedIfNone();
  const std::tuple asked(globals.CurInvoiceNum, globals.CurInvoiceDate, globals.CurClientName, globals.CurInvoiceDesc);
  if (!screens.Close(InvoiceDetail::kName)) return;
  std::tie(globals.CurInvoiceNum, globals.CurInvoiceDate, globals.CurClientName, globals.CurInvoiceDesc) = asked;
  screens.Show(InvoiceDetail::kName, {.owner = this});
}

// The deletion itself is carried out as the list is read anew: all of the client's invoices, whatever the since date.
void CustInvoices::btnDelete_Click() {
  Trapped("ClientInvoices.btnDelete_Click -", [&] {
    SelectMarkedIfNone();
    const std::string number = convert.ToText(globals.CurInvoiceNum);
    globals.InvoicesStale =
        AskYesNo("Delete invoice #" + number + " and all associated charges?", "Delete Invoice ... #" + number + "?");
    if (globals.InvoicesStale) GetInvoices(program, Date());
  });
}

// The ways to other screens.

void CustInvoices::btnInventory_Click() {
  Trapped("ClientInvoices.btnInventory_Click -", [&] {
    globals.CurCatNum = 1;
    screens.Show(screen::kfrmInventory);
  });
}

void CustInvoices::Form_Resize() {
  Trapped("ClientInvoices.Form_Resize -", [&] {
    if (State() == WindowState::Minimized) return;
    if (Width() > 160) InvoiceList.SetWidth(Width() - 160);
    if (Width() > 20) InvoiceList.SetLeft(20);
    if (Height() > 1700) InvoiceList.SetHeight(Height() - 1700);
    if (Height() > 1000) InvoiceList.SetTop(1000);
    if (Width() > 2300) Label3.SetLeft(Width() - 2300);
    if (Height() > 650) Label3.SetTop(Height() - 650);
    if (Width() > 1000) lblBalDue.SetLeft(Label3.Left() + 1000);
    lblBalDue.SetTop(Label3.Top() - 15);
    if (Width() > 160) Frame2.SetWidth(Width() - 160);
    if (Width() > 20) Frame2.SetLeft(20);
    Frame3.SetLeft(Frame2.Width() - Frame3.Width());
    if (Height() > 110) Frame3.SetTop(110);
    Frame1.SetLeft(Frame2.Left());
    Frame1.SetWidth(Frame2.Width());
    if (Height() > 510) Frame1.SetTop(510);
  });
}

void CustInvoices::Form_Unload() {
  Trapped("ClientInvoices.Form_Unload -", [&] { WriteGeometry(kName); });
}

}  // namespace norvane
