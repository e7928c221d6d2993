#include "screens/sales/GetInvoices.h"

#include <memory>

#include "core/FileNames.h"
#include "core/Trap.h"
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

/// The invoice that a filled list goes back to.
std::int32_t Marked(const CustInvoices& sales, const Globals& globals) {
  return sales.MarkedNumber() == 0 ? 0 : globals.CurInvoiceNum;
}

void SelectListed(CustInvoices& sales, Globals& globals) {
  if (sales.MarkedNumber() == 0) return;
  sales.SelectMarked();
  // That column is empty, so that the name ends with a space.
  globals.CurClientName += " " + sales.InvoiceList.Cell(sales.InvoiceList.Row(), CustInvoices::kLast);
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
    const std::int32_t marked = Marked(sales, globals);
    sales.ClearList();
    RecreateInvoice(program);
    OpenInvoices(program);
    if (globals.InvoicesStale) {
      globals.oInvoice->DeleteInvoice(globals.CurInvoiceNum);
      globals.InvoicesStale = false;
    }
    globals.rsInvoices = globals.oInvoice->GetCustInvoices(globals.CurCustNum, sinceDate);
    sales.ListInvoices(*globals.rsInvoices, SelectedClient(globals), marked);
    sales.ShowBalanceDue();
    globals.oInvoice->CloseCn();
    SelectListed(sales, globals);
    program.screens.Unload(screen::kGettingInvoices);
  });
}

void GetAllInvoices(Program& program) {
  Globals& globals = program.globals;
  Trap(program.desktop, "Globals.GetAllInvoices -", [&] {
    auto& sales = program.screens.Touch<CustInvoices>();
    const std::int32_t marked = Marked(sales, globals);
    sales.ClearList();
    RecreateInvoice(program);
    OpenInvoices(program);
    globals.rsInvoices = globals.oInvoice->GetAllInvoices(sales.SinceDate());
    sales.ListInvoices(*globals.rsInvoices, {}, marked);
    SelectListed(sales, globals);
  });
}

}  // namespace norvane
