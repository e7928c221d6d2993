#include "ReportOffice.h"
#include "data/Inventory.h"
#include "reports/Prt30Days.h"
#include "reports/PrtBals.h"
#include "reports/PrtIncome.h"
#include "reports/PrtInventory.h"
#include "reports/PrtInventoryBestSales.h"
#include "reports/PrtInventorySales.h"
#include "store/Recordset.h"
#include "support/Golden.h"

namespace norvane::test {
namespace {

/// A small shop. What its reports have to say was worked out by hand from these rows.
class ListReportsTest : public ReportOffice {
 protected:
  std::string Day(int daysAgo) const { return std::to_string(desktop.Today().Day() - daysAgo); }
  void AddClient(int number, const std::string& name) {
    database.Execute("INSERT INTO tb_Client (CustNum, Lname, Fname, Discount) VALUES (" + std::to_string(number) +
                     ", '" + name + "', 'Ada', 0)");
  }
  /// Amounts are in whole dollars.
  void AddInvoice(int number, int custNum, int daysAgo, int tax = 0, double discount = 0) {
    database.Execute(
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Discount, Tax, ShippingCharge, Interest) "
        "VALUES (" +
        std::to_string(number) + ", " + std::to_string(custNum) + ", " + Day(daysAgo) + ", " +
        std::to_string(discount) + ", " + std::to_string(tax) + "0000, 0, 0)");
  }
  void AddLine(int invoiceNum, int itemNum, int quantity, int amount) {
    database.Execute("INSERT INTO tb_trans (InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder) VALUES (" +
                     std::to_string(invoiceNum) + ", " + std::to_string(itemNum) + ", " + std::to_string(quantity) +
                     ", " + std::to_string(amount) + "0000, 'x', '0')");
  }
  void AddPayment(int custNum, int daysAgo, int amount) {
    database.Execute("INSERT INTO tb_Receive (CustNum, Date, Amount) VALUES (" + std::to_string(custNum) + ", " +
                     Day(daysAgo) + ", " + std::to_string(amount) + "0000)");
  }
  void AddItem(int number, int category, const std::string& description) {
    database.Execute(
        "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock, Warranty) VALUES (" +
        std::to_string(number) + ", " + std::to_string(category) + ", '" + description + "', 125000, 4, -2, '1 year')");
  }
  bool HasNotice() const { return program.screens.Find(screen::kLoadingClients) != nullptr; }
  int Connections() const { return program.engine.OpenConnections(database.File()); }
  template <class Report>
  std::vector<std::string> WordsAfterHeading(const char* lastHeading) {
    auto words = WordsOf(Open<Report>().VSInvoice);
    words.erase(words.begin(), std::find(words.begin(), words.end(), lastHeading) + 1);
    return words;
  }
};

TEST_F(ListReportsTest, BalancesAreListedByNameWithTheirTotal) {
  AddClient(7, "Cole");
  AddClient(8, "Byron");
  AddInvoice(1, 7, 10, 5, 10);
  AddLine(1, 50, 1, 100);  // 100 less 10 % and 5 of tax: 95
  AddInvoice(2, 8, 20);
  AddLine(2, 50, 1, 40);
  AddPayment(8, 3, 60);  // a credit of 20
  auto& report = Open<PrtBals>();
  ExpectGolden("prt_bals.txt", TextOf(report.VSInvoice));
  EXPECT_FALSE(HasNotice());
  EXPECT_EQ(Connections(), 0);
}

TEST_F(ListReportsTest, PastDueIsWhoseLastPaymentIsOlderThanTheDays) {
  struct Case {
    const char* name;
    std::vector<int> paidDaysAgo;
  };
  const Case cases[] = {{"Never", {}},        {"Exactly", {30}},   {"Older", {31}},      {"Younger", {29}},
                        {"Future", {90, -1}}, {"Twice", {40, 40}}, {"Latest", {100, 5}}, {"Paid", {60}}};
  int custNum = 1;
  for (const Case& client : cases) {
    AddClient(custNum, client.name);
    AddInvoice(custNum, custNum, 200);
    AddLine(custNum, 50, 1, 100);
    int amount = 10;
    for (const int days : client.paidDaysAgo) AddPayment(custNum, days, amount++);
    ++custNum;
  }
  globals.AgingDays = 30;
  EXPECT_THAT(WordsAfterHeading<Prt30Days>("Last Pmt Amount"),
              ElementsAre("8", "Paid, Ada", "$90.00", "9/23/2026", "$10.00", "6", "Twice, Ada", "$79.00", "10/13/2026",
                          "$11.00", "3", "Older, Ada", "$90.00", "10/22/2026", "$10.00", "Grand Total: $259.00"));
  EXPECT_EQ(program.screens.Find<Prt30Days>()->Caption(), "Clients with balance 30 days past due");
  EXPECT_EQ(Connections(), 1) << "the connection stays open";
}

TEST_F(ListReportsTest, AFullNameTooLongEndsTheAgingListAndTheNoticeStays) {
  AddClient(1, std::string(60, 'x'));
  AddInvoice(1, 1, 200);
  AddLine(1, 50, 1, 100);
  AddPayment(1, 90, 10);
  globals.AgingDays = 30;
  desktop.Expect("Prt30days.Form_Load --2147217887 Multiple-step operation generated errors.");
  Open<Prt30Days>();
  EXPECT_TRUE(HasNotice());
}

class IncomeTest : public ListReportsTest {
 protected:
  IncomeTest() {
    AddClient(7, "Cole");
    AddInvoice(1, 7, 10, 5, 10);
    AddLine(1, 50, 1, 100);  // 95
    AddInvoice(2, 7, 400);   // last year
    AddLine(2, 50, 1, 1000);
    AddPayment(7, 5, 60);
    database.Execute("INSERT INTO tb_GL (TransNum, Date, Payment, Deposit, Category) VALUES (1, " + Day(8) +
                     ", 200000, 0, 'rent'), (2, " + Day(9) + ", 50000, 0, 'Travel'), (3, " + Day(400) +
                     ", 990000, 0, 'Rent'), (4, " + Day(9) + ", 770000, 0, 'Unlisted'), (5, " + Day(9) +
                     ", 0, 880000, 'Rent')");
    ReadTypes();
  }
  void ReadTypes() {
    globals.oSetup->OpenCn();
    globals.rsExpenseTypes = globals.oSetup->rsExpenseTypes();
    globals.oSetup->CloseCn();
  }
  void SetTypes(int count) {
    database.Execute("DELETE FROM tb_ExpenseTypes");
    for (int i = 0; i < count; ++i) {
      database.Execute("INSERT INTO tb_ExpenseTypes (Type) VALUES ('Type " + std::to_string(i) + "')");
    }
    ReadTypes();
  }
};

TEST_F(IncomeTest, TotalsThePeriodAndLeavesTheSharedInvoiceEmpty) {
  auto& report = Open<PrtIncome>();
  ExpectGolden("prt_income.txt", TextOf(report.VSregistry));
  EXPECT_FALSE(globals.oInvoice);

  // The text counts, not the picker; a period without payments is reported, and the statement goes on.
  report.txtBegDate.SetText("01/01/20");
  report.txtEndDate.SetText("01/02/20");
  desktop.Expect("Reports.Receipts -94 Invalid use of Null");
  report.btnGo.Press();
  EXPECT_THAT(WordsOf(report.VSregistry), IsSupersetOf({"For Period 01/01/20 - 01/02/20", "Net Income", "$0.00"}));
  report.txtEndDate.SetText("02/31/20");
  desktop.Expect("Run-time error '13':");
  report.btnGo.Press();
}

TEST_F(IncomeTest, TakesUpToNinetyNineExpenseTypes) {
  SetTypes(0);
  EXPECT_THAT(WordsOf(Open<PrtIncome>().VSregistry), Contains("$60.00").Times(2)) << "receipts and net income";
  SetTypes(99);
  program.screens.Reopen(PrtIncome::kName);
  EXPECT_THAT(WordsOf(Open<PrtIncome>().VSregistry), IsSupersetOf({"Type 98", "Net Income"}));
  SetTypes(100);
  desktop.Expect("PrtIncome.Form_Load -9 Subscript out of range");
  program.screens.Reopen(PrtIncome::kName);
}

TEST_F(ListReportsTest, StockIsListedByCategoryOverAConnectionOfItsOwn) {
  database.Execute("INSERT INTO tb_InvCategories (CatNum, Description) VALUES (2, 'Empty'), (3, 'Wheels')");
  AddItem(1002, 1, "Bell");
  AddItem(1001, 3, "Rim");
  ExpectGolden("prt_inventory.txt", TextOf(Open<PrtInventory>().VSregistry));
  EXPECT_EQ(Connections(), 1);
  program.screens.Unload(PrtInventory::kName);
  EXPECT_EQ(Connections(), 0);

  database.Execute("DELETE FROM tb_InvCategories");
  desktop.Expect("No inventory in database to print");
  program.screens.Show(PrtInventory::kName);
  EXPECT_EQ(program.screens.Find(PrtInventory::kName), nullptr);
}

TEST_F(ListReportsTest, SalesAreListedByCategoryAndTheBestTwenty) {
  database.Execute("INSERT INTO tb_InvCategories (CatNum, Description) VALUES (2, 'wheels'), (3, 'Wheels')");
  AddInvoice(1, 7, 10, 5, 10);
  AddItem(1, 1, "Bell");
  AddItem(2, 2, "Hub");
  AddItem(3, 3, "Rim");
  AddLine(1, 1, 2, 30);
  AddLine(1, 2, 1, 50);
  AddLine(1, 3, 1, 70);
  AddLine(1, 2, 1, 50);
  AddLine(1, 999, 1, 5000);  // an item that is gone
  AddInvoice(2, 7, 40);
  AddLine(2, 1, 1, 15);
  ExpectGolden("prt_inventory_sales.txt", TextOf(Open<PrtInventorySales>().VSregistry));

  for (int item = 4; item <= 24; ++item) {
    AddItem(item, 1, "Item " + std::to_string(item));
    AddLine(2, item, 1, 12);
  }
  auto words = WordsOf(Open<PrtInventoryBestSales>().VSregistry);
  EXPECT_EQ(std::count(words.begin(), words.end(), "$12.00"), 17) << "twenty in all, ties cut";
  EXPECT_THAT(words, IsSupersetOf({"Hub", "$100.00", "Rim", "$70.00", "Bell", "$45.00"}));

  // The pickers count, not the boxes; a period without sales closes the report.
  auto& best = *program.screens.Find<PrtInventoryBestSales>();
  best.txtBegDate.SetText("01/01/99");
  best.btnGo.Press();
  EXPECT_EQ(best.txtBegDate.Text(), "01/01/01") << "the box shows again what counts";
  best.dtEndDate.SetValue(Date::FromYearMonthDay(2002, 1, 1));
  desktop.Expect("No inventory sales for selected time period to print");
  best.btnGo.Press();
  EXPECT_EQ(program.screens.Find(PrtInventoryBestSales::kName), nullptr);
}

}  // namespace
}  // namespace norvane::test
