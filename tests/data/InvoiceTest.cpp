#include "core/SqlText.h"
#include "data/DataTest.h"
#include "data/Invoice.h"

namespace norvane::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InvoiceTest : public DataTest {
 protected:
  /// An invoice with no charges but those given.
  void AddInvoice(int number, double discount = 0, double shipping = 0, double interest = 0, double tax = 0) {
    database.Execute(
        "insert into tb_Invoice (InvoiceNum, CustNum, Date, Shippingdate, Discount, ShippingCharge, "
        "Interest, Tax) values (" +
        std::to_string(number) + ", 1001, 45000, 45001, " + sql::Text(discount) + "," + Count(shipping) + "," +
        Count(interest) + "," + Count(tax) + ")");
  }
  void AddLine(int number, int invoiceNum, double amount) {
    database.Execute("insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount) values (" +
                     std::to_string(number) + "," + std::to_string(invoiceNum) + ", 7, 1, " + Count(amount) + ")");
  }
  static std::string Count(double amount) { return std::to_string(Money(amount).TenThousandths()); }

  std::shared_ptr<Invoice> invoice = Opened<Invoice>();
};

TEST_F(InvoiceTest, TheTotalDiscountsTheLinesAloneAndRoundsOnce) {
  AddInvoice(1, 100, 5);
  AddLine(1, 1, 30);
  AddInvoice(2, 33.333);
  AddLine(2, 2, 10);
  AddInvoice(3, 50, 1, 2, 4);
  AddLine(4, 4, 12.3456);
  EXPECT_EQ(invoice->InvoiceTotal(1), Money(5));
  EXPECT_EQ(invoice->InvoiceTotal(2), Money(6.6667));
  EXPECT_EQ(invoice->InvoiceTotal(3), Money(7)) << "no lines";
  EXPECT_EQ(invoice->InvoiceTotal(4), Money(12.3456)) << "lines without an invoice";
  for (const char* column : {"Discount", "Tax", "ShippingCharge", "Interest"}) {
    database.Execute(std::string("update tb_Invoice set Discount = 0, Tax = 1, ShippingCharge = 1, Interest = 1; "
                                 "update tb_Invoice set ") +
                     column + " = null");
    EXPECT_EQ(invoice->InvoiceTotal(2), Money(10)) << column;
    ExpectReport("Invoice.InvoiceTotal -", 94);
  }
}

TEST_F(InvoiceTest, AnInvoiceIsReadSavedAndBlankedButForTheDiscount) {
  EXPECT_EQ(invoice->InvoiceDate, Day(2026, 11, 22));
  EXPECT_THROW(static_cast<void>(std::int32_t{invoice->CustNum}), RuntimeError) << "a new object has no numbers";
  const std::string row = "|1001|45351|A \"gift\"|0.1|9223372036854775000|-1|0|Ground|#1|15000|Ann|Net 30";
  database.Execute(
      "insert into tb_Invoice values (1001, 1001, 45351, 'A \"gift\"', 0.1, 9223372036854775000, -1, 0, 'Ground', "
      "'#1', 15000, 'Ann', 'Net 30')");
  invoice->GetInvoice(1001);
  EXPECT_EQ(invoice->InvoiceNum, 1001);
  EXPECT_EQ(invoice->InvoiceDate, Day(2024, 2, 29));
  EXPECT_EQ(invoice->ShippingCharge, Money(-0.0001));
  EXPECT_EQ(invoice->Interest, Money(1.5));
  EXPECT_EQ(invoice->Terms, "Net 30");
  invoice->InvoiceNum = 1002;
  invoice->SaveInvoiceAccess(1001);
  EXPECT_THAT(database.Rows("select * from tb_Invoice"), ElementsAre("1002" + row));

  invoice->TransNotes = "kept";
  invoice->GetInvoice(7);
  EXPECT_EQ(invoice->CustNum.Text(), "");
  EXPECT_EQ(invoice->TransNotes, "kept");
  invoice->SaveInvoiceAccess(1002);
  ExpectReport("Invoice.SaveInvoiceAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select * from tb_Invoice"), IsEmpty()) << "without a client's number the save is refused";
  invoice->CustNum = -1;
  invoice->SaveInvoiceAccess(1003);
  const std::string today = Serial(2026, 11, 22);
  EXPECT_THAT(database.Rows("select * from tb_Invoice"),
              ElementsAre("1003|-1|" + today + "||0.1|0|0|" + today + "|||0||"));
}

TEST_F(InvoiceTest, NullsThatAreNotGuardedStopTheReadingWhereTheyStand) {
  // In the order of reading; what is read before has the new value, what comes after the old one.
  const std::vector<std::string> order = {"CustNum",      "Date",     "Discount", "ShippingCharge",
                                          "Shippingdate", "Interest", "Tax"};
  for (std::size_t i = 0; i < order.size(); ++i) {
    SCOPED_TRACE(order[i]);
    database.Execute("delete from tb_Invoice");
    AddInvoice(8, 1, 1, 1, 1);
    database.Execute("update tb_Invoice set \"" + order[i] + "\" = null");
    const auto reading = Opened<Invoice>();
    reading->GetInvoice(8);
    ExpectReport("Invoice.GetInvoice -", 94);
    EXPECT_EQ(reading->InvoiceNum, 8);
    EXPECT_EQ(!reading->CustNum.Text().empty(), i > 0);
    EXPECT_EQ(reading->InvoiceDate == Date(45000), i > 1);
    EXPECT_EQ(reading->Discount == 1, i > 2);
    EXPECT_EQ(reading->ShippingCharge == Money(1), i > 3);
    EXPECT_EQ(reading->Shippingdate == Date(45001), i > 4);
    EXPECT_EQ(reading->Interest == Money(1), i > 5);
    EXPECT_EQ(reading->Tax, Money(0));
  }
}

TEST_F(InvoiceTest, SavingALineGivesItANumberAndForgetsItsOrderDate) {
  invoice->InvoiceNum = 1001;
  invoice->ItemNum = 7;
  invoice->Qty = 3;
  invoice->charge = Money(0.3);
  invoice->TransNotes = "Pen";
  invoice->BackOrder = -2;
  invoice->SaveTransAccess();
  EXPECT_EQ(invoice->TransNum, 1001);
  invoice->SaveOrderDate(1001, Day(2026, 1, 5));
  EXPECT_THAT(database.Rows("select * from tb_trans"),
              ElementsAre("1001|1001|7|3.0|3000|Pen|-2|" + Serial(2026, 1, 5)));
  invoice->TransNotes = "Pens";
  invoice->SaveTransAccess();
  EXPECT_THAT(database.Rows("select * from tb_trans"), ElementsAre("1001|1001|7|3.0|3000|Pens|-2|NULL"));
  invoice->TransNum = 0;
  invoice->SaveTransAccess();
  EXPECT_THAT(Rows(invoice->GetInvoiceItems(1001), {"TransNum", "Notes", "Amount"}),
              ElementsAre("1001|Pens|0.3", "1002|Pens|0.3"));
}

TEST_F(InvoiceTest, BackOrdersAreNegativeWhateverElseTheTextHolds) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname) values (1001, 'Abbot', 'Ann');"
      "insert into tb_trans (TransNum, InvoiceNum, BackOrder, Ordered) values (1, 1, '-3', null), "
      "(2, 1, '0', null), (3, 1, 'x', null), (4, 1, null, null), (5, 1, '-1 of 2', 45000), (6, 9, '-1', null), "
      "(7, 1, '2', 45000), (8, 1, '', null)");
  AddInvoice(1);
  EXPECT_THAT(Rows(invoice->GetBackOrderItems(), {"TransNum", "BackOrderQty", "InvoiceDate", "Lname"}),
              ElementsAre("1|-3|3/15/2023|Abbot"));
  EXPECT_THAT(Rows(invoice->GetBackOrderedItems(), {"TransNum", "Ordered"}), ElementsAre("5|3/15/2023"));
  invoice->SaveOrderDate(1, Date(45001));
  EXPECT_TRUE(invoice->GetBackOrderItems()->Eof());
  EXPECT_THAT(Rows(invoice->GetBackOrderedItems(), {"TransNum", "backorderqty"}), ElementsAre("1|-3", "5|-1 of 2"));
}

TEST_F(InvoiceTest, DeletingAnInvoiceGivesTheWholeQuantityBackOfWhatIsCountedButDeletingALineNothing) {
  database.Execute(
      "insert into tb_Inventory (ItemNum, Par, InStock) values (1, 1, -4), (2, 0, 3), (3, 1, 10), (4, -1, 3);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, BackOrder) values (1, 9, 1, 4, -4), "
      "(2, 9, 2, 5, 0), (3, 9, 3, 2, 0), (4, 9, 3, 1, 0), (5, 8, 3, 1, 0), (6, 9, 4, 1, 0), (7, 9, 3, 50, 0);"
      "insert into tb_Receive (TransNum, CustNum) values (1, 1001)");
  AddInvoice(9);
  AddInvoice(8);
  invoice->DeleteInvoiceItem(7);
  invoice->DeleteInvoice(9);
  EXPECT_THAT(database.Rows("select InStock from tb_Inventory"), ElementsAre("0", "3", "13", "3"));
  EXPECT_THAT(database.Rows("select InvoiceNum from tb_Invoice union all select TransNum from tb_trans union all "
                            "select TransNum from tb_Receive"),
              ElementsAre("8", "5", "1"));
}

TEST_F(InvoiceTest, AnItemThatIsGoneEndsTheDeletionOfItsInvoiceHalfWay) {
  database.Execute(
      "insert into tb_Inventory (ItemNum, Par, InStock) values (1, 1, 0), (3, 1, 0);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty) values (1, 9, 1, 4), (2, 9, 2, 5), (3, 9, 3, 6)");
  AddInvoice(9);
  invoice->DeleteInvoice(9);
  ExpectReport("Invoice.DeleteInvoice -", 3021);
  EXPECT_THAT(database.Rows("select InvoiceNum from tb_Invoice"), IsEmpty());
  EXPECT_THAT(database.Rows("select TransNum from tb_trans"), ElementsAre("1", "2", "3"));
  EXPECT_THAT(database.Rows("select InStock from tb_Inventory"), ElementsAre("4", "0"));
}

TEST_F(InvoiceTest, APaymentIsSavedWithItsNextNumberAndReplacedUnderItsNumber) {
  invoice->CustNum = 1001;
  invoice->Paytype = "Check";
  invoice->Checknum = "0042";
  invoice->PayDate = Day(2026, 12, 31);
  invoice->Payment = Money(1234.5678);
  invoice->PayNotes = "thanks";
  invoice->SavePayment();
  EXPECT_EQ(invoice->PayNum, 1001);
  invoice->AllPayments(Date(45000), -1);
  EXPECT_EQ(invoice->CustNum, -1) << "whose payments were listed";
  invoice->PayNotes = "";
  invoice->Payment = Money(-1);
  invoice->SavePayment();
  EXPECT_THAT(database.Rows("select * from tb_Receive"),
              ElementsAre("1001|-1|Check|0042|" + Serial(2026, 12, 31) + "|-10000|"));
  invoice->DeletePayment(1001);
  EXPECT_THAT(database.Rows("select * from tb_Receive"), IsEmpty());
}

TEST_F(InvoiceTest, ARowIsAddedToAnOpenListOnly) {
  invoice->AddToInvoice(1, 2, 3, Money(4), "5", true);
  ExpectReport("Invoice.AddtoInvoice -", 3704);
  const Object<Recordset> lines = invoice->GetInvoiceItems(1);
  invoice->AddToInvoice(1, 2, 3, Money(4), "5", true);
  EXPECT_EQ(lines->RecordCount(), 1);
  EXPECT_EQ(lines->Currency("amount"), Money(4));
}

}  // namespace norvane::test
