#include "Office.h"
#include "reports/BackOrderFill.h"
#include "reports/BackOrderReport.h"
#include "reports/PrtBackOrderFill.h"
#include "reports/RegisterReports.h"
#include "screens/stock/BackOrderSet.h"
#include "support/PinnedFontMetrics.h"

namespace norvane::test {
namespace {

class BackOrdersTest : public Office {
 protected:
  BackOrdersTest() {
    RegisterReports(program);
    AddClients();
    database.Execute(
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Discount, SalesRep) VALUES (1, 1001, 46000, 0, 'Grace')");
    AddLine(1, "-3", "Lamp");
    AddLine(2, "-2.5", "Rope");
    AddLine(3, "0", "Bell");
    AddLine(4, "abc", "Oak");
    Start();
  }
  void AddLine(int number, const std::string& backOrder, const std::string& notes) {
    database.Execute("INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder) VALUES (" +
                     std::to_string(number) + ", 1, 50, 1, 10000, '" + notes + "', '" + backOrder + "')");
  }
  std::vector<std::string> WordsOf(Preview& preview) {
    preview.SetFontMetrics(&metrics_);
    std::vector<std::string> words;
    for (const pages::Page& page : preview.Pages().pages) {
      for (const pages::TextRun& run : page.runs) words.emplace_back(page.TextOf(run));
    }
    return words;
  }
  std::vector<std::string> Ordered() {
    return database.Rows("SELECT TransNum, Ordered FROM tb_trans WHERE Ordered IS NOT NULL ORDER BY TransNum");
  }
  Grid& List() { return The<BackOrderSet>().InventoryList; }

 private:
  const pages::PinnedFontMetrics metrics_{};
};

TEST_F(BackOrdersTest, ALineGoesFromShortToOrdered) {
  Main().mnuOrdering.Choose();
  EXPECT_THAT(WordsOf(The<PrtBackOrders>().VSregistry),
              ElementsAre("Invoice Items to BackOrder", "11/22/2026", "Date", "Inventory#", "Invoice#", "Description",
                          "Qty", "Client", "Sales Rep", "12/9/2025", "50", "1", "Lamp", "3", "Carl Moss", "Grace",
                          "12/9/2025", "50", "1", "Rope", "2.5", "Carl Moss", "Grace"));
  The<PrtBackOrders>().btnOrder.Press();
  ASSERT_EQ(List().Rows(), 3);
  EXPECT_EQ(List().Cell(1, BackOrderSet::kQty), "3");

  // Typing on any row edits its date; Tab goes down the dates.
  EXPECT_EQ(List().Col(), BackOrderSet::kOrderDate);
  List().UserText("11/2/26");
  List().UserKey(Key::Tab);
  EXPECT_EQ(List().Row(), 2);
  List().UserText("soon");
  List().UserKey(Key::Enter);
  Press(The<BackOrderSet>().Command2, "Save Changes to BackOrder Items?", Answer::Cancel);
  ASSERT_TRUE(IsOpen(BackOrderSet::kName));
  // What can't be read ends the save; the row before is stored, and nothing is asked any more.
  Press(The<BackOrderSet>().btnSave, "BackOrderSet.SaveRows -13 Type mismatch");
  EXPECT_THAT(Ordered(), ElementsAre("1|46328"));
  EXPECT_EQ(Connections(), 1);
  The<BackOrderSet>().Command2.Press();
  EXPECT_FALSE(IsOpen(BackOrderSet::kName));

  The<BackOrderSet>().btnSetAll.Press();
  desktop.Expect("Save Changes to BackOrder Items?", Answer::Yes);
  The<BackOrderSet>().UserClose();
  EXPECT_THAT(Ordered(), ElementsAre("1|46328", "2|46348"));
  Choose(Main().mnuOrdering, "Unordered backorders not found.");
  Main().mnuOrdered.Choose();
  EXPECT_THAT(WordsOf(The<PrtBackOrdered>().VSregistry),
              ::testing::IsSupersetOf({"Invoice Items BackOrdered", "Ordered", "11/2/2026", "11/22/2026"}));
}

TEST_F(BackOrdersTest, TheButtonOfACellBeginsItsEditAndAllAreSetInSixteenBits) {
  Grid& list = List();
  list.PressCellButton(1, BackOrderSet::kOrderDate);
  EXPECT_TRUE(list.Editing());
  list.CancelEdit();
  list.SetRows(32'768);
  The<BackOrderSet>().btnSetAll.Press();
  EXPECT_EQ(list.Cell(32'767, BackOrderSet::kOrderDate), "11/22/2026");
  list.SetRows(32'769);
  Press(The<BackOrderSet>().btnSetAll, "BackOrderSet.btnSetAll_Click -6 Overflow");
}

TEST_F(BackOrdersTest, WhatArrivesGoesToTheOldestInvoiceFirst) {
  database.Execute(
      "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) VALUES "
      "(60, 1, 'Vase', 10000, 5, -5), (61, 1, 'Labour', 10000, 0, 9);"
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Discount, SalesRep) VALUES (2, 1001, 45000, 0, NULL);"
      "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder, Ordered) VALUES "
      "(11, 1, 60, 4, 1, 'Young', '-2', 46001), (12, 2, 60, 3, 1, 'Old', '-3', NULL), (13, 2, 61, 1, 1, 'Hour', '-1', "
      "NULL)");
  const auto stock = [&](int count) {
    database.Execute("UPDATE tb_Inventory SET InStock = " + std::to_string(count) + " WHERE ItemNum = 60");
  };
  const auto listed = [&] { return ColumnOf(The<BackOrderFill>().InventoryList, BackOrderFill::kDescription); };
  Choose(Main().mnuFillBackOrders, "No back orders can be filled from stock.");
  EXPECT_FALSE(IsOpen(BackOrderFill::kName));
  stock(-3);  // two have come: the young line gets none of what the old one waits for
  Choose(Main().mnuFillBackOrders, "No back orders can be filled from stock.");
  stock(-1);
  Main().mnuFillBackOrders.Choose();
  EXPECT_THAT(listed(), ElementsAre("Old"));
  stock(0);
  Main().mnuFillBackOrders.Choose();
  EXPECT_THAT(listed(), ElementsAre("Old", "Young"));

  const std::string before =
      database.Cell("SELECT group_concat(TransNum || Qty || Amount || Notes || coalesce(Ordered, '')) FROM tb_trans");
  The<BackOrderFill>().InventoryList.UserClick(2, 1);
  Press(The<BackOrderFill>().btnPrint, "picking list of 1 line", Answer::No);
  EXPECT_FALSE(IsOpen(PrtBackOrderFill::kName));
  Press(The<BackOrderFill>().btnPrint, "picking list of 1 line", Answer::Yes);
  EXPECT_THAT(WordsOf(The<PrtBackOrderFill>().VSregistry),
              ::testing::IsSupersetOf({"Young", "2", "Carl Moss", "Grace"}));
  EXPECT_THAT(listed(), ElementsAre("Old"));
  Press(The<BackOrderFill>().btnPrint, "picking list of 1 line", Answer::Yes);
  EXPECT_THAT(database.Rows("SELECT TransNum, BackOrder FROM tb_trans WHERE ItemNum > 50"),
              ElementsAre("11|0", "12|0", "13|-1"));
  EXPECT_EQ(
      database.Cell("SELECT group_concat(TransNum || Qty || Amount || Notes || coalesce(Ordered, '')) FROM tb_trans"),
      before);
  EXPECT_EQ(database.Cell("SELECT InStock FROM tb_Inventory WHERE ItemNum = 60"), "0");
}

}  // namespace
}  // namespace norvane::test
