#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "core/Currency.h"
#include "core/Date.h"
#include "core/Object.h"

namespace norvane {

class Client;
class FindIndex;
class Inventory;
class Invoice;
class Vendor;
class cSetup;
class Recordset;

/// The state that the screens share. Screens hand things to one another through these, never through arguments: the
/// opener sets them and shows the next screen, which reads them as it loads.
struct Globals {
  // The selection.
  std::int32_t CurCustNum = 0;  ///< 0 for none or a new client, -1 for all of them on the payments screen
  std::int32_t CurCatNum = 0;
  std::int32_t CurInvoiceNum = 0;  ///< 0 means a new invoice
  Date CurInvoiceDate;
  std::string CurInvoiceDesc;
  std::string CurClientName;
  std::int32_t CurVendorNum = 0;
  double ClientDiscount = 0;  ///< percent
  std::int32_t ClientCount = 0;

  // Settings.
  std::string CoName;
  double StateTaxRate = 0;  ///< percent
  std::filesystem::path IniPath;

  // What a screen is to do when it opens or reloads.
  bool NewClientMode = false;
  bool ProfileLoaded = false;
  bool RefreshNeeded = false;
  std::int16_t AgingDays = 0;
  bool InvoicesStale = false;   ///< a deletion of CurInvoiceNum is pending; the sales list carries it out
  bool InventoryStale = false;  ///< a deletion of an item is pending; the inventory load carries it out
  std::int32_t RowSelected = 0;
  bool PayClientSet = false;
  bool PayDateSet = false;
  bool VendorPicked = false;
  std::string PayDateCaller;
  std::string LedgerField;
  std::string LedgerFieldValue;
  Date LedgerSince;
  Date InvoiceSince;
  Date ReceiptDate;
  Date PeriodBeginning, PeriodEnd;  ///< for the report over a period that opens next; empty for its own

  // Row editing; one flag for all row-editing screens.
  bool RowChanged = false;

  // The invoice screen's numbers and flags.
  std::int32_t BeforeQty = 0;
  std::int32_t EditQty = 0;
  std::int32_t QtyLeft = 0;
  Currency UnitCharge;
  bool InvoiceDirty = false;
  bool ItemsChanged = false;

  // The data objects and the lists in memory.
  Object<Client> oClient;
  Object<Invoice> oInvoice;
  Object<Vendor> oVendor;
  Object<Inventory> oInventory;
  Object<cSetup> oSetup;
  Object<FindIndex> oFindIndex;
  Object<Recordset> rsClients;
  Object<Recordset> rsClientPick;
  Object<Recordset> rsInvoices;
  Object<Recordset> rsInventory;
  Object<Recordset> rsCategories;
  Object<Recordset> rsPaymentTypes;
  Object<Recordset> rsExpenseTypes;
  Object<Recordset> rsShippingTypes;
  Object<Recordset> rsVendors;
  Object<Recordset> rsLedger;
  Object<Recordset> rsBackOrders;
};

}  // namespace norvane
