#include "Office.h"
#include "screens/setup/ExpenseTypes.h"
#include "screens/setup/PaymentCategories.h"
#include "screens/setup/ShippingTypes.h"
#include "screens/setup/frmSetup.h"
#include "store/Recordset.h"

namespace norvane::test {
namespace {

class LookupScreens : public Office {
 protected:
  LookupScreens() { AddClients(); }
  template <class Screen>
  Screen& Open() {
    program.screens.Show(Screen::kName);
    return The<Screen>();
  }
  template <class Screen>
  Screen& StartWith() {
    Start();
    return Open<Screen>();
  }
  std::vector<std::string> Types() { return database.Rows("SELECT Type FROM tb_PaymentTypes ORDER BY Type"); }
  std::vector<std::string> Options() {
    return database.Rows(R"(SELECT Service, "Option", Charge FROM tb_Shipping ORDER BY 1, 2)");
  }
};

TEST_F(LookupScreens, ANameIsStoredAtOnceAndAChangedOneBesideTheOld) {
  auto& screen = StartWith<PaymentCategories>();
  screen.btnNew.Press();
  Type(screen.PaymentList, "Gift Card");
  screen.PaymentList.UserKey(Key::Enter);
  EXPECT_THAT(Types(), ElementsAre("Cash", "Check", "Credit Card", "Debit Card", "Gift Card", "Money Order"));
  EXPECT_EQ(globals.rsPaymentTypes->RecordCount(), 6);
  Enter(screen.PaymentList, 6, 1, "Coupon");
  EXPECT_THAT(Types(), ElementsAre("Cash", "Check", "Coupon", "Credit Card", "Debit Card", "Gift Card", "Money Order"));
  EXPECT_EQ(screen.PaymentList.Cell(6, 1), "Coupon");
  EXPECT_EQ(screen.PaymentList.Rows(), 7);
  Empty(screen.PaymentList, 6, 1);
  EXPECT_EQ(Types().size(), 7u);
  EXPECT_EQ(screen.PaymentList.Cell(6, 0), "*");

  desktop.Expect("cSetup.SavePaymentType --2147467259 The changes you requested to the table were not successful");
  Enter(screen.PaymentList, 6, 1, "CASH");
  EXPECT_EQ(screen.PaymentList.Cell(6, 1), "CASH") << "reported once, and left in the grid";
  EXPECT_FALSE(globals.RowChanged);
}

TEST_F(LookupScreens, ATypeIsDeletedOnYesOnly) {
  auto& screen = StartWith<PaymentCategories>();
  screen.PaymentList.UserClick(1, 1);
  Press(screen.btnDelete, "Delete payment type... Cash?", Answer::No);
  ExpectQuestion("Delete Payment Type");
  EXPECT_EQ(Types().size(), 5u);

  Press(screen.btnDelete, "Delete payment type... Cash?", Answer::Yes);
  EXPECT_THAT(Types(), ElementsAre("Check", "Credit Card", "Debit Card", "Money Order"));
  EXPECT_EQ(screen.PaymentList.Cell(1, 1), "Check");
  EXPECT_EQ(globals.rsPaymentTypes->RecordCount(), 4);
  screen.btnNew.Press();
  screen.btnDelete.Press();
  EXPECT_EQ(desktop.boxes.size(), 2u) << "an empty row asks nothing";
}

TEST_F(LookupScreens, AnExpenseTypeIsDeletedUnderThePaymentTypesQuestion) {
  database.Execute("DELETE FROM tb_ExpenseTypes");
  auto& screen = StartWith<ExpenseTypes>();
  EXPECT_THAT(ColumnOf(screen.PaymentList, 0), ElementsAre("*")) << "an empty table shows one row for a new name";
  Enter(screen.PaymentList, 1, 1, "Postage");
  EXPECT_THAT(database.Rows("SELECT Type FROM tb_ExpenseTypes"), ElementsAre("Postage"));
  Press(screen.btnDelete, "Delete payment type... Postage?", Answer::Yes);
  ExpectQuestion("Delete Payment Type");
  EXPECT_EQ(database.Cell("SELECT count(*) FROM tb_ExpenseTypes"), "0");
}

TEST_F(LookupScreens, AShippingOptionIsStoredWhenItsRowIsLeft) {
  auto& screen = StartWith<ShippingTypes>();
  Grid& list = screen.ShippingList;
  EXPECT_EQ(list.Cell(1, 3), "$15.00");
  EnterAndGoDown(list, 1, 3, "16");
  EXPECT_EQ(Options()[0], "Ground|Up to 20 lb|160000");
  EXPECT_EQ(list.Cell(1, 3), "16") << "the grid keeps the text as typed";

  screen.btnNew.Press();
  TypeCells(list, {"Courier"});
  Type(list, "Any");
  screen.UserClose();
  EXPECT_FALSE(IsOpen("ShippingTypes"));
  EXPECT_EQ(Options()[0], "Courier|Any|0") << "the edit still open at the close is stored, without a charge as 0";
}

TEST_F(LookupScreens, AChargeThatIsNoNumberIsReportedOnceAndEndsWithItsScreen) {
  auto& screen = StartWith<ShippingTypes>();
  desktop.Expect("ShippingTypes.SaveRow -13 Type mismatch");
  Enter(screen.ShippingList, 1, 3, "cheap");
  screen.btnExit.Press();
  EXPECT_FALSE(globals.RowChanged);
  EXPECT_EQ(Connections(), 0);
  EXPECT_EQ(Options()[0], "Ground|Up to 20 lb|150000");
}

TEST_F(LookupScreens, SetupSavesAsItClosesAndOpensTheListsModally) {
  auto& screen = StartWith<frmSetup>();
  screen.txtCoName.UserType("Harbor Supply");
  screen.txtCoAddress2.UserType("Suite 5");
  screen.txtCoStateTaxRate.UserType("8.25%");
  desktop.WhenModal<PaymentCategories>([](PaymentCategories& list) { list.btnExit.Press(); });
  screen.btnPayments.Press();
  desktop.WhenModal<ShippingTypes>([](ShippingTypes& list) { list.UserClose(); });
  screen.btnShipping.Press();
  screen.btnExit.Press();
  EXPECT_THAT(database.Rows("SELECT Name, Address2, Statetaxrate FROM tb_Company"),
              ElementsAre("Harbor Supply|Suite 5 |8.25"));
  EXPECT_EQ(globals.CoName, "") << "the shared name follows at the next start only";

  auto& again = Open<frmSetup>();
  EXPECT_EQ(again.txtCoStateTaxRate.Text(), "8.25");
  again.txtCoStateTaxRate.UserType("abc");
  again.UserClose();
  EXPECT_THAT(database.Rows("SELECT Address2, Statetaxrate FROM tb_Company"), ElementsAre("Suite 5  |0.0"));
  Open<frmSetup>().txtCoName.UserType("Moss & Son's");
  The<frmSetup>().btnExit.Press();
  EXPECT_FALSE(IsOpen("frmSetup"));
  EXPECT_EQ(database.Cell("SELECT count(*) FROM tb_Company"), "0") << "an apostrophe loses the company without a word";
}

}  // namespace
}  // namespace norvane::test
