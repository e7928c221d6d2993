#include "core/store/Recordset.h"
#include "screens/ExpenseTypes.h"
#include "screens/Office.h"
#include "screens/PaymentCategories.h"
#include "screens/ShippingTypes.h"
#include "screens/frmSetup.h"
#include "support/Gestures.h"

namespace norvane::test {
namespace {

using ::testing::ElementsAre;

class LookupScreens : public Office {
 protected:
  LookupScreens() {
    AddClients();
    Start();
  }
  template <class Screen>
  Screen& Open() {
    program.screens.Show(Screen::kName);
    return program.screens.Touch<Screen>();
  }
  std::vector<std::string> Types() { return database.Rows("SELECT Type FROM tb_PaymentTypes ORDER BY Type"); }
  std::vector<std::string> Options() {
    return database.Rows(R"(SELECT Service, "Option", Charge FROM tb_Shipping ORDER BY 1, 2)");
  }
  static std::vector<std::string> Markers(const Grid& grid) {
    std::vector<std::string> markers;
    for (int row = 1; row < grid.Rows(); ++row) markers.push_back(grid.Cell(row, 0));
    return markers;
  }
};

TEST_F(LookupScreens, MarkersFollowTheCursor) {
  auto& screen = Open<PaymentCategories>();
  EXPECT_EQ(screen.PaymentList.Cell(0, 1), "Payment Type");
  screen.PaymentList.UserClick(2, 1);
  EXPECT_THAT(Markers(screen.PaymentList), ElementsAre("", ">", "", "", ""));
  screen.PaymentList.UserKey(Key::Down);
  EXPECT_THAT(Markers(screen.PaymentList), ElementsAre("", "", ">", "", ""));
  screen.btnNew.Press();
  EXPECT_THAT(Markers(screen.PaymentList), ElementsAre("", "", "", "", "", "*"));
}

TEST_F(LookupScreens, NewReusesTheEmptyRowAndScrollsFromSevenRowsOn) {
  database.Execute("DELETE FROM tb_PaymentTypes WHERE Type = 'Cash'");
  Main().btnRefresh.Press();
  globals.oSetup->OpenCn();
  globals.rsPaymentTypes = globals.oSetup->rsPaymentTypes();
  globals.oSetup->CloseCn();
  auto& screen = Open<PaymentCategories>();
  screen.PaymentList.SetVisibleRows(5);
  screen.btnNew.Press();
  screen.btnNew.Press();
  EXPECT_EQ(screen.PaymentList.Rows(), 6);
  EXPECT_EQ(screen.PaymentList.TopRow(), 1);
  Type(screen.PaymentList, "Voucher");
  screen.PaymentList.UserKey(Key::Enter);
  screen.btnNew.Press();
  EXPECT_EQ(screen.PaymentList.Rows(), 7);
  EXPECT_EQ(screen.PaymentList.TopRow(), 2);
  EXPECT_TRUE(screen.PaymentList.HasFocus());
}

TEST_F(LookupScreens, ANameIsStoredAtOnceAndAChangedOneBesideTheOld) {
  auto& screen = Open<PaymentCategories>();
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
}

TEST_F(LookupScreens, ARefusedNameIsReportedOnceAndStaysInTheGrid) {
  auto& screen = Open<PaymentCategories>();
  screen.btnNew.Press();
  desktop.Expect("cSetup.SavePaymentType --2147467259 The changes you requested to the table were not successful");
  Enter(screen.PaymentList, 6, 1, "CASH");
  EXPECT_EQ(screen.PaymentList.Cell(6, 1), "CASH");
  EXPECT_FALSE(globals.RowChanged);

  desktop.Expect("cSetup.SavePaymentType --2147217900");
  Enter(screen.PaymentList, 6, 1, "Owner's draw");
  EXPECT_EQ(Types().size(), 5u);
}

TEST_F(LookupScreens, EscapeAndNoLeaveTheTableAlone) {
  auto& screen = Open<PaymentCategories>();
  screen.PaymentList.UserClick(1, 1);
  Type(screen.PaymentList, "Cask");
  screen.PaymentList.UserKey(Key::Escape);
  EXPECT_EQ(screen.PaymentList.Cell(1, 1), "Cash");

  desktop.Expect("Delete payment type... Cash?", Answer::No);
  screen.btnDelete.Press();
  EXPECT_EQ(LastBox().title, "Delete Payment Type");
  EXPECT_EQ(LastBox().preselected, Answer::No);
  EXPECT_EQ(Types().size(), 5u);

  desktop.Expect("Delete payment type... Cash?", Answer::Yes);
  screen.btnDelete.Press();
  EXPECT_THAT(Types(), ElementsAre("Check", "Credit Card", "Debit Card", "Money Order"));
  EXPECT_EQ(screen.PaymentList.Cell(1, 1), "Check");
  EXPECT_EQ(globals.rsPaymentTypes->RecordCount(), 4);

  screen.btnNew.Press();
  screen.btnDelete.Press();
  EXPECT_EQ(desktop.boxes.size(), 2u) << "an empty row asks nothing";
}

TEST_F(LookupScreens, AnEmptyTableShowsOneRowForANewName) {
  database.Execute("DELETE FROM tb_ExpenseTypes");
  globals.oSetup->OpenCn();
  globals.rsExpenseTypes = globals.oSetup->rsExpenseTypes();
  globals.oSetup->CloseCn();
  auto& screen = Open<ExpenseTypes>();
  EXPECT_THAT(Markers(screen.PaymentList), ElementsAre("*"));
  Enter(screen.PaymentList, 1, 1, "Postage");
  EXPECT_THAT(database.Rows("SELECT Type FROM tb_ExpenseTypes"), ElementsAre("Postage"));
}

TEST_F(LookupScreens, AnExpenseTypeIsDeletedUnderThePaymentTypesQuestion) {
  auto& screen = Open<ExpenseTypes>();
  screen.PaymentList.UserClick(1, 1);
  desktop.Expect("Delete payment type... Advertising?", Answer::Yes);
  screen.btnDelete.Press();
  EXPECT_EQ(LastBox().title, "Delete Payment Type");
  EXPECT_EQ(database.Cell("SELECT count(*) FROM tb_ExpenseTypes"), "7");
}

TEST_F(LookupScreens, AShippingOptionIsStoredWhenItsRowIsLeft) {
  auto& screen = Open<ShippingTypes>();
  Grid& list = screen.ShippingList;
  EXPECT_EQ(list.Cell(1, 3), "$15.00");
  Enter(list, 1, 3, "16");
  EXPECT_TRUE(globals.RowChanged);
  EXPECT_EQ(list.Cell(1, 0), "?");
  EXPECT_EQ(Options()[0], "Ground|Up to 20 lb|150000");

  list.UserKey(Key::Down);
  EXPECT_FALSE(globals.RowChanged);
  EXPECT_EQ(Options()[0], "Ground|Up to 20 lb|160000");
  EXPECT_EQ(list.Cell(1, 3), "16") << "the grid keeps the text as typed";
  EXPECT_THAT(Markers(list), ElementsAre("", ">", "", ""));
}

TEST_F(LookupScreens, LeavingByAButtonOrByClosingCommitsAsAnArrowDoes) {
  auto& screen = Open<ShippingTypes>();
  Enter(screen.ShippingList, 2, 3, "9");
  screen.btnNew.Press();
  EXPECT_EQ(Options()[1], "Ground|Up to 5 lb|90000");

  Type(screen.ShippingList, "Courier");
  screen.ShippingList.UserKey(Key::Tab);
  Type(screen.ShippingList, "Any");
  screen.UserClose();
  EXPECT_FALSE(IsOpen("ShippingTypes"));
  EXPECT_EQ(Options()[0], "Courier|Any|0") << "the edit still open at the close is stored, without a charge as 0";
}

TEST_F(LookupScreens, ARowLeftWithoutItsServiceTakesTheCursorBack) {
  auto& screen = Open<ShippingTypes>();
  Grid& list = screen.ShippingList;
  Enter(list, 2, 3, "9");
  Empty(list, 2, 1);
  list.UserKey(Key::Down);
  EXPECT_EQ(list.Row(), 2);
  EXPECT_FALSE(globals.RowChanged);
  EXPECT_EQ(list.Cell(2, 3), "9");
  EXPECT_EQ(Options()[1], "Ground|Up to 5 lb|80000") << "an incomplete row isn't stored";
  EXPECT_EQ(list.Cell(2, 0), "*");
}

TEST_F(LookupScreens, AChargeThatIsNoNumberIsReportedAndTriedAgain) {
  auto& screen = Open<ShippingTypes>();
  Enter(screen.ShippingList, 1, 3, "cheap");
  desktop.Expect("ShippingTypes.SaveRow -13 Type mismatch");
  screen.ShippingList.UserKey(Key::Down);
  EXPECT_TRUE(globals.RowChanged);
  EXPECT_THAT(Markers(screen.ShippingList), ElementsAre("?", ">", "", ""));
  desktop.Expect("ShippingTypes.SaveRow -13 Type mismatch");
  screen.ShippingList.UserKey(Key::Down);
  EXPECT_THAT(Markers(screen.ShippingList), ElementsAre("?", "", ">", ""));
  desktop.Expect("ShippingTypes.SaveRow -13 Type mismatch");
  Enter(screen.ShippingList, 1, 3, "99999999999999999");
  desktop.Expect("ShippingTypes.SaveRow -6 Overflow");
  screen.ShippingList.UserKey(Key::Down);
  desktop.Expect("ShippingTypes.SaveRow -6 Overflow");
  Enter(screen.ShippingList, 1, 3, "1");
  screen.ShippingList.UserKey(Key::Down);
  EXPECT_FALSE(globals.RowChanged);
  EXPECT_EQ(Options()[0], "Ground|Up to 20 lb|10000");
}

TEST_F(LookupScreens, SetupSavesAsItClosesAndOpensTheListsModally) {
  auto& screen = Open<frmSetup>();
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
}

TEST_F(LookupScreens, SetupLosesTheCompanyToAnApostropheWithoutAWord) {
  auto& screen = Open<frmSetup>();
  screen.txtCoName.UserType("Moss & Son's");
  screen.btnExit.Press();
  EXPECT_FALSE(IsOpen("frmSetup"));
  EXPECT_EQ(database.Cell("SELECT count(*) FROM tb_Company"), "0");
}

}  // namespace
}  // namespace norvane::test
