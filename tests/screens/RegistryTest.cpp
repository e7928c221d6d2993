#include <algorithm>
#include <map>
#include <random>

#include "RegistryOffice.h"
#include "screens/sales/PaymentDate.h"
#include "screens/setup/ExpenseTypes.h"

namespace norvane::test {
namespace {

class RegistryTest : public RegistryOffice {
 protected:
  const Conversions& convert = program.workspace.convert;

  std::string Sum(const std::string& condition) {
    const std::string sum = database.Cell("SELECT ifnull(sum(Deposit - Payment), 0) FROM tb_GL WHERE " + condition);
    return convert.CurrencyText(Currency::FromTenThousandths(std::stoll(sum)));
  }
  /// That the three balances are what the table has, the running one in the order of the rows shown.
  void ExpectBalances() {
    std::map<std::string, std::int64_t> changes;
    for (const std::string& entry : database.Rows("SELECT TransNum, Deposit - Payment FROM tb_GL")) {
      const auto bar = entry.find('|');
      changes[entry.substr(0, bar)] = std::stoll(entry.substr(bar + 1));
    }
    std::int64_t balance = 0;
    for (int row = 1; row < List().Rows(); ++row) {
      const std::string key = List().Cell(row, GL::kTransNum);
      if (key.empty()) continue;
      ASSERT_TRUE(changes.contains(key)) << Row(row);
      balance += changes[key];
      EXPECT_EQ(convert.ToCurrency(List().Cell(row, GL::kBalance)).TenThousandths(), balance) << Row(row);
    }
    EXPECT_EQ(Registry().lblEndBal.Caption(), Sum("1"));
    EXPECT_EQ(Registry().lblCurBal.Caption(), Sum("Cleared"));
  }
  void EnterRow(std::initializer_list<std::string_view> texts) {
    TypeCells(List(), texts);
    ExpectBalances();
  }
  void Reload() {
    Registry().Command2.Press();
    Main().btnPayments.Press();
  }
};

TEST_F(RegistryTest, AMonthIsEnteredByTheKeyboardWithItsBalancesAfterEachRow) {
  OpenRegistry();
  EXPECT_EQ(Row(1), "*||||||||||");
  EXPECT_EQ(globals.LedgerSince, desktop.Today());
  ASSERT_TRUE(List().HasFocus());
  EXPECT_EQ(List().Col(), GL::kDate);
  TypeCells(List(), {"11/2/26", "101", "ac", "ren", "1200"});
  EXPECT_EQ(Row(1), "?|0|11/2/26|101|Acme|Rent|$1,200.00|||($1,200.00)|") << "the first row is in the red";
  TypeCells(List(), {"", "", "Shop"});
  EXPECT_EQ(Row(1), "|1001|11/2/26|101|Acme|Rent|$1,200.00|||-1200|Shop");
  EXPECT_EQ(List().Row(), 2);
  EXPECT_EQ(List().Col(), GL::kDate);
  ExpectBalances();
  EnterRow({"11/3/26", "DEP", "", "", "", " ", "2500.505", "Cards"});
  EnterRow({"11/9/26", "9", "b", "inv", "80", "", "", ""});
  EnterRow({"11/9/26", "10", "b", "ut", "45.5", "", "", ""});
  EXPECT_EQ(Entries().at(1), "1002|46329|DEP|||0|-1|25005100|Cards");
  EXPECT_EQ(Connections(), 0);

  // The bank's statement: a tick, one too many, and one back.
  List().UserClick(1, GL::kCleared);
  List().UserClick(3, GL::kCleared);
  ExpectBalances();
  List().UserClick(1, GL::kCleared);
  List().UserKey(Key::Down);
  ExpectBalances();

  // A changed date stays where it is; equal dates are in the order of the numbers as text.
  Enter(List(), 1, GL::kDate, "11/30/26");
  List().UserKey(Key::Up);
  List().UserKey(Key::Down);
  ExpectBalances();
  EXPECT_THAT(ColumnOf(List(), GL::kTransNum), ElementsAre("1001", "1002", "1003", "1004", ""));
  Reload();
  EXPECT_THAT(ColumnOf(List(), GL::kTransNum), ElementsAre("1002", "1004", "1003", "1001", ""));
  ExpectBalances();
  EXPECT_EQ(List().Row(), 5);
}

/// Edits, deletions, new rows and reloads in any order, the same in every run.
TEST_F(RegistryTest, NoEntryChangesThatWasNotEditedAndBalancesAgree) {
  std::mt19937 random(20261122);
  const auto upTo = [&](int last) { return static_cast<int>(random() % static_cast<unsigned>(last)) + 1; };
  for (int entry = 1; entry <= 25; ++entry) AddEntry(1000 + entry, upTo(28), std::to_string(entry), upTo(90), 0);
  OpenRegistry();
  List().SetVisibleRows(8);
  const auto edit = [&](int row) {
    switch (upTo(4)) {
      case 1:
        return Enter(List(), row, GL::kPayment, std::to_string(upTo(9000)) + ".1");
      case 2:
        return Enter(List(), row, GL::kDeposit, std::to_string(upTo(9000)));
      case 3:
        return Enter(List(), row, GL::kDate, "11/" + std::to_string(upTo(28)) + "/2026");
      default:
        return List().UserClick(row, GL::kCleared);
    }
  };
  for (int step = 0; step < 40; ++step) {
    const auto before = Entries();
    const int row = upTo(List().Rows() - 2);
    const std::string key = List().Cell(row, GL::kTransNum) + "|";
    bool isEdit = true;
    switch (upTo(10)) {
      case 1:
        Reload();
        isEdit = false;
        break;
      case 2:
        List().UserClick(row, GL::kNum);
        Press(Registry().btnDelete, "Delete selected legder entry?", Answer::Yes);
        break;
      case 3:
        Registry().btnNew.Press();
        TypeCells(List(), {"11/15/2026", "", "", "", "12"});
        isEdit = false;
        break;
      default:
        edit(row);
        List().UserClick(upTo(List().Rows() - 1), GL::kNotes);
    }
    Registry().btnVendors.SetFocus();
    ExpectBalances();
    const auto after = Entries();
    for (const std::string& entry : before) {
      const bool edited = isEdit && entry.rfind(key, 0) == 0;
      EXPECT_TRUE(edited || std::count(after.begin(), after.end(), entry) == 1) << step << ": " << entry;
    }
  }
}

TEST_F(RegistryTest, DeleteTakesTheMarkedEntryOnceOneWasClicked) {
  for (int entry = 1; entry <= 3; ++entry) AddEntry(1000 + entry, entry, "", entry, 0);
  OpenRegistry();
  const auto keys = [&] { return database.Cell("SELECT group_concat(TransNum) FROM tb_GL"); };
  Registry().btnDelete.Press();
  EXPECT_EQ(List().Row(), 3) << "nothing was clicked: the cursor goes up, that is all";
  List().UserClick(1, GL::kNum);
  Press(Registry().btnDelete, "Delete selected legder entry?", Answer::No);
  ExpectQuestion("Delete ledger entry?");
  EXPECT_EQ(List().Row(), 0);
  Registry().btnDelete.Press();
  EXPECT_EQ(List().Row(), 0) << "the heading has no number";

  List().UserClick(1, GL::kNum);
  List().SetRow(2);
  Press(Registry().btnDelete, "Delete selected legder entry?", Answer::Yes);
  EXPECT_EQ(keys(), "1001,1003") << "the row marked, not the one clicked";
  Registry().btnDelete.Press();
  EXPECT_EQ(List().Row(), 0) << "the reload forgot the click";
  List().UserClick(2, GL::kNum);
  Registry().btnNew.Press();
  Registry().btnDelete.Press();
  EXPECT_EQ(keys(), "1001,1003") << "a new row has no number";
  EXPECT_EQ(Registry().lblEndBal.Caption(), "($4.00)");
}

TEST_F(RegistryTest, TheCalendarStaysOpenOverALiveRegister) {
  AddEntry(1001, 1, "1", 10, 0);
  OpenRegistry();
  List().PressCellButton(2, GL::kDate);
  auto* calendar = &The<PaymentDate>();
  List().UserClick(1, GL::kPayment);
  Type(List(), "20");
  List().UserKey(Key::Tab);
  Registry().btnVendors.SetFocus();
  ExpectBalances();
  calendar->PayDate.UserClick(Date::FromYearMonthDay(2026, 11, 20));
  EXPECT_FALSE(IsOpen("PaymentDate"));
  ASSERT_TRUE(List().HasFocus());
  EXPECT_EQ(List().Col(), GL::kNum);
  EXPECT_EQ(Row(1).substr(0, 19), "?|1001|11/20/2026|1");
  List().UserKey(Key::Down);
  EXPECT_EQ(Entries().at(0).substr(0, 10), "1001|46346");

  List().PressCellButton(2, GL::kDate);
  List().SetRow(0);
  The<PaymentDate>().PayDate.UserClick(desktop.Today());
  EXPECT_EQ(List().Cell(0, GL::kDate), "Date");
  EXPECT_FALSE(globals.PayDateSet || globals.RowChanged);
  List().PressCellButton(2, GL::kDate);
  Registry().Command2.Press();
  EXPECT_FALSE(IsOpen("PaymentDate"));
}

TEST_F(RegistryTest, ACategoryIsAddedOnTheWay) {
  AddEntry(1001, 1, "1", 10, 0, "Acme", "5");
  OpenRegistry();
  Pick(List(), 2, GL::kCategory, 7);
  desktop.WhenModal<ExpenseTypes>([&](ExpenseTypes& types) {
    types.btnNew.Press();
    TypeCells(types.PaymentList, {"Bank fees"});
    types.btnExit.Press();
  });
  Registry().btnPaymentCategories.Press();
  EXPECT_THAT(List().DropDownItems(GL::kCategory), Contains("Bank fees"));
  EXPECT_EQ(List().DisplayText(2, GL::kCategory), "Utilities") << "keys have moved, the choice hasn't";
  EnterAndGoDown(List(), 1, GL::kNum, "2");
  EXPECT_THAT(Entries(), ElementsAre(HasSubstr("|2|Acme|5|"))) << "a stored text that looks like a key";

  database.Execute("DELETE FROM tb_ExpenseTypes WHERE Type <> 'Rent'");
  desktop.WhenModal<ExpenseTypes>([&](ExpenseTypes& types) {
    globals.rsExpenseTypes = std::make_shared<Recordset>();
    desktop.Expect("Run-time error");
    types.btnExit.Press();
  });
  Registry().btnPaymentCategories.Press();
  EXPECT_FALSE(IsOpen("ExpenseTypes"));
  EXPECT_THAT(List().DropDownItems(GL::kCategory), Contains("Bank fees"));
}

TEST_F(RegistryTest, WhatCannotBeReadStaysUntilItCan) {
  AddEntry(1001, 1, "1", 10, 0);
  AddEntry(1002, 2, "2", 20, 0);
  OpenRegistry();
  desktop.Expect("GL.PaymentList_AfterEdit -13 Type mismatch");
  EnterAndGoDown(List(), 1, GL::kPayment, "ten");
  desktop.Expect("GL.PaymentList_AfterEdit -6 Overflow");
  EnterAndGoDown(List(), 1, GL::kPayment, "922337203685478");
  Enter(List(), 1, GL::kPayment, "11");
  desktop.Expect("GL.SaveRow -13 Type mismatch");
  Enter(List(), 1, GL::kDate, "2/30/2026");
  List().UserClick(2, GL::kDate);
  EXPECT_EQ(List().Cell(1, GL::kMarker), "?");
  List().UserClick(1, GL::kDate);
  EnterAndGoDown(List(), 1, GL::kDate, "2/28/2026");
  EXPECT_EQ(Entries().at(0).substr(0, 10), "1001|46081");
  EXPECT_EQ(Connections(), 0);
}

TEST_F(RegistryTest, TextsOfAllKindsAreStoredAsTypedOrRefusedInARowThatKeepsThem) {
  AddEntry(1001, 1, "1", 10, 0);
  OpenRegistry();
  Enter(List(), 1, GL::kNum, "a|b;\"c\"");
  Enter(List(), 1, GL::kNotes, "tab\tline\nend");
  List().UserKey(Key::Down);
  EXPECT_EQ(Entries().at(0), "1001|46327|a|b;\"c\"|Acme|Rent|100000|0|0|tab line end");
  desktop.Expect("Vendor.SaveLedgerEntry --2147217900");
  List().SetCell(2, GL::kNotes, "it's");
  List().UserClick(2, GL::kDate);
  TypeCells(List(), {"11/4/2026", "", "", "", "5", "", "7", ""});
  EXPECT_EQ(Row(2), "?|0|11/4/2026||||$5.00||$7.00|($8.00)|it's");
  EXPECT_EQ(Registry().lblEndBal.Caption(), "($10.00)");
  List().SetCell(2, GL::kNotes, "its");
  EnterAndGoDown(List(), 2, GL::kPayment, "6");
  EXPECT_EQ(Entries().at(1), "1002|46330||||60000|0|70000|its");
}

TEST_F(RegistryTest, ALockedDatabaseIsReportedAndTheProgramGoesOn) {
  AddEntry(1001, 1, "1", 10, 0);
  OpenRegistry();
  {
    const OtherUser other(database, OtherUser::Work::Locking);
    Enter(List(), 1, GL::kPayment, "11");
    ExpectBoxes({"Vendor.SaveLedgerEntry -", "Vendor.LedgerCurrentBal -", "Vendor.LedgerEndBal -"});
    List().UserKey(Key::Down);
  }
  Enter(List(), 1, GL::kPayment, "12");
  List().UserKey(Key::Down);
  ExpectBalances();
  EXPECT_EQ(Entries().at(0).substr(0, 36), "1001|46327|1|Acme|Rent|120000|0|0|");
}

TEST_F(RegistryTest, ASaveRefusedBetweenItsStatementsTakesThatEntryAloneAndIsRepeated) {
  const std::string gone(300, 'V');  // a vendor that isn't in the list
  AddEntry(1001, 1, "1", 10, 0, gone);
  AddEntry(1002, 2, "2", 20, 0);
  OpenRegistry();
  database.Execute("CREATE TRIGGER late BEFORE INSERT ON tb_GL BEGIN SELECT raise(abort, 'refused'); END");
  Enter(List(), 1, GL::kPayment, "11");
  desktop.Expect("Vendor.SaveLedgerEntry -");
  List().UserKey(Key::Down);
  EXPECT_EQ(database.Rows("SELECT TransNum FROM tb_GL"), std::vector<std::string>{"1002"});
  database.Execute("DROP TRIGGER late");
  EnterAndGoDown(List(), 1, GL::kPayment, "12");
  EXPECT_EQ(Entries().at(0), "1001|46327|1|" + gone + "|Rent|120000|0|0|");
  ExpectBalances();

  std::filesystem::remove(database.File());
  Enter(List(), 1, GL::kPayment, "13");
  ExpectBoxes({"Vendor.SaveLedgerEntry -", "Vendor.LedgerCurrentBal -", "Vendor.LedgerEndBal -"});
  List().UserKey(Key::Down);
  EXPECT_FALSE(std::filesystem::exists(database.File()));
}

TEST_F(RegistryTest, WithoutTypesTheLoadEndsThere) {
  database.Execute("DELETE FROM tb_ExpenseTypes");
  Start();
  desktop.Expect("GL.SetPayments -3021");
  Main().btnPayments.Press();
  EXPECT_EQ(List().Rows(), 2);
  EXPECT_EQ(Connections(), 0);
}

}  // namespace
}  // namespace norvane::test
