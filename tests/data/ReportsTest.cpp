#include "data/DataTest.h"
#include "data/Invoice.h"
#include "data/Reports.h"

namespace norvane::test {

using ::testing::ElementsAre;

class ReportsTest : public DataTest {
 protected:
  void SetUp() override {
    reports->BegDate = Date(45000);
    reports->EndDate = Date(45002);
  }
  std::shared_ptr<Reports> reports = Opened<Reports>();
};

TEST_F(ReportsTest, PaidAndReceivedCountBothEndsOfThePeriodAndNothingReceivedIsReported) {
  EXPECT_EQ(Reports(workspace).BegDate, Day(2026, 1, 1));
  EXPECT_EQ(Reports(workspace).EndDate, Day(2026, 11, 22));
  EXPECT_EQ(reports->Receipts(), Money(0));
  ExpectReport("Reports.Receipts -", 94);
  database.Execute(
      "insert into tb_GL (TransNum, Date, Category, Payment) values (1, 44999, 'Rent', 1), "
      "(2, 45000, 'rent', 20000), (3, 45002, 'Rent', 30000), (4, 45003, 'Rent', 1), (5, 45001, 'Car', 5);"
      "insert into tb_Receive (TransNum, Date, Amount) values (1, 44999, 1), (2, 45000, 20000), "
      "(3, 45002, -5000), (4, 45003, 1)");
  EXPECT_EQ(reports->Payments("Rent"), Money(5));
  EXPECT_EQ(reports->Payments("None"), Money(0));
  EXPECT_EQ(reports->Receipts(), Money(1.5));
  EXPECT_EQ(reports->Payments("Owner's"), Money(0));
  ExpectReport("Reports.Payments -", kSyntaxError);
}

TEST_F(ReportsTest, TotalSalesAddsTheInvoicesOfThePeriodAndLeavesNoSharedInvoiceUnlessItFails) {
  database.Execute(
      "insert into tb_Invoice (InvoiceNum, Date, Discount, Tax, ShippingCharge, Interest) values "
      "(1, 45000, 10, 10000, 0, 0), (2, 45002, 0, 0, 20000, 0), (3, 45003, 0, 10000, 0, 0), (4, 45001, 0, 0, 0, 0);"
      "insert into tb_trans (TransNum, InvoiceNum, Amount) values (1, 1, 1000000), (2, 3, 1)");
  EXPECT_EQ(reports->TotalSales(), Money(93));
  EXPECT_FALSE(globals.oInvoice);
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);

  reports->CloseCn();
  EXPECT_EQ(reports->TotalSales(), Money(0));
  ExpectReport("Reports.TotalSales -", kNoConnection);
  EXPECT_TRUE(globals.oInvoice);
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);
}

TEST_F(ReportsTest, SalesAreByItemOfWhatStillExistsAndCanBeSorted) {
  database.Execute(
      "delete from tb_InvCategories; insert into tb_InvCategories values (1, 'Pens'), (2, 'Ink');"
      "insert into tb_Inventory (ItemNum, CatNum, Description) values (1, 1, 'Fine'), (2, 1, 'Broad'), "
      "(3, 2, 'Blue'), (4, 9, 'Lost');"
      "insert into tb_Invoice (InvoiceNum, Date) values (1, 45000), (2, 45002), (3, 45003);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount) values (1, 1, 1, 2, 50000), "
      "(2, 2, 1, 1.5, 25000), (3, 2, 2, 1, 90000), (4, 1, 3, 1, 1), (5, 3, 3, 1, 7), (6, 1, 4, 1, 7), "
      "(7, 1, 8, 1, 7)");
  const Object<Recordset> sales = reports->rsInventorySales();
  reports->CloseCn();
  sales->Sort("Category, TotalSales desc");
  EXPECT_THAT(Rows(sales, {"Category", "ItemNum", "Description", "Qty", "TotalSales"}),
              ElementsAre("Ink|3|Blue|1|0.0001", "Pens|2|Broad|1|9", "Pens|1|Fine|3.5|7.5"));
}

}  // namespace norvane::test
