#include "reports/RegisterReports.h"

#include "forms/Program.h"
#include "reports/BackOrderReport.h"
#include "reports/Prt30Days.h"
#include "reports/PrtBals.h"
#include "reports/PrtIncome.h"
#include "reports/PrtInventory.h"
#include "reports/PrtInventoryBestSales.h"
#include "reports/PrtInventorySales.h"
#include "reports/PrtInvoice.h"

namespace norvane {

void RegisterReports(Program& program) {
  ScreenTable& screens = program.screens;
  screens.Add<Prt30Days>();
  screens.Add<PrtBackOrdered>();
  screens.Add<PrtBackOrders>();
  screens.Add<PrtBals>();
  screens.Add<PrtIncome>();
  screens.Add<PrtInventory>();
  screens.Add<PrtInventoryBestSales>();
  screens.Add<PrtInventorySales>();
  screens.Add<PrtInvoice>();
}

}  // namespace norvane
