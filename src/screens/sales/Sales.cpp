#include "screens/sales/Sales.h"

#include <memory>
#include <string>

#include "core/Trap.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "forms/Program.h"
#include "screens/sales/CustInvoices.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

void SetUpGrid(Grid& list) {
  list.Clear();
  list.SetFormatString("Date|Invoice#|Customer#|Last|Name|>Charges|Description");
  const Twips widths[] = {1000, 800, 0, 0, 2000, 1000, 2000};
  for (int col = 0; col < 7; ++col) list.SetColWidth(col, widths[col]);
}

void MakeInvoiceAnew(Program& program) {
  program.globals.oInvoice = std::make_shared<Invoice>(program.workspace);
  program.globals.rsInvoices = std::make_shared<Recordset>();
}

void OpenInvoices(Program& program) {
  program.globals.oInvoice->InitAccess(program.workspace.File(kDatabaseFile));
  program.globals.oInvoice->OpenCn();
}

/// What the invoice comes to. Null if it has no lines, whatever its charges.
Value ChargeOf(const Recordset& invoice, const Conversions& convert) {
  const Value lines = invoice.Field("charge");
  const Value reduction = Multiply(Divide(invoice.Field("Discount"), 100, convert), lines, convert);
  Value charge = Subtract(lines, reduction, convert);
  for (const char* extra : {"Tax", "Interest", "ShippingCharge"}) charge = Add(charge, invoice.Field(extra), convert);
  return charge;
}

void FillGrid(Grid& list, Recordset& invoices, const Conversions& convert) {
  for (; !invoices.Eof(); invoices.MoveNext()) {
    list.AddItem(convert.ToText(invoices.Field("InvoiceDate")) + "\t" + invoices.Text("InvoiceNum") + "\t" +
                 invoices.Text("CustNum") + "\t\t" + invoices.Text("lname") + ", " + invoices.Text("fname") + "\t" +
                 convert.CurrencyText(ChargeOf(invoices, convert)) + "\t" + invoices.Text("description"));
  }
  if (invoices.RecordCount() > 0) invoices.Close();
}

void SelectLatest(CustInvoices& sales, Globals& globals) {
  const Grid& list = sales.InvoiceList;
  if (list.Rows() <= 1) return;
  sales.SelectInvoice();
  // Column 3 is empty, so that the name ends with a blank.
  globals.CurClientName += " " + list.Cell(list.Row(), 3);
}

}  // namespace

Date StartOfYear(const Clock& clock) {
  return Date::FromYearMonthDay(clock.Today().Year(), 1, 1);
}

void GetInvoices(Program& program, Date sinceDate) {
  Globals& globals = program.globals;
  Trap(program.desktop, "Globals.GetInvoices -", [&] {
    if (IsOpen(globals.rsInvoices.Share())) globals.rsInvoices->Close();
    globals.oInvoice.Release();
    globals.rsInvoices.Release();
    program.desktop.DoEvents();
    program.screens.Show("GettingInvoices");
    program.desktop.DoEvents();

    auto& sales = program.screens.Touch<CustInvoices>();
    SetUpGrid(sales.InvoiceList);
    MakeInvoiceAnew(program);
    sales.InvoiceList.SetRows(1);
    OpenInvoices(program);
    if (globals.InvoicesStale) {
      globals.oInvoice->DeleteInvoice(globals.CurInvoiceNum);
      globals.InvoicesStale = false;
    }
    globals.rsInvoices = globals.oInvoice->GetCustInvoices(globals.CurCustNum, sinceDate);
    FillGrid(sales.InvoiceList, *globals.rsInvoices, program.convert);
    ShowBalanceDue(program);
    globals.oInvoice->CloseCn();
    SelectLatest(sales, globals);
    program.screens.Unload("GettingInvoices");
  });
}

void GetAllInvoices(Program& program) {
  Globals& globals = program.globals;
  Trap(program.desktop, "Globals.GetAllInvoices -", [&] {
    auto& sales = program.screens.Touch<CustInvoices>();
    SetUpGrid(sales.InvoiceList);
    MakeInvoiceAnew(program);
    sales.InvoiceList.SetRows(1);
    OpenInvoices(program);
    globals.rsInvoices = globals.oInvoice->GetAllInvoices(sales.SinceDate());
    FillGrid(sales.InvoiceList, *globals.rsInvoices, program.convert);
    SelectLatest(sales, globals);
  });
}

void ShowBalanceDue(Program& program) {
  Client& client = *program.globals.oClient;
  Label& lblBalDue = program.screens.Touch<CustInvoices>().lblBalDue;
  const std::int32_t custNum = program.globals.CurCustNum;
  Date upToToday;
  client.OpenCn();
  lblBalDue.SetCaption(program.convert.CurrencyText(client.ClientBal(custNum, upToToday)));
  const bool owing = client.ClientBal(custNum, upToToday) > Currency();
  lblBalDue.SetForeColor(owing ? Colour::Red : Colour::Black);
  client.CloseCn();
}

}  // namespace norvane
