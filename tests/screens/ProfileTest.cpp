#include "Office.h"
#include "screens/clients/Profile.h"

namespace norvane::test {
namespace {

class ProfileTest : public Office {
 protected:
  Profile& OpenNew() {
    Main().btnNewCust.Press();
    return The<Profile>();
  }
  Profile& OpenFor(int row) {
    Select(row);
    Main().btnCustInfo.Press();
    return The<Profile>();
  }
  /// Bea Adams, 1002, of three clients.
  Profile& StartWithAdams() {
    StartWithClients();
    return OpenFor(1);
  }
  static std::vector<TextBox*> Boxes(Profile& profile) {
    std::vector<TextBox*> boxes;
    for (Control* control : profile.Controls()) {
      auto* box = dynamic_cast<TextBox*>(control);
      if (box && box != &profile.txtDiscount) boxes.push_back(box);
    }
    return boxes;
  }
  std::string Stored(const std::string& column, int number = 1002) {
    return database.Cell("SELECT " + column + " FROM tb_Client WHERE CustNum = " + std::to_string(number));
  }
};

TEST_F(ProfileTest, SavesANewClientWithEveryField) {
  StartWithClients();
  Profile& profile = OpenNew();
  EXPECT_EQ(profile.lblBalDue.Caption(), "");
  EXPECT_EQ(profile.txtDiscount.Text(), "0");

  // Every box gets the name of its own, so that no two of them can have been mixed up.
  for (TextBox* box : Boxes(profile)) box->UserType(box->Name());
  profile.txtDiscount.UserType("12.5");
  profile.cmbPmtType1.UserPick(1);
  profile.cmbPmtType2.UserType("Barter");
  profile.btnSave.Press();
  EXPECT_EQ(
      database.Rows("SELECT * FROM tb_Client WHERE CustNum = 1004").at(0),
      "1004|txtLname|txtFname|txtMname|txtAddress|txtAddress2|txtCity|txtState|txtZipCode|txtHomePhone|txtWorkPhone|"
      "txtCellPhone|txtFax|txtCompany|txtEmail|txtWebPage||txtBillLname|txtBillFname|txtBillMName|txtBillAddress|"
      "txtBillAddress2|txtBillCity|txtBillState|TxtBillZipCode|txtBillHomePHone|txtBillWorkPhone|txtBillCellPhone|"
      "txtBillFax|txtBillEmail|txtBillWebPage|txtCard1|txtCard2|Check|Barter|txtExpDate1|txtExpDate2|txtPOnum|12.5|"
      "txtshippingLname|txtShippingFname|txtShippingMname|txtShippingAddress|txtShippingAddress2|txtShippingCity|"
      "txtShippingState|txtShippingZipCode|txtShippingHomePhone|txtShippingWorkPhone|txtShippingCelPhone");
  EXPECT_FALSE(globals.NewClientMode);
  EXPECT_EQ(Main().CustList2.Rows(), 5);
  AddClient(1005, "Zola", "Emil");
  profile.btnSave.Press();
  EXPECT_EQ(Main().CustList2.Rows(), 5) << "the list is read again only for what it shows";
  EXPECT_EQ(Connections(), 0);

  // Read back, every field is where it was typed.
  profile.btnExit.Press();
  Profile& again = OpenFor(4);
  EXPECT_EQ(again.lblCustNum.Caption(), "1004");
  for (const TextBox* box : Boxes(again)) EXPECT_EQ(box->Text(), box->Name());
  EXPECT_EQ(again.txtDiscount.Text() + again.cmbPmtType1.Text() + again.cmbPmtType2.Text(), "12.5CheckBarter");
}

TEST_F(ProfileTest, ShowsTheNoticeForASecondAndLetsTheUserGoOn) {
  Profile& profile = StartWithAdams();
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
  EXPECT_TRUE(profile.IsVisible());
  EXPECT_EQ(globals.CurCustNum, 1001) << "what was clicked meanwhile";
  EXPECT_EQ(Stored("Fname"), "Beatrice");
}

TEST_F(ProfileTest, IsReadyToBeClosedWhileTheNoticeStands) {
  Profile& profile = StartWithAdams();
  profile.txtFname.UserType("Beatrice");
  desktop.DuringWait([&] { OpenFor(2); });
  Press(profile.btnNewCustomer, "Save Changes to Adams, Beatrice?", Answer::Yes);
  EXPECT_FALSE(globals.NewClientMode) << "the old profile must not touch what the new one shows";
  EXPECT_EQ(globals.CurCustNum, 1003);
  EXPECT_EQ(The<Profile>().txtFname.Text(), "Ada");
  EXPECT_EQ(Stored("Fname"), "Beatrice");
}

TEST_F(ProfileTest, TakesNoNameAtAllButADiscount) {
  Profile& profile = StartWithAdams();
  profile.txtLname.UserType("");
  profile.txtFname.UserType("");
  profile.btnSave.Press();
  EXPECT_EQ(Stored("Lname||Fname||COUNT(*)"), "1") << "a client needs no name, but a discount";
  profile.txtLname.UserType("Adams");
  profile.txtDiscount.UserType("");
  Press(profile.btnSave, "Profile.btnSave_Click -13 Type mismatch.  If error persists contact Norvanes author.");
  EXPECT_EQ(Stored("Lname"), "");
  EXPECT_EQ(Connections(), 0);
}

TEST_F(ProfileTest, AsksWhatToDoWithChangesAtTheExit) {
  Profile* profile = &StartWithAdams();
  profile->btnExit.Press();
  EXPECT_FALSE(IsOpen("Profile")) << "without changes there is no question";

  profile = &OpenFor(1);
  profile->txtCity.UserType("Bath");
  desktop.Expect("Save Changes to Adams, Bea?", Answer::Cancel);
  profile->UserClose();
  ExpectQuestion("Save Client Pofile?", Buttons::YesNoCancel);
  EXPECT_TRUE(profile->IsVisible());
  Press(profile->btnExit, "Save Changes to", Answer::No);
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("City"), "NULL");

  profile = &OpenFor(1);
  profile->txtCity.UserType("Bath");
  profile->txtDiscount.UserType("");
  desktop.Expect("Save Changes to", Answer::Yes);
  desktop.Expect("Profile.btnSave_Click -13");
  profile->btnExit.Press();
  EXPECT_TRUE(IsOpen("Profile")) << "what was to be kept stays";
  EXPECT_EQ(profile->txtCity.Text(), "Bath");
  Press(profile->btnExit, "Save Changes to", Answer::No);

  profile = &OpenFor(1);
  profile->cmbPmtType2.UserPick(0);
  Press(profile->btnExit, "Save Changes to", Answer::Yes);
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("PaymentType2"), "Cash");
  EXPECT_EQ(globals.CurClientName, "Adams, Bea");
}

TEST_F(ProfileTest, LeavesNoNumberSelectedThatNobodyGot) {
  StartWithClients();
  OpenNew().btnDelete.Press();
  EXPECT_TRUE(The<Profile>().IsVisible()) << "there is no one to delete";
  The<Profile>().btnExit.Press();
  EXPECT_EQ(globals.CurCustNum, 1002) << "the client still marked";
  EXPECT_FALSE(globals.NewClientMode);

  Profile& left = OpenNew();
  Select(2);
  left.btnExit.Press();
  EXPECT_EQ(globals.CurCustNum, 1003) << "selected meanwhile";

  Profile& saved = OpenNew();
  saved.btnSave.Press();
  saved.btnExit.Press();
  EXPECT_EQ(globals.CurCustNum, 1004);
}

TEST_F(ProfileTest, DeletesOnYesAndClosesWithEitherAnswer) {
  Profile& profile = StartWithAdams();
  AddClient(1004, "Zola", "Emil");
  Press(profile.btnDelete, "Delete Client ... Adams, Bea?", Answer::No);
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("COUNT(*)"), "1");
  EXPECT_EQ(Main().CustList2.Rows(), 5) << "the list is read again";

  Press(OpenFor(1).btnDelete, "Deleting a client is not recommended", Answer::Yes);
  EXPECT_FALSE(IsOpen("Profile"));
  EXPECT_EQ(Stored("COUNT(*)"), "0");
  EXPECT_EQ(Main().CustList2.Rows(), 4);
}

TEST_F(ProfileTest, TurnsToANewClient) {
  Profile& profile = StartWithAdams();
  EXPECT_EQ(profile.ActiveControl(), &profile.txtFname);
  profile.txtCity.UserType("Bath");
  Press(profile.btnNewCustomer, "Save Changes to Adams, Bea?", Answer::No);
  EXPECT_EQ(profile.ActiveControl(), &profile.txtFname);
  EXPECT_EQ(profile.lblCustNum.Caption(), "1004");
  EXPECT_EQ(profile.txtCity.Text() + profile.txtLname.Text() + profile.lblBalDue.Caption(), "");
  EXPECT_TRUE(globals.NewClientMode);
  EXPECT_EQ(globals.CurClientName, "");
  EXPECT_EQ(profile.cmbPmtType1.Items().size(), 10u) << "the payment types are added once more";
}

TEST_F(ProfileTest, StartsAnInvoiceFromWhatItShows) {
  StandIn({"InvoiceDetail"});
  StartWithClients();
  Profile& fresh = OpenNew();
  fresh.txtLname.UserType("New");
  desktop.Expect("Save Changes to New, ?", Answer::No);
  Press(fresh.btnNewInvoice, "New Client data must be saved to enter invoice.");
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  Press(fresh.btnExit, "Save Changes to", Answer::No);

  Profile& profile = OpenFor(1);
  profile.txtDiscount.UserType("7.5");
  globals.CurInvoiceNum = 1009;
  Press(profile.btnNewInvoice, "Save Changes to Adams, Bea?", Answer::Yes);
  EXPECT_TRUE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(globals.CurInvoiceNum, 0);
  EXPECT_EQ(globals.ClientDiscount, 7.5);
  EXPECT_EQ(globals.CurClientName, "Adams, Bea");
  EXPECT_EQ(globals.CurCustNum, 1002);
}

TEST_F(ProfileTest, ShowsWhatIsOwedInRed) {
  AddClients();
  database.Execute(
      "INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1, 1002, 46000, -13058500), "
      "(2, 1003, 46000, 250000)");
  Start();
  const auto expectBalance = [&](int row, const char* balance, Colour colour) {
    const Profile& profile = OpenFor(row);
    EXPECT_EQ(profile.lblBalDue.Caption(), balance);
    EXPECT_EQ(profile.lblBalDue.ForeColor(), colour);
  };
  expectBalance(1, "$1,305.85", Colour::Red);
  expectBalance(2, "($25.00)", Colour::Black);
  expectBalance(3, "$0.00", Colour::Black);
}

TEST_F(ProfileTest, CopiesOneAddressToAnother) {
  Profile& profile = StartWithAdams();
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

}  // namespace
}  // namespace norvane::test
