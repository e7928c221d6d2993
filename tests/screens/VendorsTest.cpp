#include "RegistryOffice.h"
#include "screens/registry/VendorSearch.h"
#include "screens/sales/Receipts.h"
#include "support/Machines.h"

namespace norvane::test {
namespace {

class VendorsTest : public RegistryOffice {
 protected:
  explicit VendorsTest(const RegionalSettings& settings = {}) : RegistryOffice(settings) {}

  void Open() {
    Start();
    Main().btnVendors.Press();
  }
  Vendors& Screen() { return The<Vendors>(); }
  /// The number and the company shown.
  std::string Shown() { return Screen().lblVendorNum.Caption() + " " + Screen().txtCompany.Text(); }
  std::vector<std::string> Stored() { return database.Rows("SELECT VendorNum, Company, Discount FROM tb_Vendor"); }
  /// Does what saves a vendor, and looks at the notice until its timer ends it.
  void Saving(const std::function<void()>& step) {
    desktop.WhenModal(screen::kVendorSaved, [&](Form&) { desktop.Tick(screen::kVendorSaved, "Timer1"); });
    step();
  }
  void Save() {
    Saving([&] { Screen().btnSave.Press(); });
  }
};

TEST_F(VendorsTest, AVendorIsFoundByTypingAndSavedWithItsBoxesLeftAlone) {
  Open();
  EXPECT_EQ(Shown(), "1001 Acme");
  ASSERT_TRUE(Screen().cmbVendors.HasFocus());
  Screen().cmbVendors.UserType("bo");
  EXPECT_EQ(Shown(), "1001 Acme");
  Screen().cmbVendors.UserEnter();
  EXPECT_EQ(Shown(), "1002 Bolt");
  EXPECT_EQ(Screen().txtDiscount.Text() + Screen().txtCity.Text(), "2.5Bath");
  Screen().txtDiscount.UserType("7 and more");
  Screen().txtNotes.UserType("first\nsecond");
  Save();
  EXPECT_EQ(Shown(), "1002 Bolt");
  EXPECT_EQ(Screen().cmbVendors.Text(), "");
  EXPECT_THAT(Stored(), ElementsAre("1001|Acme|2.5", "1002|Bolt|7.0"));
  EXPECT_EQ(Connections(), 0);
  Screen().UserClose();
  EXPECT_FALSE(IsOpen("Vendors")) << "nothing is left to ask for";
}

TEST_F(VendorsTest, ChangesAreAskedForOnEveryWayToAnotherVendorAndOut) {
  Open();
  const auto& list = Screen().cmbVendors;
  Screen().txtFax.UserType("1");
  desktop.Expect("Save Changes to Acme?", Answer::Cancel);
  Screen().cmbVendors.UserPick(1);
  ExpectQuestion("Save Vendor Pofile?", Buttons::YesNoCancel);
  EXPECT_EQ(Shown() + list.Text(), "1001 Acme");
  Press(Screen().btnNewVendor, "Save Changes to Acme?", Answer::Cancel);
  EXPECT_EQ(Shown(), "1001 Acme");

  desktop.Expect("Save Changes to Acme?", Answer::Yes);
  Saving([&] { Screen().cmbVendors.UserPick(1); });
  EXPECT_EQ(Shown(), "1002 Bolt") << "the one picked, not the first of the new list";
  EXPECT_EQ(database.Cell("SELECT Fax FROM tb_Vendor WHERE VendorNum = 1001"), "1");

  Screen().txtCompany.UserType("");
  desktop.Expect("Save Changes to ?", Answer::Yes);
  desktop.Expect("Enter company name before saving.");
  Screen().UserClose();
  EXPECT_EQ(LastBox().icon, Icon::Information);
  desktop.Expect("Save Changes to ?", Answer::No);
  Screen().UserClose();
  EXPECT_FALSE(IsOpen("Vendors"));
}

class VendorsAbroad : public VendorsTest {
 protected:
  VendorsAbroad() : VendorsTest(Germany()) {}
};

TEST_F(VendorsAbroad, TheDiscountKeepsItsDecimals) {
  Open();
  EXPECT_EQ(Screen().txtDiscount.Text(), "2,5");
  Screen().txtDiscount.UserType("7,25 %");
  Save();
  EXPECT_THAT(Stored(), ElementsAre("1001|Acme|7.25", "1002|Bolt|2.5"));
}

TEST_F(VendorsTest, ARefusedSaveLosesTheVendorButNotWhatIsOnTheScreen) {
  Open();
  Screen().txtCompany.UserType("Acme's");
  desktop.Expect("Save Changes to Acme's?", Answer::Yes);
  desktop.Expect("Vendor.SaveVendorAccess --2147217900");
  Saving([&] { Screen().btnExit.Press(); });
  EXPECT_EQ(Shown(), "1001 Acme's");
  EXPECT_THAT(Stored(), ElementsAre("1002|Bolt|2.5"));
  Screen().txtCompany.UserType("Acme");
  desktop.Expect("Save Changes to Acme?", Answer::Yes);
  Saving([&] { Screen().btnExit.Press(); });
  EXPECT_FALSE(IsOpen("Vendors"));
  EXPECT_THAT(Stored(), ElementsAre("1001|Acme|2.5", "1002|Bolt|2.5"));
}

TEST_F(VendorsTest, WithoutVendorsTheFirstIsEnteredBeforeTheRegistryOpens) {
  database.Execute("DELETE FROM tb_Vendor");
  Start();
  Press(Main().btnPayments, "No Vendors found for ledger entries.  Enter Vendor profile first.");
  EXPECT_EQ(Shown(), "1001 ");
  Press(Screen().btnPayments, "Enter a new Vendor before entering Vendor Payments.");
  Screen().btnDelete.Press();  // asks nothing
  Screen().txtCompany.UserType(std::string(300, 'x'));
  Save();
  Screen().btnPayments.Press();
  EXPECT_EQ(List().DropDownItems(GL::kVendor).at(0).size(), 300u);
  EXPECT_EQ(Row(1), "*||||||||||");
}

TEST_F(VendorsTest, AnOpenRegistryFollows) {
  AddEntry(1, 1, "1", 30, 0, "Bolt");
  AddEntry(2, 2, "2", 0, 100, "");
  Open();
  Screen().btnPayments.Press();
  Screen().btnNewVendor.Press();
  EXPECT_EQ(Shown(), "1003 ");
  Screen().txtCompany.UserType("Crane");
  Save();
  EXPECT_THAT(List().DropDownItems(GL::kVendor), ElementsAre("Acme", "Bolt", "Crane"));

  Screen().cmbVendors.UserPick(1);
  Screen().txtCompany.UserType("Boulder");
  Press(Screen().btnDelete, "Do you wish to do this?", Answer::No);
  ExpectQuestion("Delete Vendor ... Bolt?");
  Press(Screen().btnDelete, "Do you wish to do this?", Answer::Yes);
  EXPECT_EQ(Shown(), "1001 Acme");
  EXPECT_EQ(List().Rows(), 3) << "Bolt's entry is gone";
  EXPECT_EQ(Registry().lblEndBal.Caption(), "$100.00");
  EXPECT_THAT(List().DropDownItems(GL::kVendor), ElementsAre("Acme", "Crane"));

  Press(Screen().btnDelete, "Do you wish to do this?", Answer::Yes);
  desktop.Expect("Do you wish to do this?", Answer::Yes);
  desktop.Expect("GL.SetPayments -3021");
  Screen().btnDelete.Press();
  EXPECT_EQ(Shown(), "1003 Crane") << "the boxes stay as they were";
  EXPECT_EQ(Connections(), 0);
}

TEST_F(VendorsTest, ThePickerWritesIntoARowOfThePayments) {
  Start();
  Select(2);
  Main().btnReceipts.Press();
  globals.RowSelected = 1;
  program.screens.Show(VendorSearch::kName);
  DoubleClick(The<VendorSearch>().VendorList, 2, 0);
  EXPECT_EQ(RowText(The<Receipts>().PaymentList, 1), "*||1002||||Bolt||");
  EXPECT_TRUE(globals.VendorPicked);
  EXPECT_FALSE(IsOpen("VendorSearch"));
}

}  // namespace
}  // namespace norvane::test
