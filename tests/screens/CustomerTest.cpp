#include <filesystem>

#include "Office.h"
#include "data/Client.h"
#include "screens/clients/Profile.h"
#include "store/Recordset.h"

namespace norvane::test {
namespace {

class CustomerTest : public Office {
 protected:
  std::vector<std::string> Names() { return ColumnOf(Main().CustList2, 2); }
  std::string Panel(int number) { return Main().StatusBar1.Panels().at(static_cast<std::size_t>(number) - 1).text; }
};

TEST_F(CustomerTest, StartsWithTheClientsByNameAndTheFirstOneSelected) {
  AddClients();
  database.Execute(
      "UPDATE tb_Client SET HomePhone = '1', WorkPhone = '2', CelPhone = '3', Email = 'b@x' WHERE CustNum = 1002;"
      "INSERT INTO tb_Company (Name, Statetaxrate) VALUES ('Quill & Co', 8.25)");
  Start();
  EXPECT_THAT(Names(), ElementsAre("Adams, Bea", "Moss, Ada", "Moss, Carl"));
  EXPECT_EQ(RowText(Main().CustList2, 1), "1002||Adams, Bea|1|2|3|b@x");
  EXPECT_EQ(RowText(Main().CustList2, 2), "1003||Moss, Ada||||") << "a Null is empty";
  EXPECT_TRUE(Main().CustList2.Visible());
  EXPECT_EQ(globals.CurCustNum, 1002);
  EXPECT_EQ(globals.CurClientName, "Adams, Bea ");
  EXPECT_EQ(globals.CurInvoiceDate, desktop.Today());
  EXPECT_EQ(Main().CustList2.Col(), 2);
  EXPECT_EQ(globals.CoName, "Quill & Co");
  EXPECT_EQ(globals.StateTaxRate, 8.25);
  EXPECT_EQ(Panel(1), "Sunday, November 22, 2026   02:29 PM");
  EXPECT_EQ(Panel(2), "3 Clients");
  EXPECT_FALSE(IsOpen("intro"));
  EXPECT_EQ(Connections(), 0);
}

TEST_F(CustomerTest, AsksForAClientWhenThereIsNone) {
  const auto screens = {"CustInvoices", "InvoiceDetail", "Receipts", "Billing", "Prt30Days"};
  StandIn(screens);
  desktop.Expect("Please enter a client into the database!");
  Start();
  ASSERT_TRUE(IsOpen("Profile"));
  EXPECT_EQ(The<Profile>().lblCustNum.Caption(), "1001");
  EXPECT_EQ(The<Profile>().Owner(), &Main());
  EXPECT_EQ(program.focus.ActiveForm(), &The<Profile>()) << "the main screen comes up behind it";
  EXPECT_EQ(Main().CustList2.Rows(), 1);
  EXPECT_EQ(Panel(2), "0 Clients");

  for (MenuEntry* entry : {&Main().mnuDelete, &Main().mnuInvoices, &Main().mnuNewInvoice, &Main().mnuReceive,
                           &Main().mnuBilling, &Main().mnu30days, &Main().mnuClient}) {
    entry->Choose();
  }
  for (const char* screen : screens) EXPECT_FALSE(IsOpen(screen)) << screen;
}

TEST_F(CustomerTest, GoesOnWithoutADatabase) {
  std::filesystem::remove(database.File());
  ExpectBoxes({"cSetup.GetCompanyInfo -", "Inventory.rsInventory -", "Inventory.rsCategories -",
               "cSetup.GetCompanyInfo -", "cSetup.rsPaymentTypes -", "cSetup.rsExpenseTypes -",
               "cSetup.rsShippingTypes -", "Client.GetAllClients -", "Globals.RefreshCustList -91 "});
  Start();
  EXPECT_FALSE(IsOpen("Profile")) << "who knows whether there are clients";
  EXPECT_THAT(desktop.boxes.front().text, HasSubstr(" -3709 The connection cannot be used"));
  EXPECT_EQ(desktop.boxes.front().title, "Norvanes");
  EXPECT_TRUE(Main().IsVisible());
  EXPECT_EQ(Main().CustList2.Rows(), 1);
  EXPECT_FALSE(std::filesystem::exists(database.File()));
}

TEST_F(CustomerTest, SelectsByClickAndCountsClientsAtTheClocksNextTick) {
  StartWithClients();
  globals.CurInvoiceDate = Date();
  Select(3);
  EXPECT_EQ(globals.CurCustNum, 1001);
  EXPECT_EQ(globals.CurClientName, "Moss, Carl ");
  EXPECT_EQ(globals.CurInvoiceDate, desktop.Today());
  EXPECT_EQ(globals.RowSelected, 3);

  AddClient(1004, "Zola", "Emil");
  Main().btnRefresh.Press();
  EXPECT_EQ(Names().back(), "Zola, Emil");
  EXPECT_EQ(Main().CustList2.Row(), 3) << "what is marked is what is selected";
  EXPECT_EQ(Panel(2), "3 Clients");
  desktop.now = Date::FromYearMonthDay(2026, 11, 23) + 5.0 / 1440.0;
  desktop.Tick("Customer", "tmrClock");
  EXPECT_EQ(Panel(1), "Monday, November 23, 2026   12:05 AM");
  EXPECT_EQ(Panel(2), "4 Clients");
}

TEST_F(CustomerTest, DeletesAClientWithAllTransactionsOnYesOnly) {
  AddClients();
  database.Execute(
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date) VALUES (1001, 1003, 46000), (1002, 1001, 46000)");
  Start();
  Select(2);
  Choose(Main().mnuDelete, "Delete Client ... Moss, Ada ?", Answer::No);
  ExpectQuestion("Delete Client ... Moss, Ada ?");
  EXPECT_EQ(LastBox().text,
            "Deleting a client is not recommended when transactions exist for the client.  All transactions for "
            "[Moss, Ada ] will be deleted along with the client's profile.  Do you wish to do this?");
  EXPECT_EQ(Main().CustList2.Rows(), 4);

  Choose(Main().mnuDelete, "Delete Client", Answer::Yes);
  EXPECT_THAT(Names(), ElementsAre("Adams, Bea", "Moss, Carl"));
  EXPECT_THAT(database.Rows("SELECT InvoiceNum FROM tb_Invoice"), ElementsAre("1002"));
  EXPECT_EQ(globals.CurCustNum, 1003) << "the deleted one stays selected until the next click";
}

TEST_F(CustomerTest, OpensAnInvoiceAndThePaymentsForASelectionOnly) {
  StandIn({"InvoiceDetail", "Receipts"});
  AddClients();
  database.Execute("UPDATE tb_Client SET Discount = 12.5 WHERE CustNum = 1003");
  Start();
  Select(2);
  globals.CurInvoiceNum = 1007;
  globals.CurInvoiceDesc = "old";
  Main().btnNewInvoice.Press();
  EXPECT_TRUE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(globals.CurInvoiceNum, 0);
  EXPECT_EQ(globals.ClientDiscount, 12.5);
  EXPECT_EQ(globals.CurClientName + globals.CurInvoiceDesc, "Moss, Ada ");
  EXPECT_EQ(globals.CurCustNum, 1003);

  globals.CurCustNum = 0;
  Main().mnuNewInvoice.Choose();
  EXPECT_EQ(globals.CurCustNum, 1003) << "the client marked";
  globals.CurCustNum = 0;
  Main().CustList2.SetRow(0);
  Choose(Main().mnuNewInvoice, "Select or enter a client first.");
  Choose(Main().mnuReceive, "Select or enter a client first");
  EXPECT_EQ(LastBox().text, "Select or enter a client first");
  EXPECT_FALSE(IsOpen("Receipts"));
  Select(1);
  Main().btnReceipts.Press();
  EXPECT_TRUE(IsOpen("Receipts"));
}

TEST_F(CustomerTest, SaysWhatIsMissingForTheRegistryAndTheBackOrders) {
  StandIn({"GL", "Vendors", "PrtBackOrders", "PrtBackOrdered"});
  StartWithClients();
  Press(Main().btnPayments, "No Vendors found for ledger entries.  Enter Vendor profile first.");
  EXPECT_TRUE(IsOpen("Vendors"));
  EXPECT_FALSE(IsOpen("GL"));
  Choose(Main().mnuOrdering, "Unordered backorders not found.");
  Choose(Main().mnuOrdered, "No backordered items found.");
  EXPECT_FALSE(IsOpen("PrtBackOrders") || IsOpen("PrtBackOrdered"));

  database.Execute(
      "INSERT INTO tb_Vendor (VendorNum, Company) VALUES (1001, 'Paper Mill');"
      "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Par, InStock) VALUES (7, 1, 'Lamp', 1, 0);"
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date) VALUES (1001, 1003, 46000);"
      "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, BackOrder) VALUES (1001, 1001, 7, 2, 1, "
      "'-2')");
  Main().mnuPay.Choose();
  EXPECT_TRUE(IsOpen("GL"));
  EXPECT_EQ(globals.rsVendors->Text("Company"), "Paper Mill");
  Main().mnuOrdering.Choose();
  EXPECT_TRUE(IsOpen("PrtBackOrders"));
  database.Execute("UPDATE tb_trans SET Ordered = 46001");
  Main().mnuOrdered.Choose();
  EXPECT_TRUE(IsOpen("PrtBackOrdered"));
}

TEST_F(CustomerTest, SetsWhatTheScreensItOpensRead) {
  StandIn({"Prt30Days", "frmInventory"});
  StartWithClients();
  Main().mnu30days.Choose();
  EXPECT_EQ(globals.AgingDays, 30);
  Main().mnu60days.Choose();
  EXPECT_EQ(globals.AgingDays, 60);
  EXPECT_THAT(desktop.log, Contains("hide Prt30Days")) << "an open list is made again";
  Main().mnu90days.Choose();
  EXPECT_EQ(globals.AgingDays, 90);
  globals.CurCatNum = 5;
  Main().mnuInventory.Choose();
  EXPECT_EQ(globals.CurCatNum, 1);
  EXPECT_TRUE(IsOpen("frmInventory"));
  Main().mnuContents.Choose();
  EXPECT_EQ(desktop.log.back(), "help " + (database.Folder() / "help").string());

  EXPECT_FALSE(Main().mnuRepair.Enabled() || Main().mnuIncomeStatement.Enabled()) << "nothing stands behind them";
}

TEST_F(CustomerTest, OpensTheProfileAnewButAsksBeforeANewClientTakesItsPlace) {
  StartWithClients();
  Main().btnCustInfo.Press();
  EXPECT_EQ(The<Profile>().txtFname.Text(), "Bea");
  The<Profile>().txtFname.UserType("unsaved");
  Select(2);
  Main().mnuClient.Choose();
  EXPECT_EQ(The<Profile>().txtFname.Text(), "Ada");

  The<Profile>().txtFname.UserType("Adah");
  Press(Main().btnNewCust, "Save Changes to Moss, Adah?", Answer::Cancel);
  EXPECT_EQ(The<Profile>().txtFname.Text(), "Adah");
  EXPECT_FALSE(globals.NewClientMode);
  EXPECT_EQ(globals.CurCustNum, 1003);
}

TEST_F(CustomerTest, EndsTheProgramWithTheLastWindow) {
  StartWithClients();
  Main().btnCustInfo.Press();
  Main().UserClose();
  EXPECT_FALSE(desktop.HasQuit());
  EXPECT_FALSE(Main().IsVisible());
  EXPECT_TRUE(globals.oClient) << "the profile still works with it";
  program.screens.Find("Profile")->UserClose();
  EXPECT_TRUE(desktop.HasQuit());
  EXPECT_FALSE(globals.oClient || globals.oInvoice || globals.oInventory || globals.oSetup || globals.oVendor);
}

}  // namespace
}  // namespace norvane::test
