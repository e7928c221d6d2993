#include "Office.h"
#include "core/store/Recordset.h"
#include "data/Client.h"
#include "screens/Profile.h"

namespace norvane::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ProfileTest : public Office {
 protected:
  Profile& OpenNew() {
    Main().btnNewCust.Press();
    return program.screens.Touch<Profile>();
  }
  Profile& OpenFor(int row) {
    Select(row);
    Main().btnCustInfo.Press();
    return program.screens.Touch<Profile>();
  }
  void StartWithClients() {
    AddClients();
    Start();
  }
  std::string Stored(const std::string& column, int number) {
    return database.Cell("SELECT " + column + " FROM tb_Client WHERE CustNum = " + std::to_string(number));
  }
};

TEST_F(ProfileTest, SavesANewClientWithEveryField) {
  StartWithClients();
  Profile& profile = OpenNew();
  EXPECT_EQ(profile.lblBalDue.Caption(), "");
  EXPECT_EQ(profile.txtDiscount.Text(), "0");

  // Every box gets the name of its own, so that no two of them can have been mixed up.
  for (Control* control : profile.Controls()) {
    if (auto* box = dynamic_cast<TextBox*>(control)) box->UserType(box->Name());
  }
  profile.txtDiscount.UserType("12.5");
  profile.cmbPmtType1.UserPick(1);
  profile.cmbPmtType2.UserType("Barter");
  profile.btnSave.Press();

  EXPECT_EQ(
      database.Cell("SELECT Lname||' '||Fname||' '||Mname||' '||Address1||' '||Address2||' '||City||' '||State||' '||"
                    "ZipCode||' '||HomePhone||' '||WorkPhone||' '||CelPhone||' '||Fax||' '||Company||' '||Email||' '||"
                    "WebPage||'/'||Notes FROM tb_Client WHERE CustNum = 1004"),
      "txtLname txtFname txtMname txtAddress txtAddress2 txtCity txtState txtZipCode txtHomePhone txtWorkPhone "
      "txtCellPhone txtFax txtCompany txtEmail txtWebPage/");
  EXPECT_EQ(
      database.Cell(
          "SELECT BillLname||' '||BillFname||' '||BillMname||' '||BillAddress1||' '||BillAddress2||' '||Billcity||' '||"
          "BillState||' '||BillZipCode||' '||BillHomePhone||' '||BillWorkPhone||' '||BillCelPhone||' '||BillFax||' '||"
          "BillEmail||' '||BillWebPage||' '||CardNum1||' '||CardNum2||' '||PaymentType1||' '||PaymentType2||' '||"
          "ExpDate1||' '||ExpDate2||' '||POnum||' '||Discount FROM tb_Client WHERE CustNum = 1004"),
      "txtBillLname txtBillFname txtBillMName txtBillAddress txtBillAddress2 txtBillCity txtBillState TxtBillZipCode "
      "txtBillHomePHone txtBillWorkPhone txtBillCellPhone txtBillFax txtBillEmail txtBillWebPage txtCard1 txtCard2 "
      "Check Barter txtExpDate1 txtExpDate2 txtPOnum 12.5");
  EXPECT_EQ(
      database.Cell(
          "SELECT ShipLname||' '||ShipFname||' '||ShipMname||' '||ShipAddress1||' '||ShipAddress2||' '||Shipcity||' '||"
          "ShipState||' '||ShipZipCode||' '||ShipHomePhone||' '||ShipWorkPhone||' '||ShipCelPhone FROM tb_Client "
          "WHERE CustNum = 1004"),
      "txtshippingLname txtShippingFname txtShippingMname txtShippingAddress txtShippingAddress2 txtShippingCity "
      "txtShippingState txtShippingZipCode txtShippingHomePhone txtShippingWorkPhone txtShippingCelPhone");

  EXPECT_FALSE(globals.NewClientMode);
  EXPECT_FALSE(globals.RefreshNeeded);
  EXPECT_EQ(Main().CustList2.Rows(), 5);
  EXPECT_EQ(program.engine.OpenConnections(database.File()), 0);

  // Read back, every field stands where it was typed.
  profile.btnExit.Press();
  Profile& again = OpenFor(4);
  EXPECT_EQ(again.lblCustNum.Caption(), "1004");
  for (Control* control : again.Controls()) {
    auto* box = dynamic_cast<TextBox*>(control);
    if (!box || box == &again.txtDiscount) continue;
    EXPECT_EQ(box->Text(), box->Name());
  }
  EXPECT_EQ(again.txtDiscount.Text() + again.cmbPmtType1.Text() + again.cmbPmtType2.Text(), "12.5CheckBarter");
}

TEST_F(ProfileTest, ShowsTheNoticeForASecondAndLetsTheUserGoOn) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  profile.txtFname.UserType("Beatrice");
  std::string seen;
  desktop.DuringWait([&] {
    seen = program.screens.Find("CustomerSaved")->Caption();
    Select(3);
  });
  desktop.log.clear();
  profile.btnSave.Press();
  EXPECT_EQ(seen, "Save Client");
  EXPECT_THAT(desktop.log, ElementsAre("show CustomerSaved", "wait 1.00", "front Customer", "front Customer",
                                       "hide CustomerSaved", "gone CustomerSaved"));
  EXPECT_FALSE(IsOpen("CustomerSaved"));
  EXPECT_TRUE(profile.IsVisible());
  EXPECT_EQ(globals.CurCustNum, 1001) << "what was clicked meanwhile";
  EXPECT_EQ(Stored("Fname", 1002), "Beatrice");
}

TEST_F(ProfileTest, IsReadyToBeClosedWhileTheNoticeStands) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  profile.txtFname.UserType("Beatrice");
  desktop.DuringWait([&] {
    Select(2);
    Main().btnCustInfo.Press();
  });
  desktop.Expect("Save Changes to Adams, Beatrice?", Answer::Yes);
  profile.btnNewCustomer.Press();
  EXPECT_FALSE(globals.NewClientMode) << "the old profile must not touch what the new one shows";
  EXPECT_EQ(globals.CurCustNum, 1003);
  EXPECT_EQ(program.screens.Touch<Profile>().txtFname.Text(), "Ada");
  EXPECT_EQ(Stored("Fname", 1002), "Beatrice");
}

TEST_F(ProfileTest, RefreshesTheListOnlyForWhatItShows) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  EXPECT_TRUE(globals.RefreshNeeded) << "loading a name counts as a change of it";
  profile.btnSave.Press();
  AddClient(1004, "Zola", "Emil");
  profile.txtCity.UserType("Bath");
  profile.btnSave.Press();
  EXPECT_EQ(Main().CustList2.Rows(), 4);
  profile.txtEmail.UserType("bea@example");
  EXPECT_TRUE(globals.RefreshNeeded);
  profile.btnSave.Press();
  EXPECT_EQ(Main().CustList2.Rows(), 5);
}

TEST_F(ProfileTest, LosesTheClientToAnApostropheInAnyField) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  for (Control* control : profile.Controls()) {
    auto* box = dynamic_cast<TextBox*>(control);
    if (!box || box == &profile.txtDiscount) continue;
    box->UserType("O'Brien");
    desktop.Expect("Client.SaveClientAccess --2147217900 Syntax error");
    profile.btnSave.Press();
    EXPECT_EQ(Stored("COUNT(*)", 1002), "0") << box->Name();
    box->UserType("");
  }
  EXPECT_EQ(Main().CustList2.Rows(), 3);
  profile.btnSave.Press();
  EXPECT_EQ(Stored("COUNT(*)", 1002), "1") << "the profile still holds everything";
}

TEST_F(ProfileTest, SavesEmptyNamesButNoEmptyDiscount) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  profile.txtLname.UserType("");
  profile.txtFname.UserType("");
  profile.btnSave.Press();
  EXPECT_EQ(Main().CustList2.Cell(1, 2), ", ");

  profile.txtLname.UserType("Adams");
  profile.txtDiscount.UserType("");
  desktop.Expect("Profile.btnSave_Click -13 Type mismatch.  If error persists contact Norvanes author.");
  profile.btnSave.Press();
  EXPECT_EQ(Stored("Lname", 1002), "");
  EXPECT_EQ(program.engine.OpenConnections(database.File()), 1) << "the connection stays open";
}

TEST_F(ProfileTest, AsksWhatToDoWithChangesAtTheExit) {
  StartWithClients();
  Profile* profile = &OpenFor(1);
  profile->btnExit.Press();
  EXPECT_FALSE(IsOpen("Profile")) << "without changes there is no question";

  profile = &OpenFor(1);
  profile->txtCity.UserType("Bath");
  desktop.Expect("Save Changes to Adams, Bea?", Answer::Cancel);
  profile->UserClose();
  EXPECT_EQ(LastBox().title, "Save Client Pofile?");
  EXPECT_EQ(LastBox().buttons, Buttons::YesNoCancel);
  EXPECT_EQ(LastBox().preselected, Answer::No);
  EXPECT_TRUE(profile->IsVisible());

  desktop.Expect("Save Changes to", Answer::No);
  profile->btnExit.Press();
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("City", 1002), "NULL");

  profile = &OpenFor(1);
  profile->cmbPmtType2.UserPick(0);
  desktop.Expect("Save Changes to", Answer::Yes);
  profile->btnExit.Press();
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("PaymentType2", 1002), "Cash");
  EXPECT_EQ(globals.CurClientName, "Adams, Bea");
}

TEST_F(ProfileTest, LeavesNoNumberSelectedThatNobodyGot) {
  StartWithClients();
  OpenNew().btnExit.Press();
  EXPECT_EQ(globals.CurCustNum, 0);
  EXPECT_FALSE(globals.NewClientMode);

  Profile& profile = OpenNew();
  Select(2);
  profile.btnExit.Press();
  EXPECT_EQ(globals.CurCustNum, 1003) << "selected meanwhile";

  Profile& saved = OpenNew();
  saved.btnSave.Press();
  saved.btnExit.Press();
  EXPECT_EQ(globals.CurCustNum, 1004);
}

TEST_F(ProfileTest, DeletesOnYesAndClosesWithEitherAnswer) {
  StartWithClients();
  Profile& fresh = OpenNew();
  fresh.btnDelete.Press();
  EXPECT_TRUE(fresh.IsVisible()) << "nothing happens for a new client";
  fresh.btnExit.Press();

  AddClient(1004, "Zola", "Emil");
  desktop.Expect("Delete Client ... Adams, Bea?", Answer::No);
  OpenFor(1).btnDelete.Press();
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("COUNT(*)", 1002), "1");
  EXPECT_EQ(Main().CustList2.Rows(), 5) << "the list is read anew";

  desktop.Expect("Deleting a client is not recommended", Answer::Yes);
  OpenFor(1).btnDelete.Press();
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("COUNT(*)", 1002), "0");
  EXPECT_EQ(Main().CustList2.Rows(), 4);
}

TEST_F(ProfileTest, TurnsToANewClient) {
  StartWithClients();
  database.Execute("INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1001, 1002, 46000, 10000)");
  Profile& profile = OpenFor(1);
  profile.txtCity.UserType("Bath");
  desktop.Expect("Save Changes to Adams, Bea?", Answer::Cancel);
  profile.btnNewCustomer.Press();
  EXPECT_EQ(profile.txtCity.Text(), "Bath");

  desktop.Expect("Save Changes to Adams, Bea?", Answer::No);
  profile.btnNewCustomer.Press();
  EXPECT_EQ(profile.lblCustNum.Caption(), "1004");
  EXPECT_EQ(profile.txtCity.Text() + profile.txtLname.Text() + profile.lblBalDue.Caption(), "");
  EXPECT_TRUE(globals.NewClientMode);
  EXPECT_EQ(globals.CurClientName, "");
  EXPECT_EQ(profile.cmbPmtType1.Items().size(), 10u) << "the payment types are added once more";
}

TEST_F(ProfileTest, StartsAnInvoiceFromWhatItShows) {
  AddClients();
  StandIn({"InvoiceDetail"});
  Start();
  Profile& fresh = OpenNew();
  fresh.txtLname.UserType("New");
  desktop.Expect("Save Changes to New, ?", Answer::No);
  desktop.Expect("New Client data must be saved to enter invoice.");
  fresh.btnNewInvoice.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  desktop.Expect("Save Changes to", Answer::Cancel);
  fresh.btnNewInvoice.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  desktop.Expect("Save Changes to", Answer::No);
  fresh.btnExit.Press();

  Profile& profile = OpenFor(1);
  profile.txtDiscount.UserType("7.5");
  globals.CurInvoiceNum = 1009;
  desktop.Expect("Save Changes to Adams, Bea?", Answer::Yes);
  profile.btnNewInvoice.Press();
  EXPECT_TRUE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(globals.CurInvoiceNum, 0);
  EXPECT_EQ(globals.ClientDiscount, 7.5);
  EXPECT_EQ(globals.CurClientName, "");
  EXPECT_EQ(globals.CurCustNum, 1002);

  program.screens.Unload("InvoiceDetail");
  profile.txtDiscount.UserType("much");
  desktop.Expect("Save Changes to", Answer::No);
  profile.btnNewInvoice.Press();
  EXPECT_TRUE(IsOpen("InvoiceDetail")) << "errors are passed over";
  EXPECT_EQ(globals.ClientDiscount, 7.5);
}

TEST_F(ProfileTest, ShowsWhatIsOwedInRed) {
  AddClients();
  database.Execute(
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Discount, Tax, ShippingCharge, Interest) VALUES "
      "(1001, 1002, 46000, 10, 8500, 50000, 0);"
      "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount) VALUES (1001, 1001, 7, 2, 20000000);"
      "INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1001, 1002, 46000, 5000000),"
      "(1002, 1003, 46000, 250000)");
  Start();
  Profile* profile = &OpenFor(1);
  EXPECT_EQ(profile->lblBalDue.Caption(), "$1,305.85");
  EXPECT_EQ(profile->lblBalDue.ForeColor(), Colour::Red);
  profile = &OpenFor(2);
  EXPECT_EQ(profile->lblBalDue.Caption(), "($25.00)");
  EXPECT_EQ(profile->lblBalDue.ForeColor(), Colour::Black);
  profile = &OpenFor(3);
  EXPECT_EQ(profile->lblBalDue.Caption(), "$0.00");
  EXPECT_EQ(profile->lblBalDue.ForeColor(), Colour::Black);
}

TEST_F(ProfileTest, CopiesOneAddressToAnother) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  profile.txtFname.UserType("Bea");
  profile.txtCity.UserType("Bath");
  profile.txtCellPhone.UserType("1");
  profile.txtWebPage.UserType("w");
  profile.btnSame.Press();
  EXPECT_EQ(profile.txtBillLname.Text() + profile.txtBillCity.Text() + profile.txtBillCellPhone.Text() +
                profile.txtBillWebPage.Text(),
            "AdamsBath1w");

  profile.txtBillCity.UserType("Wells");
  profile.Command2.Press();
  EXPECT_TRUE(profile.OptBilling.Value());
  EXPECT_EQ(profile.txtshippingLname.Text() + profile.txtShippingCity.Text(), "AdamsWells");
  profile.Command1.Press();
  EXPECT_FALSE(profile.OptBilling.Value());
  EXPECT_EQ(profile.txtShippingCity.Text() + profile.txtShippingCelPhone.Text(), "Bath1");
}

TEST_F(ProfileTest, LetsTheKeyboardStartAtTheName) {
  StartWithClients();
  Profile& profile = OpenFor(1);
  EXPECT_EQ(profile.ActiveControl(), &profile.txtFname);
  profile.UserTab();
  EXPECT_EQ(profile.ActiveControl(), &profile.txtMname);
}

}  // namespace
}  // namespace norvane::test
