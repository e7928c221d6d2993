#include <filesystem>

#include "Office.h"
#include "core/store/Recordset.h"
#include "data/Client.h"
#include "screens/Profile.h"
#include "support/Gestures.h"

namespace norvane::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;

class CustomerTest : public Office {
 protected:
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int row = 1; row < Main().CustList2.Rows(); ++row) names.push_back(Main().CustList2.Cell(row, 2));
    return names;
  }
  std::string Panel(int number) { return Main().StatusBar1.Panels().at(static_cast<std::size_t>(number) - 1).text; }
};

TEST_F(CustomerTest, StartsWithTheClientsByNameAndTheFirstOneSelected) {
  AddClients();
  database.Execute(
      "UPDATE tb_Client SET HomePhone = '1', WorkPhone = '2', CelPhone = '3', Email = 'b@x' WHERE CustNum = 1002;"
      "INSERT INTO tb_Company (Name, Statetaxrate) VALUES ('Quill & Co', 8.25)");
  Start();

  EXPECT_THAT(Names(), ElementsAre("Adams, Bea", "Moss, Ada", "Moss, Carl"));
  EXPECT_EQ(Main().CustList2.Cell(1, 0), "1002");
  EXPECT_EQ(Main().CustList2.Cell(1, 3) + Main().CustList2.Cell(1, 4) + Main().CustList2.Cell(1, 5), "123");
  EXPECT_EQ(Main().CustList2.Cell(1, 6), "b@x");
  EXPECT_EQ(Main().CustList2.Cell(2, 6), "") << "a Null is empty";
  EXPECT_TRUE(Main().CustList2.Visible());
  EXPECT_EQ(globals.CurCustNum, 1002);
  EXPECT_EQ(globals.CurClientName, "Adams, Bea ");
  EXPECT_EQ(globals.CurInvoiceDate, desktop.Today());
  EXPECT_EQ(Main().CustList2.Col(), 2);
  EXPECT_EQ(globals.CoName, "Quill & Co");
  EXPECT_EQ(globals.StateTaxRate, 8.25);
  EXPECT_EQ(globals.rsCategories->RecordCount(), 1);
  EXPECT_GT(globals.rsShippingTypes->RecordCount(), 0);
  EXPECT_EQ(Panel(1), "Sunday, November 22, 2026   02:29 PM");
  EXPECT_EQ(Panel(2), "3 Clients");
  EXPECT_FALSE(IsOpen("intro"));
  EXPECT_EQ(program.engine.OpenConnections(database.File()), 0);
}

TEST_F(CustomerTest, AsksForAClientWhenThereIsNone) {
  desktop.Expect("Please enter a client into the database!");
  StandIn({"CustInvoices", "InvoiceDetail", "Receipts", "Billing", "Prt30Days"});
  Start();
  ASSERT_TRUE(IsOpen("Profile"));
  EXPECT_EQ(program.screens.Touch<Profile>().lblCustNum.Caption(), "1001");
  EXPECT_EQ(program.screens.Find("Profile")->Owner(), &Main());
  EXPECT_EQ(Main().CustList2.Rows(), 1);
  EXPECT_EQ(Panel(2), "0 Clients");

  for (MenuEntry* entry : {&Main().mnuDelete, &Main().mnuInvoices, &Main().mnuNewInvoice, &Main().mnuReceive,
                           &Main().mnuBilling, &Main().mnu30days, &Main().mnuClient}) {
    entry->Choose();
  }
  for (const char* screen : {"CustInvoices", "InvoiceDetail", "Receipts", "Billing", "Prt30Days"}) {
    EXPECT_FALSE(IsOpen(screen)) << screen;
  }
}

TEST_F(CustomerTest, GoesOnWithoutADatabase) {
  std::filesystem::remove(database.File());
  for (const char* label :
       {"cSetup.GetCompanyInfo -", "Inventory.rsInventory -", "Inventory.rsCategories -", "cSetup.GetCompanyInfo -",
        "cSetup.rsPaymentTypes -", "cSetup.rsExpenseTypes -", "cSetup.rsShippingTypes -", "Client.GetAllClients -",
        "Globals.RefreshCustList -91 ", "Please enter a client into the database!"}) {
    desktop.Expect(label);
  }
  // The profile that comes up reports as well: the client, the balance, the payment types.
  for (const char* label :
       {"Client.GetClient -", "Invoice.GetCustInvoices -", "Client.ClientBal -91 ", "Profile.Form_Load -91 "}) {
    desktop.Expect(label);
  }
  Start();
  EXPECT_THAT(desktop.boxes.front().text, HasSubstr(" -3709 The connection cannot be used"));
  EXPECT_EQ(desktop.boxes.front().title, "Norvanes");
  EXPECT_TRUE(Main().IsVisible());
  EXPECT_EQ(Main().CustList2.Rows(), 1);
  EXPECT_FALSE(std::filesystem::exists(database.File()));
}

TEST_F(CustomerTest, SelectsByClickAndKeepsTheListForThePicker) {
  AddClients();
  Start();
  globals.CurInvoiceDate = Date();
  Select(3);
  EXPECT_EQ(globals.CurCustNum, 1001);
  EXPECT_EQ(globals.CurClientName, "Moss, Carl ");
  EXPECT_EQ(globals.CurInvoiceDate, desktop.Today());
  EXPECT_EQ(globals.RowSelected, 3);

  EXPECT_EQ(globals.rsClients->State(), 0);
  globals.rsClientPick->MoveFirst();
  EXPECT_EQ(globals.rsClientPick->Text("lname"), "Adams");
}

TEST_F(CustomerTest, CountsClientsAtTheClocksNextTick) {
  AddClients();
  Start();
  AddClient(1004, "Zola", "Emil");
  Main().btnRefresh.Press();
  EXPECT_EQ(Names().back(), "Zola, Emil");
  EXPECT_EQ(Panel(2), "3 Clients");
  desktop.now = Date::FromYearMonthDay(2026, 11, 23) + 5.0 / 1440.0;
  desktop.Tick("Customer", "tmrClock");
  EXPECT_EQ(Panel(1), "Monday, November 23, 2026   12:05 AM");
  EXPECT_EQ(Panel(2), "4 Clients");
}

TEST_F(CustomerTest, DeletesAClientWithAllTransactionsOnYesOnly) {
  AddClients();
  database.Execute(
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date) VALUES (1001, 1003, 46000), (1002, 1001, 46000);"
      "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount) VALUES (1001, 1001, 7, 2, 10000),"
      "(1002, 1002, 7, 1, 10000);"
      "INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1001, 1003, 46000, 10000)");
  Start();
  Select(2);
  desktop.Expect("Delete Client ... Moss, Ada ?", Answer::No);
  Main().mnuDelete.Choose();
  EXPECT_EQ(LastBox().text,
            "Deleting a client is not recommended when transactions exist for the client.  All transactions for "
            "[Moss, Ada ] will be deleted along with the client's profile.  Do you wish to do this?");
  EXPECT_EQ(LastBox().buttons, Buttons::YesNo);
  EXPECT_EQ(LastBox().icon, Icon::Question);
  EXPECT_EQ(LastBox().preselected, Answer::No);
  EXPECT_EQ(Main().CustList2.Rows(), 4);

  desktop.Expect("Delete Client", Answer::Yes);
  Main().mnuDelete.Choose();
  EXPECT_THAT(Names(), ElementsAre("Adams, Bea", "Moss, Carl"));
  EXPECT_THAT(database.Rows("SELECT InvoiceNum FROM tb_Invoice UNION ALL SELECT InvoiceNum FROM tb_trans"),
              ElementsAre("1002", "1002"));
  EXPECT_EQ(database.Cell("SELECT COUNT(*) FROM tb_Receive"), "0");
  EXPECT_EQ(globals.CurCustNum, 1003) << "the deleted one stays selected until the next click";
}

TEST_F(CustomerTest, StartsAnInvoiceForTheSelectedClient) {
  AddClients();
  database.Execute("UPDATE tb_Client SET Discount = 12.5 WHERE CustNum = 1003");
  StandIn({"InvoiceDetail"});
  Start();
  Select(2);
  globals.CurInvoiceNum = 1007;
  globals.CurInvoiceDesc = "old";
  Main().btnNewInvoice.Press();
  EXPECT_TRUE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(globals.CurInvoiceNum, 0);
  EXPECT_EQ(globals.ClientDiscount, 12.5);
  EXPECT_EQ(globals.CurClientName + globals.CurInvoiceDesc, "");
  EXPECT_EQ(globals.CurCustNum, 1003);

  globals.CurCustNum = 0;
  desktop.Expect("Select or enter a client first.");
  Main().mnuNewInvoice.Choose();
}

TEST_F(CustomerTest, OpensPaymentsOnlyForASelection) {
  AddClients();
  StandIn({"Receipts"});
  Start();
  globals.CurCustNum = 0;
  desktop.Expect("Select or enter a client first");
  Main().mnuReceive.Choose();
  EXPECT_EQ(LastBox().text, "Select or enter a client first");
  EXPECT_FALSE(IsOpen("Receipts"));
  Select(1);
  Main().btnReceipts.Press();
  EXPECT_TRUE(IsOpen("Receipts"));
}

TEST_F(CustomerTest, OpensTheRegistryOnceThereIsAVendor) {
  AddClients();
  StandIn({"GL", "Vendors"});
  Start();
  desktop.Expect("No Vendors found for ledger entries.  Enter Vendor profile first.");
  Main().btnPayments.Press();
  EXPECT_TRUE(IsOpen("Vendors"));
  EXPECT_FALSE(IsOpen("GL"));
  database.Execute("INSERT INTO tb_Vendor (VendorNum, Company) VALUES (1001, 'Paper Mill')");
  Main().mnuPay.Choose();
  EXPECT_TRUE(IsOpen("GL"));
  EXPECT_EQ(globals.rsVendors->Text("Company"), "Paper Mill");
}

TEST_F(CustomerTest, ListsBackOrdersOrSaysThatThereAreNone) {
  AddClients();
  StandIn({"PrtBackOrders", "PrtBackOrdered"});
  Start();
  desktop.Expect("Unordered backorders not found.");
  Main().mnuOrdering.Choose();
  desktop.Expect("No backordered items found.");
  Main().mnuOrdered.Choose();

  database.Execute(
      "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Par, InStock) VALUES (7, 1, 'Lamp', 1, 0);"
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date) VALUES (1001, 1003, 46000);"
      "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, BackOrder) VALUES (1001, 1001, 7, 2, 1, "
      "'-2')");
  Main().mnuOrdering.Choose();
  EXPECT_TRUE(IsOpen("PrtBackOrders"));
  database.Execute("UPDATE tb_trans SET Ordered = 46001");
  Main().mnuOrdered.Choose();
  EXPECT_TRUE(IsOpen("PrtBackOrdered"));
}

TEST_F(CustomerTest, SetsWhatTheScreensItOpensRead) {
  AddClients();
  StandIn({"Prt30Days", "frmInventory"});
  Start();
  Main().mnu30days.Choose();
  EXPECT_EQ(globals.AgingDays, 30);
  Main().mnu60days.Choose();
  EXPECT_EQ(globals.AgingDays, 60);
  EXPECT_THAT(desktop.log, Contains("hide Prt30Days")) << "an open list is made anew";
  Main().mnu90days.Choose();
  EXPECT_EQ(globals.AgingDays, 90);
  globals.CurCatNum = 5;
  Main().mnuInventory.Choose();
  EXPECT_EQ(globals.CurCatNum, 1);
  EXPECT_TRUE(IsOpen("frmInventory"));
}

TEST_F(CustomerTest, OpensTheProfileAnewForTheSelectedClient) {
  AddClients();
  Start();
  Main().btnCustInfo.Press();
  auto& first = program.screens.Touch<Profile>();
  EXPECT_EQ(first.txtFname.Text(), "Bea");
  EXPECT_FALSE(globals.ProfileLoaded) << "cleared by the profile's load";
  first.txtFname.UserType("unsaved");
  Select(2);
  Main().mnuClient.Choose();
  EXPECT_EQ(program.screens.Touch<Profile>().txtFname.Text(), "Ada");
}

TEST_F(CustomerTest, AsksBeforeANewClientTakesThePlaceOfUnsavedChanges) {
  AddClients();
  Start();
  Main().btnCustInfo.Press();
  program.screens.Touch<Profile>().txtFname.UserType("Beatrice");
  desktop.Expect("Save Changes to Adams, Beatrice?", Answer::Cancel);
  Main().btnNewCust.Press();
  EXPECT_EQ(program.screens.Touch<Profile>().txtFname.Text(), "Beatrice");
  EXPECT_FALSE(globals.NewClientMode);
  EXPECT_EQ(globals.CurCustNum, 1002);

  desktop.Expect("Save Changes to", Answer::No);
  Main().mnuNewClient.Choose();
  EXPECT_EQ(program.screens.Touch<Profile>().lblCustNum.Caption(), "1004");
  EXPECT_TRUE(globals.NewClientMode);
  EXPECT_EQ(globals.CurCustNum, 1004);
}

TEST_F(CustomerTest, DisablesTheWaysToScreensThatAreNotThere) {
  AddClients();
  StandIn({"GL"});
  Start();
  EXPECT_TRUE(Main().btnPayments.Enabled());
  EXPECT_TRUE(Main().mnuPay.Enabled());
  EXPECT_FALSE(Main().mnuRepair.Enabled());
  EXPECT_FALSE(Main().mnuIncomeStatement.Enabled());
  EXPECT_FALSE(Main().mnuProfiles.Enabled());
  EXPECT_TRUE(Main().mnuDelete.Enabled());
}

TEST_F(CustomerTest, ShowsTheManual) {
  AddClients();
  Start();
  Main().mnuContents.Choose();
  EXPECT_EQ(desktop.log.back(), "help " + (database.Folder() / "help").string());
}

TEST_F(CustomerTest, EndsTheProgramWithTheLastWindow) {
  AddClients();
  Start();
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
