#include "reports/RegisterReports.h"

#include "forms/Program.h"
#include "reports/BackOrderFill.h"
#include "reports/BackOrderReport.h"
#include "reports/Billing.h"
#include "reports/Prt30Days.h"
#include "reports/PrtBackOrderFill.h"
#include "reports/PrtBals.h"
#include "reports/PrtBilling.h"
#include "reports/PrtIncome.h"
#include "reports/PrtInventory.h"
#include "reports/PrtInventoryBestSales.h"
#include "reports/PrtInventorySales.h"
#include "reports/PrtInvoice.h"
#include "reports/PrtReceipt.h"
#include "reports/PrtRegistry.h"

namespace norvane {

void RegisterReports(Program& program) {
  ScreenTable& screens = program.screens;
  screens.Add<BackOrderFill>();
  screens.Add<Billing>();
  screens.Add<Prt30Days>();
  screens.Add<PrtBackOrderFill>();
  screens.Add<PrtBackOrdered>();
  screens.Add<PrtBackOrders>();
  screens.Add<PrtBals>();
  screens.Add<PrtBilling>();
  screens.Add<PrtIncome>();
  screens.Add<PrtInventory>();
  screens.Add<PrtInventoryBestSales>();
  screens.Add<PrtInventorySales>();
  screens.Add<PrtInvoice>();
  screens.Add<PrtReceipt>();
  screens.Add<PrtRegistry>();
}

}  // namespace norvane
