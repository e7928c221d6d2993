#include "screens/clients/Customer.h"

#include <memory>
#include <utility>

#include "data/Client.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "data/SharedLists.h"
#include "data/Vendor.h"
#include "data/cSetup.h"
#include "screens/Opening.h"
#include "screens/clients/Clients.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/Sales.h"
#include "screens/start/intro.h"
#include "store/Recordset.h"

namespace norvane {

Customer::Customer(Program& host) : Form(host, kName, {.caption = "Norvanes", .width = 8000, .height = 6000}) {
  Frame1.SetWidth(2100);
  SetLayout(layout::Column(
      {layout::Group(
           Frame2,
           layout::Strip({btnRefresh, btnNewCust, btnCustInfo, btnDetails, btnNewInvoice, btnReceipts, layout::Space(),
                          layout::Group(Frame1, layout::Strip({btnPayments, btnVendors, btnInventory, btnExit}))})),
       layout::Stretch(CustList2), StatusBar1}));
  SetExitButton(btnExit);
  WireButtons();
  WireMenu();
  CustList2.Click = [this] { CustList2_Click(); };
  CustList2.DblClick = [this] { CustList2_DblClick(); };
  CustList2.KeyPress = [this](int keyAscii) { CustList2_KeyPress(keyAscii); };
  tmrClock.Tick = [this] { tmrClock_Timer(); };
}

/// A way to a screen that the program doesn't hold stands there disabled.
template <class Way>
void Customer::Leads(Way& way, std::string_view screen, const std::function<void()>& handler) {
  way.Click = handler;
  way.SetEnabled(screens.Has(screen));
}

void Customer::WireButtons() {
  btnRefresh.Click = [this] { RefreshCustList(program); };
  Leads(btnNewCust, "Profile", [this] { btnNewCust_Click(); });
  Leads(btnCustInfo, "Profile", [this] { btnCustInfo_Click(); });
  Leads(btnDetails, "CustInvoices", [this] { CustList2_DblClick(); });
  Leads(btnNewInvoice, "InvoiceDetail", [this] { btnNewInvoice_Click(); });
  Leads(btnReceipts, "Receipts", [this] { btnReceipts_Click(); });
  Leads(btnPayments, "GL", [this] { btnPayments_Click(); });
  Leads(btnVendors, "Vendors", [this] { screens.Show("Vendors"); });
  Leads(btnInventory, "frmInventory", [this] { btnInventory_Click(); });
  btnExit.Click = [this] { Unload(); };
}

void Customer::WireMenu() {
  Leads(mnuSetup, "frmSetup", [this] { screens.Show("frmSetup"); });
  Leads(mnuBackup, "frmBackup", [this] { screens.Show("frmBackup"); });
  Leads(mnuRestore, "frmRestore", [this] { screens.Show("frmRestore"); });
  Leads(mnuRepair, "CompactDatabaseFile", [this] { screens.Run("CompactDatabaseFile"); });
  mnuExit.Click = [this] { Unload(); };

  Leads(mnuClient, "Profile", [this] {
    if (HasClients()) btnCustInfo_Click();
  });
  Leads(mnuNewClient, "Profile", [this] { btnNewCust_Click(); });
  mnuDelete.Click = [this] { mnuDelete_Click(); };
  Leads(mnuNewInvoice, "InvoiceDetail", [this] { btnNewInvoice_Click(); });
  Leads(mnuVendors, "Vendors", [this] { screens.Show("Vendors"); });

  Leads(mnuInvoices, "CustInvoices", [this] {
    if (HasClients()) CustList2_DblClick();
  });
  Leads(mnuReceive, "Receipts", [this] {
    if (HasClients()) btnReceipts_Click();
  });
  Leads(mnuPay, "GL", [this] { btnPayments_Click(); });
  Leads(mnuInventory, "frmInventory", [this] { btnInventory_Click(); });

  Leads(mnuOrdering, "PrtBackOrders", [this] { mnuOrdering_Click(); });
  Leads(mnuOrdered, "PrtBackOrdered", [this] { mnuOrdered_Click(); });
  Leads(mnuBilling, "Billing", [this] {
    if (HasClients()) screens.Show("Billing");
  });
  Leads(mnuInStock, "PrtInventory", [this] { ShowAnew(screens, "PrtInventory"); });
  Leads(mnuInventorySales, "PrtInventorySales", [this] { ShowAnew(screens, "PrtInventorySales"); });
  Leads(mnuBestSellers, "PrtInventoryBestSales", [this] { ShowAnew(screens, "PrtInventoryBestSales"); });
  Leads(mnuBals, "PrtBals", [this] { ShowAnew(screens, "PrtBals"); });
  mnuProfiles.SetEnabled(false);
  Leads(mnu30days, "Prt30Days", [this] { ShowAging(30); });
  Leads(mnu60days, "Prt30Days", [this] { ShowAging(60); });
  Leads(mnu90days, "Prt30Days", [this] { ShowAging(90); });
  Leads(mnuIncomeStatement, "PrtIncome", [this] { ShowAnew(screens, "PrtIncome"); });

  mnuContents.Click = [this] { mnuContents_Click(); };
  mnuAbout.Click = [this] { screens.Show("About"); };
}

// Start-up.

void Customer::Form_Load() {
  CustList2.SetFocus();
  Trapped("Client.Form_Load -", [&] {
    CreateSharedObjects();
    SetCaption("Norvanes");
    screens.Show(intro::kName, {.owner = this});
    LoadUnderSplash();
    screens.Unload(intro::kName);
    StartStatusBar();
    globals.oInvoice->InitAccess(workspace.File(kDatabaseFile));
    if (globals.rsClientPick->RecordCount() < 1) {
      desktop.Say("Please enter a client into the database!");
      globals.CurCustNum = 0;
      screens.Show("Profile", {.owner = this});
    } else {
      SelectFirstClient();
    }
  });
}

void Customer::CreateSharedObjects() {
  for (auto* rows :
       {&globals.rsClients, &globals.rsClientPick, &globals.rsInvoices, &globals.rsInventory, &globals.rsCategories,
        &globals.rsPaymentTypes, &globals.rsShippingTypes, &globals.rsExpenseTypes, &globals.rsVendors}) {
    *rows = std::make_shared<Recordset>();
  }
  globals.oVendor = std::make_shared<Vendor>(workspace);
  globals.oVendor->InitAccess(workspace.File(kDatabaseFile));
  globals.oInvoice = std::make_shared<Invoice>(workspace);
  globals.oSetup = std::make_shared<cSetup>(workspace);
  globals.oSetup->InitAccess(workspace.File(kDatabaseFile));
  globals.oSetup->OpenCn();
  globals.oSetup->GetCompanyInfo();
  globals.CoName = globals.oSetup->Name;
  globals.oSetup->CloseCn();
}

void Customer::LoadUnderSplash() {
  const auto tell = [this](const char* process) {
    screens.Touch<intro>().lblProcess.SetCaption(process);
    desktop.DoEvents();
  };
  tell("...Preloading Inventory...");
  GetInventory(workspace, globals.CurCatNum, 0);
  tell("...Loading Company Settings...");
  SetupInit(workspace);
  tell("...Loading Clients...");
  CustList2.SetVisible(false);
  RefreshCustList(program);
  CustList2.SetVisible(true);
}

void Customer::StartStatusBar() {
  StatusBar1.Clear();
  StatusBar1.AddPanel(ClockPanel(), 3500);
  StatusBar1.AddPanel(CountPanel(), 1500);
  tmrClock.SetRunning(true);
}

void Customer::SelectFirstClient() {
  SelectClient(1);
  CustList2.SetCol(2);
}

void Customer::tmrClock_Timer() {
  Trapped("Client.tmrClock_Timer -", [&] {
    StatusBar1.SetPanelText(1, ClockPanel());
    StatusBar1.SetPanelText(2, CountPanel());
  });
}

std::string Customer::ClockPanel() const {
  const Date now = desktop.Now();
  return convert.LongDateText(now) + "   " + convert.ClockText(now);
}

std::string Customer::CountPanel() const {
  return convert.ToText(globals.ClientCount) + " Clients";
}

void Customer::Form_Resize() {
  Trapped("Client.Form_Resize -", [&] {
    if (State() == WindowState::Minimized) return;
    if (Width() > 160) CustList2.SetWidth(Width() - 160);
    if (Width() > 20) CustList2.SetLeft(20);
    if (Height() > 1600) CustList2.SetHeight(Height() - 1600);
    if (Height() > 620) CustList2.SetTop(620);
    if (Width() > 160) Frame2.SetWidth(Width() - 160);
    if (Width() > 20) Frame2.SetLeft(20);
    Frame1.SetLeft(Frame2.Width() - Frame1.Width());
    if (Height() > 110) Frame1.SetTop(110);
  });
}

void Customer::Form_GotFocus() {
  CustList2.SetCol(2);
}

// The list.

void Customer::CustList2_Click() {
  Trapped("Client.CustList2_Click -", [&] {
    if (!HasClients()) return;
    SelectClient(CustList2.Row());
    globals.RowSelected = CustList2.Row();
  });
}

void Customer::SelectClient(int row) {
  globals.CurCustNum = convert.ToLong(CustList2.Cell(row, 0));
  globals.CurInvoiceDate = desktop.Today();
  // Column 1 is empty, so that the name ends with a blank.
  globals.CurClientName = CustList2.Cell(row, 2) + " " + CustList2.Cell(row, 1);
}

void Customer::CustList2_DblClick() {
  Trapped("Client.CustList2_DblClick -", [&] {
    if (!HasClients()) return;
    CustList2_Click();
    screens.Show(CustInvoices::kName);
    GetInvoices(program, StartOfYear(desktop));
    auto& sales = screens.Touch<CustInvoices>();
    if (sales.InvoiceList.Rows() >= 2) {
      sales.CmbInvoice.SetText(CustInvoices::kSelectedClient);
      sales.Show();
    } else {
      sales.Unload();
      if (AskYesNo("Enter new sales invoice for " + globals.CurClientName + "?", "No Sales Found")) {
        StartNewInvoice(program);
      }
    }
  });
}

void Customer::CustList2_KeyPress(int keyAscii) {
  if (keyAscii == static_cast<int>(Key::Enter)) CustList2_DblClick();
}

// The ways to other screens.

void Customer::btnCustInfo_Click() {
  if (HasClients()) ShowProfile(program);
}

void Customer::btnNewCust_Click() {
  Trapped("Client.btnNewCust_Click -", [&] {
    // Before the flag is set: the profile clears it as it goes.
    if (!CloseByItsExit(screens, "Profile")) return;
    globals.NewClientMode = true;
    globals.CurCustNum = 0;
    screens.Show("Profile");
  });
}

void Customer::btnNewInvoice_Click() {
  if (HasClients()) StartNewInvoice(program);
}

void Customer::btnReceipts_Click() {
  Trapped("Client.btnReceipts_Click -", [&] {
    if (HasClients()) ShowReceipts(program);
  });
}

void Customer::btnPayments_Click() {
  Trapped("Client.btnPayments_Click -", [&] {
    globals.oVendor->OpenCn();
    globals.rsVendors = globals.oVendor->GetAllVendors();
    globals.oVendor->CloseCn();
    if (globals.rsVendors->Eof()) {
      screens.Show("Vendors");
      desktop.Say("No Vendors found for ledger entries.  Enter Vendor profile first.");
    } else {
      screens.Show("GL");
    }
  });
}

void Customer::btnInventory_Click() {
  Trapped("Client.btnInventory_Click -", [&] {
    globals.CurCatNum = 1;
    screens.Show("frmInventory");
  });
}

void Customer::mnuDelete_Click() {
  Trapped("Client.mnuDelete_Click -", [&] {
    if (HasClients()) DeleteSelectedClient(program);
  });
}

void Customer::mnuOrdering_Click() {
  Trapped("Client.mnuOrdering_Click -", [&] {
    if (!HasClients()) return;
    globals.rsBackOrders = std::make_shared<Recordset>();
    globals.oInvoice->OpenCn();
    globals.rsBackOrders = globals.oInvoice->GetBackOrderItems();
    globals.oInvoice->CloseCn();
    if (globals.rsBackOrders->RecordCount() != 0) {
      ShowAnew(screens, "PrtBackOrders");
    } else {
      desktop.Say("Unordered backorders not found.");
    }
  });
}

void Customer::mnuOrdered_Click() {
  Trapped("Client.mnuOrdered_Click -", [&] {
    if (!HasClients()) return;
    globals.rsBackOrders = std::make_shared<Recordset>();
    globals.oInvoice->OpenCn();
    globals.rsBackOrders = globals.oInvoice->GetBackOrderedItems();
    globals.oInvoice->CloseCn();
    if (globals.rsBackOrders->RecordCount() != 0) {
      ShowAnew(screens, "PrtBackOrdered");
    } else {
      desktop.Say("No backordered items found.");
    }
  });
}

void Customer::ShowAging(std::int16_t days) {
  if (!HasClients()) return;
  screens.Unload("Prt30Days");
  globals.AgingDays = days;
  screens.Show("Prt30Days");
}

void Customer::mnuContents_Click() {
  Trapped("Client.mnuContents_Click -", [&] { desktop.ShowHelp(workspace.File("help")); });
}

// Shutdown.

void Customer::Form_Unload() {
  Trapped("Client.Form_Unload -", [&] { WriteGeometry(kName); });
}

void Customer::Form_Terminate() {
  const auto closeIfOpen = [](Object<Recordset>& rows) {
    if (IsOpen(rows.Share())) rows->Close();
  };
  IgnoringErrors(
      [&] { closeIfOpen(globals.rsClients); }, [&] { globals.oClient->CloseCn(); }, [&] { globals.oClient.Release(); },
      [&] { globals.rsClients.Release(); }, [&] { closeIfOpen(globals.rsInvoices); },
      [&] { globals.oInvoice->CloseCn(); }, [&] { globals.rsInvoices.Release(); }, [&] { globals.oInvoice.Release(); },
      [&] { globals.oInventory->CloseCn(); }, [&] { globals.rsInventory.Release(); },
      [&] { globals.oInventory.Release(); }, [&] { globals.oSetup->CloseCn(); },
      [&] { globals.rsPaymentTypes.Release(); }, [&] { globals.rsShippingTypes.Release(); },
      [&] { globals.oSetup.Release(); }, [&] { globals.oVendor.Release(); }, [&] { globals.rsVendors.Release(); });
}

}  // namespace norvane
