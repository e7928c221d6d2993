#include "screens/Screens.h"

#include "forms/Program.h"
#include "screens/Notices.h"
#include "screens/clients/CustSearch.h"
#include "screens/clients/Customer.h"
#include "screens/clients/Profile.h"
#include "screens/find/frmFind.h"
#include "screens/overview/frmOverview.h"
#include "screens/registry/GL.h"
#include "screens/registry/LedgerTypes.h"
#include "screens/registry/VendorSearch.h"
#include "screens/registry/Vendors.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/InvoiceDetail.h"
#include "screens/sales/PaymentDate.h"
#include "screens/sales/Receipts.h"
#include "screens/setup/ExpenseTypes.h"
#include "screens/setup/PaymentCategories.h"
#include "screens/setup/ShippingTypes.h"
#include "screens/setup/frmSetup.h"
#include "screens/start/About.h"
#include "screens/start/intro.h"
#include "screens/stock/BackOrderSet.h"
#include "screens/stock/InvSearch.h"
#include "screens/stock/InventoryCats.h"
#include "screens/stock/frmInventory.h"

namespace norvane {

void RegisterScreens(Program& program) {
  ScreenTable& screens = program.screens;
  screens.Add<About>();
  screens.Add<BackOrderSet>();
  screens.Add<CustInvoices>();
  screens.Add<CustSearch>();
  screens.Add<Customer>();
  screens.Add<ExpenseTypes>();
  screens.Add<GL>();
  screens.Add<InvSearch>();
  screens.Add<InventoryCats>();
  screens.Add<InvoiceDetail>();
  screens.Add<LedgerTypes>();
  screens.Add<PaymentCategories>();
  screens.Add<PaymentDate>();
  screens.Add<Profile>();
  screens.Add<Receipts>();
  screens.Add<ShippingTypes>();
  screens.Add<VendorSearch>();
  screens.Add<Vendors>();
  screens.Add<frmFind>();
  screens.Add<frmInventory>();
  screens.Add<frmOverview>();
  screens.Add<frmSetup>();
  screens.Add<intro>();
  RegisterNotices(screens);
}

}  // namespace norvane
