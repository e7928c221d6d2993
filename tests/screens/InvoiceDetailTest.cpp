#include <filesystem>

#include "SalesOffice.h"

namespace norvane::test {
namespace {

using ::testing::Contains;

class InvoiceDetailTest : public SalesOffice {
 protected:
  /// An invoice of Ada Moss's over one lamp, opened.
  InvoiceDetail& OpenOne() {
    AddInvoice(1001, 1003, kNewYear + 40);
    Start();
    Select(2);
    Main().btnDetails.Press();
    return Open(1001);
  }
  std::string Stored(const char* column, int number = 1001) {
    return database.Cell(std::string("SELECT ") + column +
                         " FROM tb_Invoice WHERE InvoiceNum = " + std::to_string(number));
  }
};

TEST_F(InvoiceDetailTest, ShowsAnInvoiceAndClosesItWithoutAQuestion) {
  AddInvoice(1001, 1003, kNewYear + 40, 2);
  database.Execute(
      "UPDATE tb_Invoice SET Discount = 12.5, Tax = 15000, ShippingCharge = 70000, Interest = 20000, Shippingdate = "
      "46070, ShippingType = 'Ground Up to 5 lb', TrackingNum = 'T1', SalesRep = 'Grace', Terms = 'Net 30'");
  Start();
  Select(2);
  Main().btnDetails.Press();
  InvoiceDetail& sheet = Open(1001);
  EXPECT_EQ(sheet.lblInvoiceNum.Caption() + "|" + sheet.lblCustomer.Caption() + "|" + sheet.txtDate.Text() + "|" +
                sheet.txtDescription.Text() + "|" + sheet.txtSalesRep.Text() + "|" + sheet.txtTerms.Text(),
            "1001|Moss, Ada|2/10/2026|Order 1001|Grace|Net 30");
  EXPECT_EQ(sheet.cmbShipType.Text() + "|" + sheet.txtShipDate.Text() + "|" + sheet.txtShipCharge.Text() + "|" +
                sheet.txtTrackNum.Text() + "|" + sheet.txtDiscount.Text() + "|" + sheet.txtInterest.Text() + "|" +
                sheet.txtTax.Text() + "|" + sheet.lblTotal.Caption(),
            "Ground Up to 5 lb|2/17/2026|$7.00|T1|12.5|$2.00|$1.50|$28.00");
  EXPECT_THAT(sheet.cmbShipType.Items(), Contains("Pick up Any"));
  EXPECT_FALSE(globals.InvoiceDirty);
  sheet.btnExit.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
}

TEST_F(InvoiceDetailTest, ReadsCurrencyTextBackAsNothing) {
  InvoiceDetail& sheet = OpenOne();
  database.Execute("UPDATE tb_Invoice SET Tax = 15000, ShippingCharge = 70000, Interest = 20000");
  sheet.btnExit.Press();
  InvoiceDetail& again = Open(1001);
  again.txtInterest.UserType("2.25");
  again.btnSave.Press();
  EXPECT_EQ(Stored("Tax||' '||ShippingCharge||' '||Interest"), "0 0 22500") << "only what was typed anew is kept";
  EXPECT_EQ(again.txtTax.Text(), "$1.50") << "the screen still shows it";
  EXPECT_EQ(again.lblTotal.Caption(), "$12.25");
}

TEST_F(InvoiceDetailTest, StartsANewInvoiceFromWhatTheLastOneHeld) {
  AddInvoice(1500, 1003, kNewYear + 40);
  database.Execute(
      "UPDATE tb_Client SET Discount = 5 WHERE CustNum = 1003;"
      "UPDATE tb_Invoice SET SalesRep = 'Grace', Terms = 'Net 30', Tax = 15000, ShippingType = 'Pick up Any'");
  Start();
  Select(2);
  Main().btnNewInvoice.Press();
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1501");
  EXPECT_EQ(Sheet().txtSalesRep.Text() + Sheet().txtTax.Text(), "$0.00") << "nothing was opened before";
  EXPECT_EQ(Sheet().txtDiscount.Text() + "|" + Sheet().txtDate.Text() + "|" + Sheet().lblCustomer.Caption(),
            "5|11/22/2026|Ada  Moss");
  desktop.Expect("Save changes to invoice?", Answer::No);
  Sheet().btnExit.Press();

  Main().btnDetails.Press();
  Open(1500);
  Main().btnNewInvoice.Press();
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption() + "|" + Sheet().txtSalesRep.Text() + "|" + Sheet().txtTerms.Text() + "|" +
                Sheet().txtTax.Text() + "|" + Sheet().cmbShipType.Text() + "|" + Sheet().txtDescription.Text(),
            "1501|Grace|Net 30|$1.50|Pick up Any|");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "") << "no total until a line is left";

  // Reading the sales list makes the shared invoice anew.
  Main().btnDetails.Press();
  Main().btnNewInvoice.Press();
  EXPECT_EQ(Sheet().txtSalesRep.Text() + Sheet().txtTax.Text(), "$0.00");
}

TEST_F(InvoiceDetailTest, DropsChangesWithoutAQuestionForTheNextInvoice) {
  InvoiceDetail& sheet = OpenOne();
  sheet.txtDescription.UserType("lost");
  sheet.btnNew.Press();
  EXPECT_EQ(sheet.lblInvoiceNum.Caption() + sheet.txtDescription.Text(), "1002");
  EXPECT_EQ(sheet.lblTotal.Caption(), "$10.00") << "the earlier total stands until the next one";
  EXPECT_EQ(sheet.ItemList.Rows(), 1);
  EXPECT_EQ(Stored("Description"), "Order 1001");
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("CustNum", 1002), "1003");
}

TEST_F(InvoiceDetailTest, AsksOnTheWayOutAndStaysOnCancel) {
  InvoiceDetail& sheet = OpenOne();
  sheet.txtDescription.UserType("Changed");
  desktop.Expect("Save Invoice?", Answer::Cancel);
  sheet.btnExit.Press();
  EXPECT_EQ(LastBox().text, "Save changes to invoice?");
  EXPECT_EQ(LastBox().buttons, Buttons::YesNoCancel);
  EXPECT_EQ(LastBox().preselected, Answer::No);
  EXPECT_EQ(sheet.txtDescription.Text(), "Changed");
  desktop.Expect("Save Invoice?", Answer::No);
  sheet.btnExit.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(Stored("Description"), "Order 1001");
}

TEST_F(InvoiceDetailTest, ReckonsTaxAndTotalFromTheScreen) {
  InvoiceDetail& sheet = OpenOne();
  sheet.ItemList.SetCell(1, InvoiceDetail::kTotal, "$100.00");
  sheet.txtDiscount.UserType("10");
  sheet.txtShipCharge.UserType("7");
  sheet.btnTax.Press();
  EXPECT_EQ(sheet.txtTax.Text(), "$4.50");
  EXPECT_EQ(sheet.lblTotal.Caption(), "$101.50");

  // With a field emptied the total stays as it was.
  sheet.txtTax.UserType("");
  desktop.Expect("InvoiceDetail.GetInvoiceTotal -13 Type mismatch");
  sheet.ItemList.UserClick(1, InvoiceDetail::kDescription);
  EXPECT_EQ(sheet.lblTotal.Caption(), "$101.50");
  sheet.txtTax.SetText("0");
  sheet.txtDiscount.SetText("");
  desktop.Expect("InvoiceDetail.GetInvoiceTotal -13");
  desktop.Expect("InvoiceDetail.GetTax -13");
  sheet.btnTax.Press();
  EXPECT_EQ(sheet.txtTax.Text(), "0");
}

TEST_F(InvoiceDetailTest, CountsNoChargesWithoutLines) {
  AddInvoice(1001, 1003, kNewYear + 40, 0);
  Start();
  Select(2);
  Main().btnDetails.Press();
  InvoiceDetail& sheet = Open(1001);
  sheet.txtShipCharge.UserType("7");
  sheet.btnTax.Press();
  EXPECT_EQ(sheet.txtTax.Text() + sheet.lblTotal.Caption(), "$0.00$0.00");
  sheet.txtShipCharge.UserType("7");
  sheet.btnRemove.SetFocus();
  EXPECT_EQ(sheet.txtShipCharge.Text(), "$7.00");
  for (const char* kept : {"0", "-3", "free"}) {
    sheet.txtShipCharge.UserType(kept);
    sheet.txtTerms.SetFocus();
    EXPECT_EQ(sheet.txtShipCharge.Text(), kept);
  }
}

TEST_F(InvoiceDetailTest, TakesLeadingNumbersAndKeepsDatesThatAreNone) {
  InvoiceDetail& sheet = OpenOne();
  sheet.txtDate.UserType("2/31/2026");
  sheet.txtShipDate.UserType("soon");
  sheet.txtDiscount.UserType("ten");
  sheet.txtInterest.UserType("3 days");
  sheet.txtTax.UserType("1,234");
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("Date"), std::to_string(kNewYear + 40));
  EXPECT_EQ(Stored("Shippingdate"), std::to_string(kNewYear + 40));
  EXPECT_EQ(Stored("Discount||' '||Interest||' '||Tax"), "0.0 30000 10000");
}

TEST_F(InvoiceDetailTest, LosesTheHeadToAnApostropheUntilItIsSavedWithoutOne) {
  InvoiceDetail& sheet = OpenOne();
  sheet.txtDescription.UserType("Ada's order");
  desktop.Expect("Invoice.SaveInvoiceAccess --2147217900 Syntax error");
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("Description"), "");
  sheet.txtDescription.UserType("Adas order");
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("Description"), "Adas order");
}

TEST_F(InvoiceDetailTest, EndsTheLoadWithoutAShippingOption) {
  database.Execute("DELETE FROM tb_Shipping");
  AddInvoice(1001, 1003, kNewYear + 40);
  Start();
  Select(2);
  Main().btnDetails.Press();
  desktop.Expect("InvoiceDetail.Form_Load -3021");
  EXPECT_EQ(Open(1001).lblInvoiceNum.Caption(), "");
  EXPECT_TRUE(Sheet().IsVisible());
}

TEST_F(InvoiceDetailTest, ReportsANullAndALineOfNothing) {
  AddInvoice(1001, 1003, kNewYear + 40);
  AddInvoice(1002, 1003, kNewYear + 40, 0);
  AddLine(1002, 1002, 0);
  database.Execute("UPDATE tb_Invoice SET ShippingCharge = NULL, SalesRep = 'Grace' WHERE InvoiceNum = 1001");
  Start();
  Select(2);
  desktop.Expect("Invoice.InvoiceTotal -94 ");
  desktop.Expect("Invoice.InvoiceTotal -94 ");
  Main().btnDetails.Press();
  desktop.Expect("Invoice.GetInvoice -94 Invalid use of Null");
  desktop.Expect("Invoice.InvoiceTotal -94 ");
  EXPECT_EQ(Open(1001).txtSalesRep.Text(), "") << "what comes behind the Null keeps its earlier value";
  EXPECT_EQ(Sheet().ItemList.Rows(), 2);
  desktop.Expect("InvoiceDetail.Form_Load -11 Division by zero");
  Open(1002);
}

TEST_F(InvoiceDetailTest, PrintsTheInvoiceShownOnceItIsDecidedAbout) {
  StandIn({"PrtInvoice", "Receipts"});
  InvoiceDetail& sheet = OpenOne();
  globals.CurInvoiceNum = 0;
  sheet.txtTerms.UserType("Cash");
  desktop.Expect("Save changes to invoice?", Answer::Cancel);
  sheet.btnPrint.Press();
  EXPECT_TRUE(globals.InvoiceDirty);
  EXPECT_FALSE(IsOpen("PrtInvoice"));
  desktop.Expect("Save changes to invoice?", Answer::Yes);
  sheet.btnPrint.Press();
  EXPECT_TRUE(IsOpen("PrtInvoice"));
  EXPECT_EQ(globals.CurInvoiceNum, 1001);
  EXPECT_EQ(Stored("Terms"), "Cash");
  sheet.btnPayments.Press();
  EXPECT_TRUE(IsOpen("Receipts"));
}

TEST_F(InvoiceDetailTest, SurvivesItsClientAndItsDatabase) {
  InvoiceDetail& sheet = OpenOne();
  desktop.Expect("Delete Client", Answer::Yes);
  Main().mnuDelete.Choose();
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("CustNum"), "1003") << "the head is saved for the client that is no more";

  std::filesystem::remove(database.File());
  for (const char* label :
       {"Invoice.SaveInvoiceAccess -3709", "Invoice.InvoiceTotal -3709", "Invoice.GetCustInvoices -3709",
        "Client.ClientBal -91", "Invoice.GetCustInvoices -3709", "Client.ClientBal -91"}) {
    desktop.Expect(label);
  }
  sheet.btnSave.Press();
  EXPECT_FALSE(std::filesystem::exists(database.File()));
}

}  // namespace
}  // namespace norvane::test
