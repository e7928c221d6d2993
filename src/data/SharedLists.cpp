#include "data/SharedLists.h"

#include "core/FileNames.h"
#include "core/Trap.h"
#include "data/Inventory.h"
#include "data/cSetup.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

void CloseIfOpen(const Object<Recordset>& rows) {
  if (IsOpen(rows.Share())) rows->Close();
}

}  // namespace

void GetInventory(Workspace& workspace, std::int32_t catNum, std::int32_t itemNum) {
  Trap(workspace.reporter, "Globals.GetInventory -", [&] {
    Globals& globals = workspace.globals;
    CloseIfOpen(globals.rsInventory);
    CloseIfOpen(globals.rsCategories);
    globals.rsInventory = std::make_shared<Recordset>();
    globals.rsCategories = std::make_shared<Recordset>();
    globals.oInventory = std::make_shared<Inventory>(workspace);
    globals.oInventory->InitAccess(workspace.File(kDatabaseFile));
    globals.oInventory->OpenCn();
    if (globals.InventoryStale) {
      globals.oInventory->DeleteItem(itemNum);
      globals.InventoryStale = false;
    }
    globals.rsInventory = globals.oInventory->rsInventory(catNum);
    globals.rsCategories = globals.oInventory->rsCategories();
    globals.oInventory->CloseCn();
  });
}

void SetupInit(Workspace& workspace) {
  Trap(workspace.reporter, "Globals.SetupInit -", [&] {
    Globals& globals = workspace.globals;
    CloseIfOpen(globals.rsPaymentTypes);
    CloseIfOpen(globals.rsExpenseTypes);
    CloseIfOpen(globals.rsShippingTypes);
    globals.oSetup = std::make_shared<cSetup>(workspace);
    globals.oSetup->InitAccess(workspace.File(kDatabaseFile));
    globals.oSetup->OpenCn();
    globals.oSetup->GetCompanyInfo();
    globals.StateTaxRate = globals.oSetup->Statetaxrate;
    globals.rsPaymentTypes = globals.oSetup->rsPaymentTypes();
    globals.rsExpenseTypes = globals.oSetup->rsExpenseTypes();
    globals.rsShippingTypes = globals.oSetup->rsShippingTypes();
    globals.oSetup->CloseCn();
  });
}

}  // namespace norvane
