#include "tour/Stops.h"

namespace norvane::tour {
namespace {

using enum Step::Do;

// Steps that several stops begin with.
constexpr int kCompany = 86;  // row of a company with much to show: invoices, a back order, payments
const Step kClient{Click, "Customer", "CustList2", kCompany, 2};
const Step kSales{DoubleClick, "Customer", "CustList2", kCompany, 2};
const Step kPayments{Press, "Customer", "btnReceipts"};
const Step kRegistry{Press, "Customer", "btnPayments"};
const Step kInventory{Press, "Customer", "btnInventory"};
const Step kProfile{Press, "Customer", "btnCustInfo"};
const Step kInvoice{DoubleClick, "CustInvoices", "InvoiceList", 2, 2};
const Step kNoDate{Edit, "Receipts", "PaymentList", 2, 3, "13/32/2025"};
const Step kSetup{Choose, "Customer", "mnuSetup"};
const Step kOrdering{Choose, "Customer", "mnuOrdering"};

}  // namespace

const std::vector<Stop>& Stops() {
  static const std::vector<Stop> stops{
      {"clients", "Customer", {kClient}},
      {"clients-menu", "Customer", {kClient, {Open, "Customer", "mnuEdit"}}},
      {"clients-typed", "Customer", {kClient, {Type, "Customer", "CustList2", 1, 1, "be"}}},
      {"clients-missed", "Customer", {kClient, {Type, "Customer", "CustList2", 1, 1, "zq"}}},
      {"question", "Customer", {kClient, {Choose, "Customer", "mnuDelete"}}, Stop::Shot::Box},
      {"tool-tip", "Customer", {kClient, {Hover, "Customer", "btnNewInvoice"}}},
      {"find", "frmFind", {{Choose, "Customer", "mnuFind"}, {Type, "frmFind", "txtFind", 1, 1, "electric"}}},
      {"overview", "frmOverview", {{Choose, "Customer", "mnuOverview"}}},
      {"overview-empty", "frmOverview", {{Choose, "Customer", "mnuOverview"}}, Stop::Shot::Screen, true},
      {"help", "Customer", {{Choose, "Customer", "mnuContents"}}, Stop::Shot::Help},
      {"empty", "Customer", {}, Stop::Shot::Screen, true},
      {"splash", "intro", {{Show, "intro"}}},
      {"about", "About", {{Choose, "Customer", "mnuAbout"}}},

      {"profile-client", "Profile", {kClient, kProfile}},
      {"profile-billing", "Profile", {kClient, kProfile, {Tab, "Profile", "SSTab1", 1}}},
      {"profile-shipping", "Profile", {kClient, kProfile, {Tab, "Profile", "SSTab1", 2}}},
      {"profile-new", "Profile", {{Press, "Customer", "btnNewCust"}}},

      {"sales", "CustInvoices", {kSales}},
      {"sales-list-open", "CustInvoices", {kSales, {Open, "CustInvoices", "CmbInvoice"}}},
      {"sales-calendar", "CustInvoices", {kSales, {Open, "CustInvoices", "DTPicker1"}}},
      {"invoice", "InvoiceDetail", {kSales, kInvoice}},
      {"invoice-edit", "InvoiceDetail", {kSales, kInvoice, {Edit, "InvoiceDetail", "ItemList", 2, 3, "12*2"}}},
      {"invoice-new", "InvoiceDetail", {kClient, {Press, "Customer", "btnNewInvoice"}}},
      {"item-picker", "InvSearch", {kSales, kInvoice, {Press, "InvoiceDetail", "btnNewItem"}}},

      {"payments", "Receipts", {kClient, kPayments}},
      {"payments-edit",
       "Receipts",
       {kClient, kPayments, {Edit, "Receipts", "PaymentList", 2, 8, "Paid at the counter, second part"}}},
      {"payments-unreadable", "Receipts", {kClient, kPayments, kNoDate, {Click, "Receipts", "PaymentList", 2, 8}}},
      {"error", "Receipts", {kClient, kPayments, kNoDate, {Click, "Receipts", "PaymentList", 1, 8}}, Stop::Shot::Box},
      {"calendar", "PaymentDate", {kClient, kPayments, {CellButton, "Receipts", "PaymentList", 1, 3}}},
      {"client-picker", "CustSearch", {kClient, kPayments, {CellButton, "Receipts", "PaymentList", 1, 6}}},

      {"inventory", "frmInventory", {kInventory}},
      {"categories", "InventoryCats", {kInventory, {Press, "frmInventory", "btnCategories"}}},
      {"fill-back-orders", "BackOrderFill", {{Choose, "Customer", "mnuFillBackOrders"}}},
      {"order-dates", "BackOrderSet", {kOrdering, {Press, "PrtBackOrders", "btnOrder"}}},

      {"vendors", "Vendors", {{Press, "Customer", "btnVendors"}}},
      {"vendor-picker", "VendorSearch", {{Show, "VendorSearch"}}},
      {"registry", "GL", {kRegistry}},
      {"entry-types", "LedgerTypes", {{Show, "LedgerTypes"}}},
      {"expense-types", "ExpenseTypes", {kRegistry, {Press, "GL", "btnPaymentCategories"}}},

      {"setup", "frmSetup", {kSetup}},
      {"payment-types", "PaymentCategories", {kSetup, {Press, "frmSetup", "btnPayments"}}},
      {"shipping-types", "ShippingTypes", {kSetup, {Press, "frmSetup", "btnShipping"}}},

      {"print-invoice", "PrtInvoice", {kSales, {Press, "CustInvoices", "btnPrint"}}},
      {"print-receipt",
       "PrtReceipt",
       {kClient, kPayments, {Click, "Receipts", "PaymentList", 1, 4}, {Press, "Receipts", "btnPrint"}}},
      {"billing", "Billing", {{Choose, "Customer", "mnuBilling"}}},
      {"print-billing", "PrtBilling", {{Choose, "Customer", "mnuBilling"}, {Press, "Billing", "btnPrint"}}},
      {"print-balances", "PrtBals", {{Choose, "Customer", "mnuBals"}}},
      {"print-30-days", "Prt30Days", {{Choose, "Customer", "mnu30days"}}},
      {"print-income", "PrtIncome", {{Choose, "Customer", "mnuIncomeStatement"}}},
      {"print-registry", "PrtRegistry", {kRegistry, {Press, "GL", "btnPrint"}}},
      {"print-stock", "PrtInventory", {{Choose, "Customer", "mnuInStock"}}},
      {"print-item-sales", "PrtInventorySales", {{Choose, "Customer", "mnuInventorySales"}}},
      {"print-best-sellers", "PrtInventoryBestSales", {{Choose, "Customer", "mnuBestSellers"}}},
      {"print-to-order", "PrtBackOrders", {kOrdering}},
      {"print-ordered", "PrtBackOrdered", {{Choose, "Customer", "mnuOrdered"}}},
      {"print-filled", "PrtBackOrderFill", {{Choose, "Customer", "mnuFillBackOrders"}, {Show, "PrtBackOrderFill"}}},

      {"backup", "frmBackup", {{Choose, "Customer", "mnuBackup"}}},
      {"restore", "frmRestore", {{Choose, "Customer", "mnuRestore"}}},

      {"notice-getting-clients", "GettingClients", {{Show, "GettingClients"}}},
      {"notice-getting-invoices", "GettingInvoices", {{Show, "GettingInvoices"}}},
      {"notice-loading-invoices", "LoadingInvoices", {kClient, {Show, "LoadingInvoices"}}},
      {"notice-getting-inventory", "GettingInventory", {{Show, "GettingInventory"}}},
      {"notice-getting-receipts", "GettingReceipts", {{Show, "GettingReceipts"}}},
      {"notice-loading-clients", "LoadingClients", {{Show, "LoadingClients"}}},
      {"notice-loading-billing", "LoadingBilling", {{Show, "LoadingBilling"}}},
      {"notice-client-saved", "CustomerSaved", {{Show, "CustomerSaved"}}},
      {"notice-daily-copy", "DailyCopy", {{Show, "DailyCopy"}}},
      {"notice-working", "Working", {{Show, "Working"}}},
      {"notice-vendor-saved", "VendorSaved", {{Show, "VendorSaved"}}},
  };
  return stops;
}

}  // namespace norvane::tour
