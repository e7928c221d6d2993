#include "screens/Screens.h"

#include "forms/Program.h"
#include "screens/About.h"
#include "screens/CustInvoices.h"
#include "screens/CustSearch.h"
#include "screens/Customer.h"
#include "screens/ExpenseTypes.h"
#include "screens/InvSearch.h"
#include "screens/InventoryCats.h"
#include "screens/InvoiceDetail.h"
#include "screens/Notices.h"
#include "screens/PaymentCategories.h"
#include "screens/PaymentDate.h"
#include "screens/Profile.h"
#include "screens/Receipts.h"
#include "screens/ShippingTypes.h"
#include "screens/frmInventory.h"
#include "screens/frmSetup.h"
#include "screens/intro.h"

namespace norvane {

void RegisterScreens(Program& program) {
  ScreenTable& screens = program.screens;
  screens.Add<About>();
  screens.Add<CustInvoices>();
  screens.Add<CustSearch>();
  screens.Add<Customer>();
  screens.Add<ExpenseTypes>();
  screens.Add<InvSearch>();
  screens.Add<InventoryCats>();
  screens.Add<InvoiceDetail>();
  screens.Add<PaymentCategories>();
  screens.Add<PaymentDate>();
  screens.Add<Profile>();
  screens.Add<Receipts>();
  screens.Add<ShippingTypes>();
  screens.Add<frmInventory>();
  screens.Add<frmSetup>();
  screens.Add<intro>();
  RegisterNotices(screens);
}

}  // namespace norvane
