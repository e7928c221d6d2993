#include "screens/clients/Customer.h"

#include <memory>
#include <utility>

#include "core/FileNames.h"
#include "data/Client.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "data/SharedLists.h"
#include "data/Vendor.h"
#include "data/cSetup.h"
#include "screens/RowOf.h"
#include "screens/clients/ClientCommands.h"
#include "screens/clients/RefreshCustList.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/GetInvoices.h"
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
  CustList2.SetEmptyHint("No clients yet. Press Ctrl+N to enter the first one.");
  WireButtons();
  WireMenu();
  CustList2.Click = [this] { CustList2_Click(); };
  CustList2.DblClick = [this] { CustList2_DblClick(); };
  CustList2.KeyPress = [this](int keyAscii) { CustList2_KeyPress(keyAscii); };
  tmrClock.Tick = [this] { tmrClock_Timer(); };
}

void Customer::WireButtons() {
  btnRefresh.Click = [this] { RefreshCustList(program); };
  WireTo(btnNewCust, screen::kProfile, [this] { btnNewCust_Click(); });
  WireTo(btnCustInfo, screen::kProfile, [this] { btnCustInfo_Click(); });
  WireTo(btnDetails, screen::kCustInvoices, [this] { CustList2_DblClick(); });
  WireTo(btnNewInvoice, screen::kInvoiceDetail, [this] { btnNewInvoice_Click(); });
  WireTo(btnReceipts, screen::kReceipts, [this] { btnReceipts_Click(); });
  WireTo(btnPayments, screen::kGL, [this] { btnPayments_Click(); });
  WireTo(btnVendors, screen::kVendors);
  WireTo(btnInventory, screen::kfrmInventory, [this] { btnInventory_Click(); });
  btnExit.Click = [this] { Unload(); };
}

void Customer::WireMenu() {
  WireTo(mnuSetup, screen::kfrmSetup);
  WireTo(mnuBackup, screen::kfrmBackup);
  WireTo(mnuRestore, screen::kfrmRestore);
  WireTo(mnuRepair, screen::kCompactDatabaseFile, [this] { screens.Run(screen::kCompactDatabaseFile); });
  mnuExit.Click = [this] { Unload(); };

  WireTo(mnuClient, screen::kProfile, [this] {
    if (HasClients()) btnCustInfo_Click();
  });
  WireTo(mnuNewClient, screen::kProfile, [this] { btnNewCust_Click(); });
  mnuDelete.Click = [this] { mnuDelete_Click(); };
  WireTo(mnuNewInvoice, screen::kInvoiceDetail, [this] { btnNewInvoice_Click(); });
  WireTo(mnuVendors, screen::kVendors);
  WireTo(mnuFind, screen::kfrmFind, [this] { screens.Show(screen::kfrmFind, {.owner = this}); });

  WireTo(mnuInvoices, screen::kCustInvoices, [this] {
    if (HasClients()) CustList2_DblClick();
  });
  WireTo(mnuReceive, screen::kReceipts, [this] {
    if (HasClients()) btnReceipts_Click();
  });
  WireTo(mnuPay, screen::kGL, [this] { btnPayments_Click(); });
  WireTo(mnuInventory, screen::kfrmInventory, [this] { btnInventory_Click(); });

  WireToReopen(mnuFillBackOrders, screen::kBackOrderFill);

  WireTo(mnuOrdering, screen::kPrtBackOrders, [this] { mnuOrdering_Click(); });
  WireTo(mnuOrdered, screen::kPrtBackOrdered, [this] { mnuOrdered_Click(); });
  WireTo(mnuBilling, screen::kBilling, [this] {
    if (HasClients()) screens.Show(screen::kBilling);
  });
  WireToReopen(mnuInStock, screen::kPrtInventory);
  WireToReopen(mnuInventorySales, screen::kPrtInventorySales);
  WireToReopen(mnuBestSellers, screen::kPrtInventoryBestSales);
  WireToReopen(mnuBals, screen::kPrtBals);
  mnuProfiles.SetEnabled(false);
  WireTo(mnu30days, screen::kPrt30Days, [this] { ShowAging(30); });
  WireTo(mnu60days, screen::kPrt30Days, [this] { ShowAging(60); });
  WireTo(mnu90days, screen::kPrt30Days, [this] { ShowAging(90); });
  WireToReopen(mnuIncomeStatement, screen::kPrtIncome);

  WireToReopen(mnuOverview, screen::kfrmOverview);
  mnuContents.Click = [this] { mnuContents_Click(); };
  mnuAbout.Click = [this] { screens.Show(screen::kAbout); };
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
    SelectFirstClient();
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
  const auto show = [this](const char* process) {
    screens.Touch<intro>().lblProcess.SetCaption(process);
    desktop.DoEvents();
  };
  show("...Preloading Inventory...");
  GetInventory(workspace, globals.CurCatNum, 0);
  show("...Loading Company Settings...");
  SetupInit(workspace);
  show("...Loading Clients...");
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

// A list that could not be read says nothing of whether there are clients.
void Customer::SelectFirstClient() {
  if (!IsOpen(globals.rsClientPick.Share())) return;
  if (HasClients()) {
    CustList2.SetRow(1);
    SelectMarked();
    CustList2.SetCol(kClient);
  } else {
    desktop.Say("Please enter a client into the database!");
    SelectClient(program, {});
    screens.Show(screen::kProfile, {.owner = this});
  }
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
  CustList2.SetCol(kClient);
}

// The list.

void Customer::ClearList() {
  CustList2.Clear();
  CustList2.SetColumns({{"", 0},
                        {"", 0},
                        {"Name", 2200},
                        {"Home Phone", 1200},
                        {"Work Phone", 1200},
                        {"Cel Phone", 1200},
                        {"Email", 1200}});
  CustList2.SetRows(1);
}

void Customer::ListClients(Recordset& clients, std::int32_t marked) {
  for (; !clients.Eof(); clients.MoveNext()) {
    CustList2.AddItem(GridRow({clients.Text("custnum"), "", clients.Text("lname") + ", " + clients.Text("fname"),
                               clients.Text("homephone"), clients.Text("workphone"), clients.Text("celphone"),
                               clients.Text("email")}));
  }
  if (!MarkClient(globals.CurCustNum) && !MarkClient(marked)) CustList2.SetRow(0);
}

// The second part of the name is empty, so that it ends with a space.
ClientShown Customer::MarkedClient() const {
  const int row = CustList2.Row();
  if (row == 0) return {};
  return {convert.ToLong(CustList2.Cell(row, kCustNum)),
          CustList2.Cell(row, kClient) + " " + CustList2.Cell(row, kFirst)};
}

bool Customer::MarkClient(std::int32_t custNum) {
  const int row = RowOf(CustList2, kCustNum, convert.ToText(custNum));
  if (row > 0) CustList2.SetRow(row);
  return row > 0;
}

void Customer::CustList2_Click() {
  Trapped("Client.CustList2_Click -", [&] {
    if (HasClients()) SelectMarked();
  });
}

// Where no row is marked the selection stays.
void Customer::SelectMarked() {
  if (CustList2.Row() == 0) return;
  SelectClient(program, MarkedClient());
  globals.CurInvoiceDate = desktop.Today();
  globals.RowSelected = CustList2.Row();
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
        StartNewInvoice(program, SelectedClient(globals));
      }
    }
  });
}

void Customer::CustList2_KeyPress(int keyAscii) {
  if (keyAscii == static_cast<int>(Key::Enter)) CustList2_DblClick();
}

// The ways to other screens. What concerns one client acts on the one that is marked.

void Customer::btnCustInfo_Click() {
  if (!HasClients()) return;
  CustList2_Click();
  ShowProfile(program);
}

void Customer::btnNewCust_Click() {
  Trapped("Client.btnNewCust_Click -", [&] {
    // Before the flag is set: the profile clears it as it goes.
    if (!screens.Close(screen::kProfile)) return;
    globals.NewClientMode = true;
    SelectClient(program, {});
    screens.Show(screen::kProfile);
  });
}

void Customer::btnNewInvoice_Click() {
  if (!HasClients()) return;
  CustList2_Click();
  StartNewInvoice(program, SelectedClient(globals));
}

void Customer::btnReceipts_Click() {
  Trapped("Client.btnReceipts_Click -", [&] {
    if (!HasClients()) return;
    CustList2_Click();
    ShowReceipts(program, SelectedClient(globals));
  });
}

void Customer::btnPayments_Click() {
  Trapped("Client.btnPayments_Click -", [&] {
    globals.oVendor->OpenCn();
    globals.rsVendors = globals.oVendor->GetAllVendors();
    globals.oVendor->CloseCn();
    if (globals.rsVendors->Eof()) {
      screens.Show(screen::kVendors);
      desktop.Say("No Vendors found for ledger entries.  Enter Vendor profile first.");
    } else {
      screens.Show(screen::kGL);
    }
  });
}

void Customer::btnInventory_Click() {
  Trapped("Client.btnInventory_Click -", [&] {
    globals.CurCatNum = 1;
    screens.Show(screen::kfrmInventory);
  });
}

void Customer::mnuDelete_Click() {
  Trapped("Client.mnuDelete_Click -", [&] {
    if (!HasClients()) return;
    CustList2_Click();
    DeleteClient(program, SelectedClient(globals));
  });
}

void Customer::mnuOrdering_Click() {
  Trapped("Client.mnuOrdering_Click -", [&] {
    ShowBackOrders(&Invoice::GetBackOrderItems, screen::kPrtBackOrders, "Unordered backorders not found.");
  });
}

void Customer::mnuOrdered_Click() {
  Trapped("Client.mnuOrdered_Click -", [&] {
    ShowBackOrders(&Invoice::GetBackOrderedItems, screen::kPrtBackOrdered, "No backordered items found.");
  });
}

void Customer::ShowBackOrders(Object<Recordset> (Invoice::*read)(), const char* report, const char* noneFound) {
  if (!HasClients()) return;
  globals.rsBackOrders = std::make_shared<Recordset>();
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  globals.rsBackOrders = std::invoke(read, *invoice);
  invoice->CloseCn();
  if (globals.rsBackOrders->RecordCount() != 0) {
    screens.Reopen(report);
  } else {
    desktop.Say(noneFound);
  }
}

void Customer::ShowAging(std::int16_t days) {
  if (!HasClients()) return;
  screens.Unload(screen::kPrt30Days);
  globals.AgingDays = days;
  screens.Show(screen::kPrt30Days);
}

void Customer::mnuContents_Click() {
  Trapped("Client.mnuContents_Click -", [&] { desktop.ShowHelp(workspace.File(kHelpFolder)); });
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
