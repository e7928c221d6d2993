#include "screens/clients/ClientCommands.h"

#include <memory>
#include <string>

#include "core/FileNames.h"
#include "core/Trap.h"
#include "data/Client.h"
#include "forms/ActionNames.h"
#include "forms/Program.h"
#include "screens/clients/Customer.h"
#include "screens/sales/Receipts.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

bool ConfirmDelete(Desktop& desktop, const std::string& client) {
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
    auto& customer = program.screens.Touch<Customer>();
    customer.ClearList();
    globals.oClient = std::make_shared<Client>(program.workspace);
    globals.oClient->InitAccess(program.workspace.File(kDatabaseFile));
    globals.oClient->OpenCn();
    globals.rsClients = globals.oClient->GetAllClients();
    globals.ClientCount = globals.rsClients->RecordCount();
    globals.oClient->CloseCn();
    globals.rsClientPick = globals.rsClients->Clone();
    customer.ListClients(*globals.rsClients);
    globals.rsClients->Close();
  });
}

void DeleteSelectedClient(Program& program) {
  Globals& globals = program.globals;
  if (ConfirmDelete(program.desktop, globals.CurClientName)) {
    if (program.screens.Has(action::kKeepCopyBeforeDeletion)) program.screens.Run(action::kKeepCopyBeforeDeletion);
    globals.oClient->OpenCn();
    globals.oClient->DeleteClient(globals.CurCustNum);
    globals.oClient->CloseCn();
  }
  RefreshCustList(program);
}

void ShowProfile(Program& program) {
  IgnoringErrors([&] { program.screens.Unload(screen::kProfile); }, [&] { program.globals.ProfileLoaded = true; },
                 [&] { program.screens.Show(screen::kProfile); });
}

void StartNewInvoice(Program& program) {
  Globals& globals = program.globals;
  if (globals.CurCustNum == 0) {
    program.desktop.Say("Select or enter a client first.");
    return;
  }
  IgnoringErrors([&] { program.screens.Unload(screen::kInvoiceDetail); }, [&] { globals.CurInvoiceNum = 0; },
                 [&] { globals.oClient->OpenCn(); }, [&] { globals.oClient->GetClient(globals.CurCustNum); },
                 [&] { globals.ClientDiscount = globals.oClient->Discount; }, [&] { globals.oClient->CloseCn(); },
                 [&] { globals.CurInvoiceDate = program.desktop.Today(); }, [&] { globals.CurClientName.clear(); },
                 [&] { globals.CurInvoiceDesc.clear(); }, [&] { program.screens.Show(screen::kInvoiceDetail); });
}

void ShowReceipts(Program& program) {
  if (program.globals.CurCustNum == 0) {
    program.desktop.Say("Select or enter a client first");
  } else if (program.screens.Close(Receipts::kName)) {
    program.screens.Show(Receipts::kName);
  }
}

}  // namespace norvane
