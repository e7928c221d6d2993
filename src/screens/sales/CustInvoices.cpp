#include "screens/sales/CustInvoices.h"

#include "core/Val.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "forms/DatePair.h"
#include "screens/RowOf.h"
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
      {Group(Frame2, Strip({btnDetails, btnNewInvoice, btnDelete, btnPrint, btnCustInfo, btnReceipts, btnCopy, Space(),
                            Group(Frame3, Strip({btnInventory, btnExit}))})),
       Group(Frame1, Strip({Row({Label4, CmbInvoice}), Row({Label2, Row({txtSinceDate, DTPicker1}), btnGo}), Space()})),
       Stretch(InvoiceList), Strip({lblClient, Space(), Label3, lblBalDue})}));
  SetExitButton(btnExit);
  lblClient.SetForeColor(Colour::Grey);
  InvoiceList.SetEmptyHint("No invoices since this date.");
  btnDetails.Click = [this] { InvoiceList_DblClick(); };
  btnNewInvoice.Click = [this] {
    TakeSelection();
    StartNewInvoice(program, SelectedClient(globals));
  };
  btnDelete.Click = [this] { btnDelete_Click(); };
  WireTo(btnPrint, screen::kPrtInvoice, [this] {
    TakeSelection();
    screens.Reopen(screen::kPrtInvoice);
  });
  btnCustInfo.Click = [this] {
    TakeSelection();
    ShowProfile(program);
  };
  btnReceipts.Click = Trapping("ClientInvoices.btnReceipts_Click -", [this] {
    TakeSelection();
    ShowReceipts(program, SelectedClient(globals));
  });
  btnCopy.Click = [this] { btnCopy_Click(); };
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

// The text counts, not the picker. After an error the notice stays.
void CustInvoices::btnGo_Click() {
  Trapped("ClientInvoices.btnGo_Click -", [&] {
    TakeSelection();
    const ClientShown selected = SelectedClient(globals);
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
    // Nothing in the list has brought its client's name.
    if (MarkedNumber() == 0) SelectClient(program, selected);
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
                          {">Charges", 1000, ColumnType::Currency, "", true},
                          {"Description", 2000}});
  InvoiceList.SetRows(1);
}

void CustInvoices::ListInvoices(Recordset& invoices, const ClientShown& client, std::int32_t marked) {
  const bool all = client.number == 0;
  client_ = client;
  CmbInvoice.SetText(all ? kAllClients : kSelectedClient);
  Label3.SetVisible(!all);
  lblBalDue.SetVisible(!all);
  lblClient.SetCaption(all ? "" : client.name);
  for (; !invoices.Eof(); invoices.MoveNext()) {
    InvoiceList.AddItem(GridRow({convert.ToText(invoices.Field("InvoiceDate")), invoices.Text("InvoiceNum"),
                                 invoices.Text("CustNum"), "", invoices.Text("lname") + ", " + invoices.Text("fname"),
                                 convert.CurrencyText(ChargeOf(invoices, convert)), invoices.Text("description")}));
  }
  if (invoices.RecordCount() > 0) invoices.Close();
  if (const int row = RowOf(InvoiceList, kInvoiceNum, convert.ToText(marked)); row > 0) InvoiceList.SetRow(row);
}

void CustInvoices::ForgetClient(std::int32_t custNum) {
  for (int row = InvoiceList.Rows() - 1; row > 0; --row) {
    if (InvoiceList.Cell(row, kCustNum) == convert.ToText(custNum)) InvoiceList.RemoveItem(row);
  }
}

void CustInvoices::RefreshInvoice(const InvoiceShown& saved) {
  const int row = RowOf(InvoiceList, kInvoiceNum, convert.ToText(saved.number));
  if (row == 0) return;
  const Object<Recordset> invoices = globals.oInvoice->GetCustInvoices(saved.client.number, saved.date - 1);
  for (; !invoices->Eof(); invoices->MoveNext()) {
    if (invoices->Long("InvoiceNum") != saved.number) continue;
    InvoiceList.SetCell(row, kDate, convert.ToText(invoices->Field("InvoiceDate")));
    InvoiceList.SetCell(row, kCharges, convert.CurrencyText(ChargeOf(*invoices, convert)));
    InvoiceList.SetCell(row, kDescription, invoices->Text("description"));
  }
}

void CustInvoices::ShowBalanceDue() {
  const Object<Client> client = globals.oClient;
  Date upToToday;
  client->OpenCn();
  lblBalDue.SetCaption(convert.CurrencyText(client->ClientBal(client_.number, upToToday)));
  const bool owing = client->ClientBal(client_.number, upToToday) > Currency();
  lblBalDue.SetForeColor(owing ? Colour::Red : Colour::Black);
  client->CloseCn();
}

std::int32_t CustInvoices::MarkedNumber() const {
  const int row = InvoiceList.Row();
  return row == 0 ? 0 : ValLong(InvoiceList.Cell(row, kInvoiceNum));
}

void CustInvoices::SelectMarked() {
  const auto cell = [&](InvoiceColumn column) { return InvoiceList.Cell(InvoiceList.Row(), column); };
  const Date date = convert.IsDate(cell(kDate)) ? convert.ToDate(cell(kDate)) : Date();
  SelectInvoice(
      program,
      {convert.ToLong(cell(kInvoiceNum)), date, cell(kDescription), {convert.ToLong(cell(kCustNum)), cell(kClient)}});
}

void CustInvoices::InvoiceList_Click() {
  Trapped("ClientInvoices.InvoiceList_Click -", [&] { SelectMarked(); });
}

// The commands act on the invoice that is marked and its client. Where the client's list is empty the client is
// selected alone.
void CustInvoices::TakeSelection() {
  if (MarkedNumber() != 0) {
    InvoiceList_Click();
  } else if (client_.number != 0) {
    SelectClient(program, client_);
  }
}

// An open invoice closes first, which may reload this list and so select another one.
void CustInvoices::InvoiceList_DblClick() {
  if (MarkedNumber() == 0) return;
  TakeSelection();
  const InvoiceShown asked = SelectedInvoice(globals);
  if (!screens.Close(InvoiceDetail::kName)) return;
  SelectInvoice(program, asked);
  screens.Show(InvoiceDetail::kName, {.owner = this});
}

void CustInvoices::btnCopy_Click() {
  const std::int32_t number = MarkedNumber();
  InvoiceList_DblClick();
  auto* sheet = screens.Find<InvoiceDetail>();
  if (number != 0 && sheet && sheet->NumberShown() == number) sheet->CopyToNew();
}

// The deletion itself is carried out as the list is read again: all of the client's invoices, whatever the since date.
void CustInvoices::btnDelete_Click() {
  Trapped("ClientInvoices.btnDelete_Click -", [&] {
    if (MarkedNumber() == 0) return;
    TakeSelection();
    const std::string number = convert.ToText(globals.CurInvoiceNum);
    globals.InvoicesStale =
        AskYesNo("Delete invoice #" + number + " and all associated charges?", "Delete Invoice ... #" + number + "?");
    if (!globals.InvoicesStale) return;
    // What its sheet still has to store goes with it.
    const auto* sheet = screens.Find<InvoiceDetail>();
    if (sheet && sheet->NumberShown() == globals.CurInvoiceNum) screens.Unload(InvoiceDetail::kName);
    GetInvoices(program, Date());
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
