#include "screens/clients/Clients.h"

#include <memory>
#include <string>

#include "core/Trap.h"
#include "data/Client.h"
#include "forms/Program.h"
#include "screens/Opening.h"
#include "screens/clients/Customer.h"
#include "screens/sales/Receipts.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

void ClearGrid(Grid& grid) {
  grid.Clear();
  grid.SetCols(7);
  grid.SetFormatString("||Name|Home Phone|Work Phone|Cel Phone|Email");
  const Twips widths[] = {0, 0, 2200, 1200, 1200, 1200, 1200};
  for (int col = 0; col < 7; ++col) grid.SetColWidth(col, widths[col]);
  grid.SetRows(1);
}

void FillGrid(Grid& grid, Recordset& clients) {
  for (; !clients.Eof(); clients.MoveNext()) {
    grid.AddItem(clients.Text("custnum") + "\t\t" + clients.Text("lname") + ", " + clients.Text("fname") + "\t" +
                 clients.Text("homephone") + "\t" + clients.Text("workphone") + "\t" + clients.Text("celphone") + "\t" +
                 clients.Text("email"));
  }
}

/// The cursor comes back to the selected client, so that what is marked is what the commands act on.
void MarkClient(Grid& grid, const std::string& number) {
  for (int row = 1; row < grid.Rows(); ++row) {
    if (grid.Cell(row, 0) == number) return grid.SetRow(row);
  }
}

bool ReallyDelete(Desktop& desktop, const std::string& client) {
  return desktop.Ask({.text = "Deleting a client is not recommended when transactions exist for the client.  All "
                              "transactions for [" +
                              client + "] will be deleted along with the client's profile.  Do you wish to do this?",
                      .title = "Delete Client ... " + client + "?",
                      .buttons = Buttons::YesNo,
                      .icon = Icon::Question,
                      .preselected = Answer::No}) == Answer::Yes;
}

}  // namespace

void RefreshCustList(Program& program) {
  Globals& globals = program.globals;
  Trap(program.desktop, "Globals.RefreshCustList -", [&] {
    if (IsOpen(globals.rsClients.Share())) globals.rsClients->Close();
    globals.oClient.Release();
    globals.rsClients.Release();
    Grid& list = program.screens.Touch<Customer>().CustList2;
    ClearGrid(list);
    globals.oClient = std::make_shared<Client>(program.workspace);
    globals.oClient->InitAccess(program.workspace.File(kDatabaseFile));
    globals.oClient->OpenCn();
    globals.rsClients = globals.oClient->GetAllClients();
    globals.ClientCount = globals.rsClients->RecordCount();
    globals.oClient->CloseCn();
    globals.rsClientPick = globals.rsClients->Clone();
    FillGrid(list, *globals.rsClients);
    MarkClient(list, program.convert.ToText(globals.CurCustNum));
    globals.rsClients->Close();
  });
}

void DeleteSelectedClient(Program& program) {
  Globals& globals = program.globals;
  if (ReallyDelete(program.desktop, globals.CurClientName)) {
    globals.oClient->OpenCn();
    globals.oClient->DeleteClient(globals.CurCustNum);
    globals.oClient->CloseCn();
  }
  RefreshCustList(program);
}

void ShowProfile(Program& program) {
  IgnoringErrors([&] { program.screens.Unload("Profile"); }, [&] { program.globals.ProfileLoaded = true; },
                 [&] { program.screens.Show("Profile"); });
}

void StartNewInvoice(Program& program) {
  Globals& globals = program.globals;
  if (globals.CurCustNum == 0) {
    program.desktop.Say("Select or enter a client first.");
    return;
  }
  IgnoringErrors([&] { program.screens.Unload("InvoiceDetail"); }, [&] { globals.CurInvoiceNum = 0; },
                 [&] { globals.oClient->OpenCn(); }, [&] { globals.oClient->GetClient(globals.CurCustNum); },
                 [&] { globals.ClientDiscount = globals.oClient->Discount; }, [&] { globals.oClient->CloseCn(); },
                 [&] { globals.CurInvoiceDate = program.desktop.Today(); }, [&] { globals.CurClientName.clear(); },
                 [&] { globals.CurInvoiceDesc.clear(); }, [&] { program.screens.Show("InvoiceDetail"); });
}

void ShowReceipts(Program& program) {
  if (program.globals.CurCustNum == 0) {
    program.desktop.Say("Select or enter a client first");
  } else if (CloseByItsExit(program.screens, Receipts::kName)) {
    program.screens.Show(Receipts::kName);
  }
}

}  // namespace norvane
