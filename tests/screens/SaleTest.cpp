#include "SalesOffice.h"
#include "core/Given.h"

namespace norvane::test {
namespace {

class SaleTest : public SalesOffice {};

/// The business's main job from end to end, the tables looked at after each step.
TEST_F(SaleTest, GoesFromTheClientToASavedInvoiceAndBackToNothing) {
  Start();
  Select(2);
  Press(Main().btnDetails, "Enter new sales invoice for Moss, Ada ?", Answer::Yes);
  EXPECT_EQ(LastBox().title, "No Sales Found");
  EXPECT_FALSE(IsOpen("CustInvoices"));
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1001");
  EXPECT_EQ(Sheet().lblCustomer.Caption(), "Ada  Moss");
  EXPECT_EQ(database.Cell("SELECT COUNT(*) FROM tb_Invoice"), "0") << "the number isn't taken yet";

  // The first item takes the head along.
  PickItem(kLamp);
  EXPECT_EQ(database.Cell("SELECT CustNum FROM tb_Invoice WHERE InvoiceNum = 1001"), "1003");
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|1.0|100000|0"));
  EXPECT_EQ(Stock(), "1");
  EXPECT_FALSE(IsOpen("InvSearch"));
  EXPECT_TRUE(Sheet().ItemList.HasFocus());

  // More than there is.
  desktop.Expect("No Lamp in Inventory.  Is marked as Back Ordered in Invoice!");
  Enter(Sheet().ItemList, 1, InvoiceDetail::kQuantity, "5");
  EXPECT_EQ(Stock(), "-3") << "stock moves at the end of the edit";
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|1.0|100000|0")) << "the line when its row is left";
  LeaveLines();
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|5.0|500000|-3"));

  Sheet().txtDescription.UserType("Spring order");
  Sheet().btnTax.Press();
  EXPECT_EQ(Sheet().txtTax.Text(), "$2.50");
  Sheet().txtTax.UserType("2.50");
  Sheet().txtShipCharge.UserType("7");
  Sheet().btnSave.Press();
  EXPECT_EQ(Sheet().txtShipCharge.Text(), "$7.00") << "the button took the focus first";
  EXPECT_EQ(database.Rows("SELECT CustNum, Date, Description, Tax, ShippingCharge FROM tb_Invoice").at(0),
            "1003|46348|Spring order|25000|0");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "$52.50");
  EXPECT_EQ(Sheet().lblLessStored.Caption(), "Stored less than shown: Shipping Charge");

  // Closing shows it among the client's sales, with what is owed in red.
  Sheet().btnExit.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  ASSERT_TRUE(Sales().IsVisible());
  EXPECT_EQ(Sales().InvoiceList.Cell(1, 1) + " " + Sales().InvoiceList.Cell(1, 5), "1001 $52.50");
  EXPECT_EQ(Sales().lblBalDue.Caption(), "$52.50");
  EXPECT_EQ(Sales().lblBalDue.ForeColor(), Colour::Red);

  // Reopened, changed, deleted.
  InvoiceDetail& again = Open(1001);
  EXPECT_EQ(again.txtDescription.Text(), "Spring order");
  desktop.Expect("No Lamp in Inventory.");
  Enter(again.ItemList, 1, InvoiceDetail::kQuantity, "4");
  again.btnExit.Press();
  EXPECT_THAT(Lines(), ElementsAre("1001|1001|4.0|400000|-2"));
  EXPECT_EQ(Stock(), "-2");
  EXPECT_EQ(Sales().InvoiceList.Cell(1, 5), "$40.00") << "the first line saved the head, its tax read as 0";

  Press(Sales().btnDelete, "Delete invoice #1001 and all associated charges?", Answer::Yes);
  EXPECT_EQ(Stock(), "2");
  EXPECT_EQ(Sales().InvoiceList.Rows(), 1);
  EXPECT_EQ(Sales().lblBalDue.Caption(), "$0.00");
  EXPECT_EQ(Sales().lblBalDue.ForeColor(), Colour::Black);
  EXPECT_EQ(database.Cell("SELECT (SELECT COUNT(*) FROM tb_Invoice) + COUNT(*) FROM tb_trans"), "0");
  EXPECT_EQ(Connections(), 0);
}

class ContinentalSaleTest : public SalesOffice {
 protected:
  ContinentalSaleTest() : SalesOffice(Germany()) {}
};

TEST_F(ContinentalSaleTest, KeepsMoneyWhoseSymbolStandsBehind) {
  AddInvoice(1001, 1003, kNewYear + 40);
  database.Execute("UPDATE tb_Invoice SET Tax = 37500, ShippingCharge = 75000, Interest = 9900, Discount = 12.5");
  Start();
  ListAll();
  EXPECT_EQ(Sales().InvoiceList.Cell(1, 0) + " " + Sales().InvoiceList.Cell(1, 5), "10.02.2026 20,99 €");
  InvoiceDetail& sheet = Open(1001);
  EXPECT_EQ(sheet.txtDate.Text() + " " + sheet.txtShipCharge.Text(), "10.02.2026 7,50 €");
  sheet.btnSave.Press();
  EXPECT_EQ(database.Rows("SELECT Date, Tax, ShippingCharge, Interest, Discount FROM tb_Invoice").at(0),
            "46063|37500|75000|9900|12.5");
  EXPECT_EQ(sheet.lblLessStored.Caption(), "");
}

}  // namespace
}  // namespace norvane::test
