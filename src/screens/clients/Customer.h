#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/Form.h"
#include "screens/clients/ClientShown.h"

namespace norvane {

/// The main screen: lists all clients and opens every other screen.
class Customer : public Form {
 public:
  static constexpr const char* kName = screen::kCustomer;
  explicit Customer(Program& program);

  /// The columns of CustList2.
  enum ClientColumn { kCustNum, kFirst, kClient, kHomePhone, kWorkPhone, kCelPhone, kEmail };

  Frame Frame2{*this, "Frame2"};
  Button btnRefresh{*this, "btnRefresh", {.toolTip = "Refresh Client List", .icon = "refresh"}};
  Button btnNewCust{*this, "btnNewCust", {.toolTip = "Enter new client", .icon = "client-new"}};
  Button btnCustInfo{*this, "btnCustInfo", {.toolTip = "Profile for selected client", .icon = "client"}};
  Button btnDetails{*this, "btnDetails", {.toolTip = "Sales Invoices for selected client", .icon = "invoices"}};
  Button btnNewInvoice{
      *this, "btnNewInvoice", {.toolTip = "Enter new sales invoice for selected client", .icon = "invoice-new"}};
  Button btnReceipts{*this, "btnReceipts", {.toolTip = "Client Payments Received", .icon = "receipts"}};
  Frame Frame1{*this, "Frame1"};
  Button btnPayments{*this, "btnPayments", {.toolTip = "Payment/Deposit Registry", .icon = "registry"}};
  Button btnVendors{*this, "btnVendors", {.toolTip = "Vendor Profiles", .icon = "vendors"}};
  Button btnInventory{*this, "btnInventory", {.toolTip = "Add to/Edit Inventory", .icon = "inventory"}};
  Button btnExit{*this, "btnExit", {.toolTip = "Exit Norvane", .icon = "exit"}};
  Grid CustList2{*this, "CustList2", GridKind::List};
  StatusBar StatusBar1{*this, "StatusBar1"};
  Timer tmrClock{*this, "tmrClock", 10000, false};
  Timer Timer1{*this, "Timer1", 6000, true};

  MenuEntry mnuFile{*this, "mnuFile", "&File"};
  MenuEntry mnuSetup{mnuFile, "mnuSetup", "&Setup"};
  MenuEntry mnuBackup{mnuFile, "mnuBackup", "&Backup", "backup"};
  MenuEntry mnuRestore{mnuFile, "mnuRestore", "&Restore", "restore"};
  MenuEntry mnuRepair{mnuFile, "mnuRepair", "Repair/&Compact Data"};
  MenuEntry mnuExit{mnuFile, "mnuExit", "&Exit", "exit"};
  MenuEntry mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuEntry mnuClient{mnuEdit, "mnuClient", "&Client", "client"};
  MenuEntry mnuNewClient{mnuEdit, "mnuNewClient", "&New Client", "client-new"};
  MenuEntry mnuDelete{mnuEdit, "mnuDelete", "&Delete Client", "delete"};
  MenuEntry mnuNewInvoice{mnuEdit, "mnuNewInvoice", "New &Invoice", "invoice-new"};
  MenuEntry mnuVendors{mnuEdit, "mnuVendors", "&Vendors", "vendors"};
  MenuEntry mnuFind{mnuEdit, "mnuFind", "&Find Anything...", "search"};
  MenuEntry mnuTables{*this, "mnuTables", "&Tables"};
  MenuEntry mnuInvoices{mnuTables, "mnuInvoices", "Client &Invoices", "invoices"};
  MenuEntry mnuReceive{mnuTables, "mnuReceive", "Client &Receipts", "receipts"};
  MenuEntry mnuPay{mnuTables, "mnuPay", "&Payment/Deposit Registry", "registry"};
  MenuEntry mnuInventory{mnuTables, "mnuInventory", "&Inventory Maintenance", "inventory"};
  MenuEntry mnuFillBackOrders{mnuTables, "mnuFillBackOrders", "&Fill Back Orders", "order"};
  MenuEntry mnuPrint{*this, "mnuPrint", "&Print"};
  MenuEntry mnuBackOrder{mnuPrint, "mnuBackOrder", "Back &Orders"};
  MenuEntry mnuOrdering{mnuBackOrder, "mnuOrdering", "&Ordering", "order"};
  MenuEntry mnuOrdered{mnuBackOrder, "mnuOrdered", "O&rdered"};
  MenuEntry mnuBilling{mnuPrint, "mnuBilling", "&Billing"};
  MenuEntry mnuPrintInventory{mnuPrint, "mnuPrintInventory", "&Inventory"};
  MenuEntry mnuInStock{mnuPrintInventory, "mnuInStock", "&In Stock"};
  MenuEntry mnuInventorySales{mnuPrintInventory, "mnuInventorySales", "&Sales"};
  MenuEntry mnuBestSellers{mnuPrintInventory, "mnuBestSellers", "&Best Sellers"};
  MenuEntry mnuPrintClients{mnuPrint, "mnuPrintClients", "&Clients"};
  MenuEntry mnuBals{mnuPrintClients, "mnuBals", "&Bals"};
  MenuEntry mnuProfiles{mnuPrintClients, "mnuProfiles", "&Profiles"};
  MenuEntry mnu30days{mnuPrintClients, "mnu30days", "&30 Days"};
  MenuEntry mnu60days{mnuPrintClients, "mnu60days", "&60 Days"};
  MenuEntry mnu90days{mnuPrintClients, "mnu90days", "&90 days"};
  MenuEntry mnuIncomeStatement{mnuPrint, "mnuIncomeStatement", "I&ncome Statement"};
  MenuEntry mnuView{*this, "mnuView", "&View"};
  MenuEntry mnuOverview{mnuView, "mnuOverview", "&Overview", "overview"};
  MenuEntry mnuHelp{*this, "mnuHelp", "&Help"};
  MenuEntry mnuContents{mnuHelp, "mnuContents", "&Contents", "help"};
  MenuEntry mnuAbout{mnuHelp, "mnuAbout", "&About Norvane", "about"};

  /// Empties the list, headings and widths as at first.
  void ClearList();
  /// Adds a row for each client and marks the selected one, else the client `marked`, else none.
  void ListClients(Recordset& clients, std::int32_t marked);
  /// The client of the row that is marked; none where no row is.
  ClientShown MarkedClient() const;
  /// Marks a client's row. False, and the mark stays, if the client isn't in the list.
  bool MarkClient(std::int32_t custNum);
  /// Whether the list shows any client at all.
  bool HasClients() const { return CustList2.Rows() != 1; }

 private:
  void WireButtons();
  void WireMenu();

  void Form_Load() override;
  void CreateSharedObjects();
  void LoadUnderSplash();
  void StartStatusBar();
  void SelectFirstClient();
  void tmrClock_Timer();
  std::string ClockPanel() const;
  std::string CountPanel() const;

  void Form_Resize() override;
  void Form_GotFocus() override;

  void CustList2_Click();
  void CustList2_DblClick();
  void CustList2_KeyPress(int keyAscii);
  void SelectMarked();

  void btnCustInfo_Click();
  void btnNewCust_Click();
  void btnNewInvoice_Click();
  void btnReceipts_Click();
  void btnPayments_Click();
  void btnInventory_Click();

  void mnuDelete_Click();
  void mnuOrdering_Click();
  void mnuOrdered_Click();
  void ShowBackOrders(Object<Recordset> (Invoice::*read)(), const char* report, const char* noneFound);
  void ShowAging(std::int16_t days);
  void mnuContents_Click();

  void Form_Unload() override;
  void Form_Terminate() override;
};

}  // namespace norvane
