#pragma once

/// The names under which screens and actions are in the screens' table. A name is written nowhere else.
namespace norvane::screen {

inline constexpr char kAbout[] = "About";
inline constexpr char kintro[] = "intro";

inline constexpr char kCustomer[] = "Customer";
inline constexpr char kCustSearch[] = "CustSearch";
inline constexpr char kProfile[] = "Profile";

inline constexpr char kCustInvoices[] = "CustInvoices";
inline constexpr char kInvoiceDetail[] = "InvoiceDetail";
inline constexpr char kPaymentDate[] = "PaymentDate";
inline constexpr char kReceipts[] = "Receipts";

inline constexpr char kfrmFind[] = "frmFind";
inline constexpr char kfrmOverview[] = "frmOverview";

inline constexpr char kBackOrderSet[] = "BackOrderSet";
inline constexpr char kfrmInventory[] = "frmInventory";
inline constexpr char kInvSearch[] = "InvSearch";
inline constexpr char kInventoryCats[] = "InventoryCats";

inline constexpr char kGL[] = "GL";
inline constexpr char kLedgerTypes[] = "LedgerTypes";
inline constexpr char kVendors[] = "Vendors";
inline constexpr char kVendorSearch[] = "VendorSearch";

inline constexpr char kExpenseTypes[] = "ExpenseTypes";
inline constexpr char kfrmSetup[] = "frmSetup";
inline constexpr char kPaymentCategories[] = "PaymentCategories";
inline constexpr char kShippingTypes[] = "ShippingTypes";

// Notices.
inline constexpr char kCustomerSaved[] = "CustomerSaved";
inline constexpr char kGettingClients[] = "GettingClients";
inline constexpr char kGettingInventory[] = "GettingInventory";
inline constexpr char kGettingInvoices[] = "GettingInvoices";
inline constexpr char kGettingReceipts[] = "GettingReceipts";
inline constexpr char kLoadingBilling[] = "LoadingBilling";
inline constexpr char kLoadingClients[] = "LoadingClients";
inline constexpr char kLoadingInvoices[] = "LoadingInvoices";
inline constexpr char kVendorSaved[] = "VendorSaved";

// Reports, and what asks for their criteria.
inline constexpr char kBackOrderFill[] = "BackOrderFill";
inline constexpr char kBilling[] = "Billing";
inline constexpr char kPrt30Days[] = "Prt30Days";
inline constexpr char kPrtBackOrderFill[] = "PrtBackOrderFill";
inline constexpr char kPrtBackOrdered[] = "PrtBackOrdered";
inline constexpr char kPrtBackOrders[] = "PrtBackOrders";
inline constexpr char kPrtBals[] = "PrtBals";
inline constexpr char kPrtBilling[] = "PrtBilling";
inline constexpr char kPrtIncome[] = "PrtIncome";
inline constexpr char kPrtInventory[] = "PrtInventory";
inline constexpr char kPrtInventoryBestSales[] = "PrtInventoryBestSales";
inline constexpr char kPrtInventorySales[] = "PrtInventorySales";
inline constexpr char kPrtInvoice[] = "PrtInvoice";
inline constexpr char kPrtReceipt[] = "PrtReceipt";
inline constexpr char kPrtRegistry[] = "PrtRegistry";

// Maintenance; the last two are actions.
inline constexpr char kDailyCopy[] = "DailyCopy";
inline constexpr char kfrmBackup[] = "frmBackup";
inline constexpr char kfrmRestore[] = "frmRestore";
inline constexpr char kWorking[] = "Working";
inline constexpr char kCompactDatabaseFile[] = "CompactDatabaseFile";
inline constexpr char kKeepCopyBeforeDeletion[] = "KeepCopyBeforeDeletion";

}  // namespace norvane::screen
