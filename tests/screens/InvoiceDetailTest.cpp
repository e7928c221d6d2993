#include "SalesOffice.h"

namespace norvane::test {
namespace {

class InvoiceDetailTest : public SalesOffice {
 protected:
  /// An invoice of Ada Moss's over one lamp, opened.
  InvoiceDetail& OpenOne() {
    AddInvoice(1001);
    return StartWith(1001);
  }
  std::string Stored(const char* column, int number = 1001) {
    return database.Cell(std::string("SELECT ") + column +
                         " FROM tb_Invoice WHERE InvoiceNum = " + std::to_string(number));
  }
  /// What can be typed into, and the total.
  std::string Fields() {
    const InvoiceDetail& sheet = Sheet();
    std::string fields = sheet.lblInvoiceNum.Caption();
    for (const TextBox* box :
         {&sheet.txtDate, &sheet.txtDescription, &sheet.txtSalesRep, &sheet.txtTerms, &sheet.txtShipDate,
          &sheet.txtShipCharge, &sheet.txtTrackNum, &sheet.txtDiscount, &sheet.txtInterest, &sheet.txtTax}) {
      fields += "|" + box->Text();
    }
    return fields + "|" + sheet.cmbShipType.Text() + "|" + sheet.lblTotal.Caption();
  }
};

TEST_F(InvoiceDetailTest, ReadsCurrencyTextBackAsNothing) {
  AddInvoice(1001, kAda, kNewYear + 40, 2);
  database.Execute(
      "UPDATE tb_Invoice SET Discount = 12.5, Tax = 15000, ShippingCharge = 70000, Interest = 20000, Shippingdate = "
      "46070, ShippingType = 'Ground Up to 5 lb', TrackingNum = 'T1', SalesRep = 'Grace', Terms = 'Net 30'");
  InvoiceDetail& sheet = StartWith(1001);
  EXPECT_EQ(sheet.lblCustomer.Caption(), "Moss, Ada");
  EXPECT_EQ(Fields(),
            "1001|2/10/2026|Order 1001|Grace|Net 30|2/17/2026|$7.00|T1|12.5|$2.00|$1.50|Ground Up to 5 lb|$28.00");
  EXPECT_THAT(sheet.cmbShipType.Items(), Contains("Pick up At counter"));
  sheet.btnExit.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail")) << "without changes there is no question";

  InvoiceDetail& again = Open(1001);
  again.txtInterest.UserType("2.25");
  again.btnSave.Press();
  EXPECT_EQ(Stored("Tax||' '||ShippingCharge||' '||Interest"), "0 0 22500") << "only what was typed again is kept";
  EXPECT_EQ(again.txtTax.Text(), "$1.50") << "the screen still shows it";
  EXPECT_EQ(again.lblTotal.Caption(), "$19.75");
}

TEST_F(InvoiceDetailTest, StartsANewInvoiceFromWhatTheLastOneHeld) {
  AddInvoice(1500);
  database.Execute(
      "UPDATE tb_Client SET Discount = 5 WHERE CustNum = 1003;"
      "UPDATE tb_Invoice SET SalesRep = 'Grace', Terms = 'Net 30', Tax = 15000, ShippingType = 'Pick up At counter'");
  Start();
  Select(2);
  Main().btnNewInvoice.Press();
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption() + Sheet().lblCustomer.Caption(), "1501Ada  Moss");
  EXPECT_EQ(Sheet().txtSalesRep.Text() + Sheet().txtTax.Text(), "$0.00") << "nothing was opened before";
  EXPECT_EQ(Sheet().txtDiscount.Text() + "|" + Sheet().txtDate.Text(), "5|11/22/2026");
  Press(Sheet().btnExit, "Save changes to invoice?", Answer::Cancel);
  ExpectQuestion("Save Invoice?", Buttons::YesNoCancel);
  Press(Sheet().btnExit, "Save changes to invoice?", Answer::No);
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(Stored("COUNT(*)", 1501), "0");

  Main().btnDetails.Press();
  Open(1500);
  Main().btnNewInvoice.Press();
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption() + "|" + Sheet().txtSalesRep.Text() + "|" + Sheet().txtTerms.Text() + "|" +
                Sheet().txtTax.Text() + "|" + Sheet().cmbShipType.Text() + "|" + Sheet().txtDescription.Text(),
            "1501|Grace|Net 30|$1.50|Pick up At counter|");
  EXPECT_EQ(Sheet().lblTotal.Caption(), "") << "no total until a line is left";

  // Reading the sales list recreates the shared invoice.
  Main().btnDetails.Press();
  Main().btnNewInvoice.Press();
  EXPECT_EQ(Sheet().txtSalesRep.Text() + Sheet().txtTax.Text(), "$0.00");
}

TEST_F(InvoiceDetailTest, DropsChangesWithoutAQuestionForTheNextInvoice) {
  InvoiceDetail& sheet = OpenOne();
  sheet.txtDescription.UserType("lost");
  sheet.btnNew.Press();
  EXPECT_EQ(sheet.lblInvoiceNum.Caption() + sheet.txtDescription.Text(), "1002");
  EXPECT_EQ(sheet.lblTotal.Caption(), "$10.00") << "the earlier total stays until the next one";
  EXPECT_EQ(sheet.ItemList.Rows(), 1);
  EXPECT_EQ(Stored("Description"), "Order 1001");
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("CustNum", 1002), "1003");
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
  ExpectBoxes({"InvoiceDetail.GetInvoiceTotal -13", "InvoiceDetail.GetTax -13"});
  sheet.btnTax.Press();
  EXPECT_EQ(sheet.txtTax.Text(), "0");
}

TEST_F(InvoiceDetailTest, CountsNoChargesWithoutLines) {
  AddInvoice(1001, kAda, kNewYear + 40, 0);
  InvoiceDetail& sheet = StartWith(1001);
  sheet.txtShipCharge.UserType("7");
  sheet.btnTax.Press();
  EXPECT_EQ(sheet.txtTax.Text() + sheet.lblTotal.Caption(), "$0.00$0.00");
  EXPECT_EQ(sheet.txtShipCharge.Text(), "$7.00");
  for (const char* kept : {"0", "-3", "free"}) {
    sheet.txtShipCharge.UserType(kept);
    sheet.txtTerms.SetFocus();
    EXPECT_EQ(sheet.txtShipCharge.Text(), kept);
  }
}

TEST_F(InvoiceDetailTest, SavesLeadingNumbersAndLosesTheHeadToAnApostrophe) {
  InvoiceDetail& sheet = OpenOne();
  sheet.txtDate.UserType("2/31/2026");
  sheet.txtShipDate.UserType("soon");
  sheet.txtDiscount.UserType("ten");
  sheet.txtInterest.UserType("3 days");
  sheet.txtTax.UserType("1,234");
  sheet.txtDescription.UserType("Ada's order");
  Press(sheet.btnSave, "Invoice.SaveInvoiceAccess --2147217900 Syntax error");
  EXPECT_EQ(Stored("Description"), "");
  sheet.txtDescription.UserType("Adas order");
  sheet.btnSave.Press();
  EXPECT_EQ(Stored("Description"), "Adas order");
  EXPECT_EQ(Stored("Discount||' '||Interest||' '||Tax"), "0.0 30000 10000");
  EXPECT_EQ(Stored("Date||' '||Shippingdate"), "46063 46063") << "what is no date leaves the earlier one";
}

TEST_F(InvoiceDetailTest, ReportsALineOfNothing) {
  AddInvoice(1001, kAda, kNewYear + 40, 0);
  AddLine(1001, 1001, 0);
  desktop.Expect("InvoiceDetail.Form_Load -11 Division by zero");
  EXPECT_TRUE(StartWith(1001).IsVisible());
}

TEST_F(InvoiceDetailTest, EndsTheLoadWithoutAShippingOption) {
  database.Execute("DELETE FROM tb_Shipping");
  AddInvoice(1001);
  desktop.Expect("InvoiceDetail.Form_Load -3021");
  EXPECT_EQ(StartWith(1001).lblInvoiceNum.Caption(), "");
  EXPECT_TRUE(Sheet().IsVisible());
}

TEST_F(InvoiceDetailTest, PrintsTheInvoiceShownOnceItIsDecidedAbout) {
  StandIn({"PrtInvoice", "Receipts"});
  InvoiceDetail& sheet = OpenOne();
  globals.CurInvoiceNum = 0;
  globals.CurCustNum = kAda + 1;
  sheet.txtTerms.UserType("Cash");
  Press(sheet.btnPrint, "Save changes to invoice?", Answer::Cancel);
  EXPECT_TRUE(globals.InvoiceDirty);
  EXPECT_FALSE(IsOpen("PrtInvoice"));
  Press(sheet.btnPrint, "Save changes to invoice?", Answer::Yes);
  EXPECT_TRUE(IsOpen("PrtInvoice"));
  EXPECT_EQ(globals.CurInvoiceNum, 1001);
  EXPECT_EQ(Stored("Terms"), "Cash");
  EXPECT_EQ(Stored("CustNum"), std::to_string(kAda)) << "an invoice stays its client's";
  EXPECT_EQ(globals.CurCustNum, kAda);
  sheet.btnPayments.Press();
  EXPECT_TRUE(IsOpen("Receipts"));
}

}  // namespace
}  // namespace norvane::test
