#include "screens/clients/RefreshCustList.h"

#include <memory>

#include "core/FileNames.h"
#include "core/Trap.h"
#include "data/Client.h"
#include "forms/Program.h"
#include "screens/clients/Customer.h"
#include "store/Recordset.h"

namespace norvane {

void RefreshCustList(Program& program) {
  Globals& globals = program.globals;
  Trap(program.desktop, "Globals.RefreshCustList -", [&] {
    if (IsOpen(globals.rsClients.Share())) globals.rsClients->Close();
    globals.oClient.Release();
    globals.rsClients.Release();
    auto& customer = program.screens.Touch<Customer>();
    const std::int32_t marked = customer.MarkedClient().number;
    customer.ClearList();
    globals.oClient = std::make_shared<Client>(program.workspace);
    globals.oClient->InitAccess(program.workspace.File(kDatabaseFile));
    globals.oClient->OpenCn();
    globals.rsClients = globals.oClient->GetAllClients();
    globals.ClientCount = globals.rsClients->RecordCount();
    globals.oClient->CloseCn();
    globals.rsClientPick = globals.rsClients->Clone();
    customer.ListClients(*globals.rsClients, marked);
    globals.rsClients->Close();
  });
}

}  // namespace norvane
