#include "screens/sales/GetInvoices.h"

#include <memory>

#include "core/FileNames.h"
#include "core/Trap.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "forms/Program.h"
#include "screens/sales/CustInvoices.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

void RecreateInvoice(Program& program) {
  program.globals.oInvoice = std::make_shared<Invoice>(program.workspace);
  program.globals.rsInvoices = std::make_shared<Recordset>();
}

void OpenInvoices(Program& program) {
  program.globals.oInvoice->InitAccess(program.workspace.File(kDatabaseFile));
  program.globals.oInvoice->OpenCn();
}

void SelectLatest(CustInvoices& sales, Globals& globals) {
  const Grid& list = sales.InvoiceList;
  if (list.Rows() <= 1) return;
  sales.SelectInvoice();
  // That column is empty, so that the name ends with a space.
  globals.CurClientName += " " + list.Cell(list.Row(), CustInvoices::kLast);
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
    program.screens.Show(screen::kGettingInvoices);
    program.desktop.DoEvents();

    auto& sales = program.screens.Touch<CustInvoices>();
    sales.ClearList();
    RecreateInvoice(program);
    OpenInvoices(program);
    if (globals.InvoicesStale) {
      globals.oInvoice->DeleteInvoice(globals.CurInvoiceNum);
      globals.InvoicesStale = false;
    }
    globals.rsInvoices = globals.oInvoice->GetCustInvoices(globals.CurCustNum, sinceDate);
    sales.ListInvoices(*globals.rsInvoices);
    ShowBalanceDue(program);
    globals.oInvoice->CloseCn();
    SelectLatest(sales, globals);
    program.screens.Unload(screen::kGettingInvoices);
  });
}

void GetAllInvoices(Program& program) {
  Globals& globals = program.globals;
  Trap(program.desktop, "Globals.GetAllInvoices -", [&] {
    auto& sales = program.screens.Touch<CustInvoices>();
    sales.ClearList();
    RecreateInvoice(program);
    OpenInvoices(program);
    globals.rsInvoices = globals.oInvoice->GetAllInvoices(sales.SinceDate());
    sales.ListInvoices(*globals.rsInvoices);
    SelectLatest(sales, globals);
  });
}

void ShowBalanceDue(Program& program) {
  const Object<Client> client = program.globals.oClient;
  Label& lblBalDue = program.screens.Touch<CustInvoices>().lblBalDue;
  const std::int32_t custNum = program.globals.CurCustNum;
  Date upToToday;
  client->OpenCn();
  lblBalDue.SetCaption(program.convert.CurrencyText(client->ClientBal(custNum, upToToday)));
  const bool owing = client->ClientBal(custNum, upToToday) > Currency();
  lblBalDue.SetForeColor(owing ? Colour::Red : Colour::Black);
  client->CloseCn();
}

}  // namespace norvane
