#include "screens/clients/ClientCommands.h"

#include "core/Trap.h"
#include "data/Client.h"
#include "forms/Form.h"
#include "forms/ScreenNames.h"
#include "screens/clients/RefreshCustList.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/InvoiceShown.h"

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

void CloseScreensOf(const ScreenTable& screens, std::int32_t custNum) {
  for (Form* form : screens.Loaded()) {
    const auto* screen = dynamic_cast<ClientScreen*>(form);
    if (screen && screen->Shows(custNum)) form->Unload();
  }
}

}  // namespace

void DeleteClient(Program& program, const ClientShown& client) {
  if (ConfirmDelete(program.desktop, client.name)) {
    // What they still have to store belongs to the client, too.
    CloseScreensOf(program.screens, client.number);
    if (program.screens.Has(screen::kKeepCopyBeforeDeletion)) program.screens.Run(screen::kKeepCopyBeforeDeletion);
    const Object<Client> clients = program.globals.oClient;
    clients->OpenCn();
    clients->DeleteClient(client.number);
    clients->CloseCn();
    if (CustInvoices* sales = program.screens.Find<CustInvoices>()) sales->ForgetClient(client.number);
  }
  RefreshCustList(program);
}

void ShowProfile(Program& program) {
  IgnoringErrors([&] { program.screens.Unload(screen::kProfile); }, [&] { program.globals.ProfileLoaded = true; },
                 [&] { program.screens.Show(screen::kProfile); });
}

bool SelectNewInvoice(Program& program, const ClientShown& client) {
  const auto read = client.number > 0 ? ReadClient(program, client.number) : ClientShown();
  if (!read) return false;
  if (read->number == 0) {
    program.desktop.Say("Select or enter a client first.");
    return false;
  }
  program.globals.ClientDiscount = program.globals.oClient->Discount;
  SelectInvoice(program, {0, program.desktop.Today(), "", client});
  return true;
}

void StartNewInvoice(Program& program, const ClientShown& client) {
  IgnoringErrors([&] {
    if (SelectNewInvoice(program, client)) program.screens.Reopen(screen::kInvoiceDetail);
  });
}

void ShowReceipts(Program& program, const ClientShown& client) {
  if (client.number == 0) {
    program.desktop.Say("Select or enter a client first");
  } else if (program.screens.Close(screen::kReceipts)) {
    SelectClient(program, client);
    program.screens.Show(screen::kReceipts);
  }
}

}  // namespace norvane
