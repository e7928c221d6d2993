#include "SalesOffice.h"

namespace norvane::test {
namespace {

constexpr const char* kShort = "No Lamp in Inventory.  Is marked as Back Ordered in Invoice!";

class InvoiceItemsTest : public SalesOffice {
 protected:
  /// Opens Ada Moss's invoices of the given quantities of lamps, all on one invoice.
  void OpenWithLines(std::initializer_list<int> quantities) {
    AddInvoice(1001, kAda, kNewYear + 40, 0);
    int transNum = 1001;
    for (const int quantity : quantities) AddLine(transNum++, 1001, quantity);
    StartWith(1001);
  }
  /// A hundred lamps, and the invoice.
  void OpenWithPlenty(std::initializer_list<int> quantities) {
    SetStock(100);
    OpenWithLines(quantities);
  }
  void ChangeQuantity(int row, const char* quantity) {
    Enter(Sheet().ItemList, row, InvoiceDetail::kQuantity, quantity);
  }
  void StoreQuantity(int row, const char* quantity) {
    ChangeQuantity(row, quantity);
    LeaveLines();
  }
  std::string Markers() {
    std::string markers;
    for (const std::string& marker : ColumnOf(Sheet().ItemList, 0)) markers += "[" + marker + "]";
    return markers;
  }
};

TEST_F(InvoiceItemsTest, PicksDownToTheLastOneAndBeyond) {
  OpenWithLines({});
  PickItem(kLamp);
  EXPECT_EQ(Stock(), "1");
  EXPECT_EQ(RowText(Sheet().ItemList, 1, 2), "1001|1|$10.00|Lamp|$10.00|");
  desktop.Expect("Last Lamp in Inventory added to Invoice.");
  PickItem(kLamp);
  EXPECT_EQ(Stock(), "0");
  desktop.Expect(kShort);
  PickItem(kLamp);
  EXPECT_EQ(Stock(), "-1");
  PickItem(kLabour);
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|1.0|100000|0", "1002|1001|1.0|100000|0", "1003|1001|1.0|100000|-1",
                                   "1004|1002|1.0|400000|0"));
  EXPECT_EQ(database.Cell("SELECT InStock FROM tb_Inventory WHERE ItemNum = 1002"), "0");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$70.00");
  EXPECT_EQ(Markers(), "[][][][>]");
  EXPECT_EQ(Sheet().ItemList.Row(), 4);
  EXPECT_EQ(Sheet().ItemList.Col(), InvoiceDetail::kQuantity);
}

/// Every step of a counted line's life: the stock before, the edits, and what is there after each.
TEST_F(InvoiceItemsTest, MovesStockAndBackOrderWithTheQuantity) {
  SetStock(2);
  OpenWithLines({1});
  struct Step {
    const char* quantity;
    bool isShort;
    const char* stock;
    const char* backOrder;
  };
  for (const Step& step : {Step{"2", false, "1", ""}, Step{"5", true, "-2", "-2"}, Step{"7", true, "-4", "-4"},
                           Step{"6", true, "-3", "-3"}, Step{"3", false, "0", "-3"}, Step{"4", true, "-1", "-4"},
                           Step{"-5", false, "8", "-4"}, Step{"0", false, "3", "-4"}}) {
    SCOPED_TRACE(step.quantity);
    if (step.isShort) desktop.Expect(kShort);
    ChangeQuantity(1, step.quantity);
    EXPECT_EQ(Stock(), step.stock);
    EXPECT_EQ(Line(1, InvoiceDetail::kBackOrder), step.backOrder);
    EXPECT_EQ(Line(1, 0), "?");
    LeaveLines();
    EXPECT_EQ(Line(1, 0), ">");
    const std::string backOrder = *step.backOrder ? step.backOrder : "0";
    EXPECT_EQ(database.Rows("SELECT Qty, BackOrder FROM tb_trans").at(0),
              std::string(step.quantity) + ".0|" + backOrder);
  }
}

TEST_F(InvoiceItemsTest, StoresLinesOfItemsThatAreNotCountedOrNoMore) {
  database.Execute("UPDATE tb_Inventory SET Par = 0, InStock = 2 WHERE ItemNum = 1001");
  OpenWithLines({1});
  StoreQuantity(1, "500");
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|500.0|50000000|0"));
  EXPECT_EQ(Stock(), "2");

  database.Execute("DELETE FROM tb_Inventory WHERE ItemNum = 1001");
  desktop.Expect("Inventory.QtyInStock -3021");
  StoreQuantity(1, "2");
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|2.0|200000|0"));
}

TEST_F(InvoiceItemsTest, StoresARowWhenItIsLeftAndTheHeadWithTheFirst) {
  OpenWithPlenty({1, 2, 3});
  ChangeQuantity(2, "5");
  Sheet().ItemList.UserKey(Key::Down);
  EXPECT_EQ(Lines().at(1), "1002|1001|5.0|500000|0");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$90.00");

  Sheet().txtTerms.UserType("Net 30");
  StoreQuantity(3, "4");
  EXPECT_EQ(database.Cell("SELECT Terms FROM tb_Invoice"), "NULL");
  EXPECT_TRUE(globals.InvoiceDirty);
  StoreQuantity(1, "2");
  EXPECT_EQ(database.Cell("SELECT Terms FROM tb_Invoice"), "Net 30");
  EXPECT_FALSE(globals.InvoiceDirty);
}

TEST_F(InvoiceItemsTest, StoresOtherColumnsAndForgetsTheOrderDateOnlyWithAChangedQuantityOrBackOrder) {
  OpenWithPlenty({2});
  Enter(Sheet().ItemList, 1, InvoiceDetail::kCharge, "12.345");
  Enter(Sheet().ItemList, 1, InvoiceDetail::kDescription, "Big lamp");
  LeaveLines();
  EXPECT_EQ(Line(1, InvoiceDetail::kTotal), "$24.69") << "shown and totalled";
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$24.69");
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|2.0|200000|0")) << "but not stored";
  Enter(Sheet().ItemList, 1, InvoiceDetail::kBackOrder, "-1");
  LeaveLines();
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|2.0|246900|-1"));
  EXPECT_EQ(database.Cell("SELECT Notes FROM tb_trans"), "Big lamp");
  EXPECT_EQ(Stock(), "100");

  database.Execute("UPDATE tb_trans SET Ordered = 46100");
  StoreQuantity(1, "2");
  EXPECT_EQ(database.Cell("SELECT Ordered FROM tb_trans"), "46100") << "the same quantity changes nothing";
  StoreQuantity(1, "3");
  EXPECT_EQ(database.Cell("SELECT Ordered FROM tb_trans"), "NULL");
}

TEST_F(InvoiceItemsTest, RefusesAQuantityThatIsNoneAndGoesOnFromTheOneBefore) {
  OpenWithPlenty({1, 7});
  desktop.Expect("InvoiceDetail.ItemList_AfterEdit -13 Type mismatch");
  ChangeQuantity(1, "many");
  LeaveLines();
  EXPECT_FALSE(globals.RowChanged);
  StoreQuantity(2, "8");
  StoreQuantity(1, "3");
  EXPECT_EQ(Stock(), "97");
}

TEST_F(InvoiceItemsTest, KeepsALineThatCannotBeReadForTheNextTry) {
  OpenWithPlenty({1, 2});
  desktop.Expect("InvoiceDetail.SaveRow -13 Type mismatch");
  Enter(Sheet().ItemList, 2, InvoiceDetail::kBackOrder, "some");
  LeaveLines();
  EXPECT_TRUE(globals.RowChanged);
  EXPECT_EQ(Connections(), 0);
  Enter(Sheet().ItemList, 2, InvoiceDetail::kBackOrder, "-2");
  LeaveLines();
  EXPECT_EQ(Lines().at(1), "1002|1001|2.0|200000|-2");
}

TEST_F(InvoiceItemsTest, StoresAWaitingRowBeforeThePickersLineComes) {
  OpenWithPlenty({1, 2});
  Sheet().btnNewItem.Press();
  ChangeQuantity(1, "5");
  Picker().InventoryList.UserClick(1, 1);
  EXPECT_EQ(Lines().at(0), "1001|1001|5.0|500000|0");
  Picker().btnOK.Press();
  EXPECT_EQ(globals.RowSelected, 3);
  EXPECT_EQ(Lines().at(2), "1003|1001|1.0|100000|0");
  EXPECT_EQ(Markers(), "[][][>]");
}

/// A waiting row without an item number draws the cursor back as the picker moves it on, so the item goes there.
TEST_F(InvoiceItemsTest, DrawsThePickersLineBackToARowWithoutAnItem) {
  OpenWithPlenty({1, 2});
  Empty(Sheet().ItemList, 2, InvoiceDetail::kItemNum);
  Enter(Sheet().ItemList, 2, InvoiceDetail::kBackOrder, "-1");
  desktop.Expect("InvoiceDetail.SaveRow -13 Type mismatch");
  Sheet().btnNewItem.Press();
  Picker().btnOK.Press();
  EXPECT_EQ(globals.RowSelected, 2);
  EXPECT_EQ(Line(2, InvoiceDetail::kTransNum) + Line(2, InvoiceDetail::kItemNum), "10031001");
  EXPECT_EQ(Line(3, InvoiceDetail::kItemNum), "");
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|1.0|100000|0", "1002|1001|2.0|200000|0", "1003|1001|1.0|100000|0"));
}

TEST_F(InvoiceItemsTest, RemovesALineAndKeepsItsUnitsOutOfStock) {
  OpenWithLines({1, 3});
  Sheet().ItemList.UserClick(2, InvoiceDetail::kQuantity);
  Sheet().btnRemove.Press();
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|1.0|100000|0"));
  EXPECT_EQ(Stock(), "2");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$10.00");
  EXPECT_EQ(Sheet().ItemList.Col(), 1);
  Sheet().btnRemove.Press();
  EXPECT_EQ(Sheet().ItemList.Row(), 0);
  Sheet().btnRemove.Press();
  EXPECT_EQ(Line(0, 1), "TransNum") << "the heading row is left alone";
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$0.00");
}

TEST_F(InvoiceItemsTest, ShowsWhatTheLinesHold) {
  AddInvoice(1001, kAda, kNewYear + 40, 0);
  AddLine(1001, 1001, 3, -2);
  database.Execute("UPDATE tb_trans SET Amount = 100000");
  StartWith(1001);
  EXPECT_EQ(RowText(Sheet().ItemList, 1, 3), "3|$3.33|Lamp|$10.00|-2");
  EXPECT_EQ(globals.UnitCharge, Currency::FromTenThousandths(33333));
  // The first cell that is left isn't totalled, the next one is.
  Sheet().ItemList.UserClick(1, InvoiceDetail::kQuantity);
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$10.00");
  LeaveLines();
  EXPECT_EQ(Line(1, 6), "$9.99");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$9.99");
}

class InvSearchTest : public InvoiceItemsTest {};

TEST_F(InvSearchTest, ShowsOneCategoryAtATime) {
  database.Execute(
      "INSERT INTO tb_InvCategories (CatNum, Description) VALUES (7, 'Wood'), (1234, 'Far');"
      "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) VALUES (1003, 7, 'Oak', 15000, 1, "
      "9)");
  OpenWithLines({});
  Sheet().btnNewItem.Press();
  InvSearch& picker = Picker();
  EXPECT_EQ(picker.Owner(), &Sheet());
  EXPECT_EQ(picker.InventoryList.Rows(), 3);
  picker.cmbCategory.UserPick(2);
  EXPECT_EQ(globals.CurCatNum, 123) << "three characters are read";
  picker.cmbCategory.UserPick(1);
  EXPECT_EQ(globals.CurCatNum, 7);
  EXPECT_EQ(picker.InventoryList.Rows(), 2);
  EXPECT_EQ(RowText(picker.InventoryList, 1), "1003|Oak|$1.50|9");
  picker.InventoryList.SetFocus();
  picker.InventoryList.UserKey(Key::Enter);
  EXPECT_EQ(Line(1, InvoiceDetail::kDescription), "Oak");
}

TEST_F(InvSearchTest, MovesNoStockWithoutARowAndGivesWayToTheStockScreenWithoutACategory) {
  StandIn({"frmInventory"});
  database.Execute("DELETE FROM tb_Inventory");
  OpenWithLines({});
  Sheet().btnNewItem.Press();
  Picker().btnOK.Press();
  EXPECT_TRUE(IsOpen("InvSearch"));
  EXPECT_THAT(Lines(), IsEmpty());
  Sheet().btnExit.Press();
  EXPECT_FALSE(IsOpen("InvSearch")) << "it goes with its invoice";

  database.Execute("DELETE FROM tb_InvCategories");
  Open(1001).btnNewItem.Press();
  EXPECT_FALSE(IsOpen("InvSearch"));
  EXPECT_TRUE(IsOpen("frmInventory"));
}

TEST_F(InvoiceItemsTest, ACopyTakesItsUnitsOutOfStockAsLinesEnteredByHand) {
  SetStock(5);
  AddInvoice(1001, kAda, kNewYear + 40, 0);
  AddLine(1001, 1001, 3, -7);
  AddLine(1002, 1001, 2);
  AddLine(1003, 1001, 4);
  database.Execute(
      "UPDATE tb_Invoice SET Discount = 10, ShippingCharge = 52500, Interest = 30000, TrackingNum = 'Z9', Terms = "
      "'Net' "
      "WHERE InvoiceNum = 1001");
  StartWithSales();
  desktop.Expect("Last Lamp in Inventory added to Invoice.");
  desktop.Expect(kShort);
  Sales().btnCopy.Press();
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1002");
  EXPECT_EQ(Stock(), "-4");
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|3.0|300000|-7", "1002|1001|2.0|200000|0", "1003|1001|4.0|400000|0",
                                   "1004|1001|3.0|300000|0", "1005|1001|2.0|200000|0", "1006|1001|4.0|400000|-4"));
  EXPECT_THAT(database.Rows("SELECT CustNum, Date, Description, Discount, ShippingCharge, Interest, TrackingNum, Terms "
                            "FROM tb_Invoice WHERE InvoiceNum = 1002"),
              ElementsAre("1003|46348|Order 1001|10.0|52500|0||Net"));
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$86.25");
  // A copy of the copy, whose unsaved change is asked about first.
  Sheet().txtDescription.UserType("Again");
  Press(Sheet().btnCopy, "Save changes to invoice?", Answer::Cancel);
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1002");
  EXPECT_EQ(Stock(), "-4");
}

}  // namespace
}  // namespace norvane::test
