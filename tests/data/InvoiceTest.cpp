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
  AddLine(2, 1, 20);
  AddInvoice(2, 33.333);
  AddLine(3, 2, 10);
  AddInvoice(3, 50, 1, 2, 4);
  AddInvoice(4, -10, 0.0001, -3, 0);
  AddLine(4, 4, -0.01);
  AddLine(5, 5, 12.3456);
  EXPECT_EQ(invoice->InvoiceTotal(1), Money(5));
  EXPECT_EQ(invoice->InvoiceTotal(2), Money(6.6667));
  EXPECT_EQ(invoice->InvoiceTotal(3), Money(7)) << "no lines";
  EXPECT_EQ(invoice->InvoiceTotal(4), Money(-3.0109));
  EXPECT_EQ(invoice->InvoiceTotal(5), Money(12.3456)) << "lines without an invoice";
  EXPECT_EQ(invoice->InvoiceTotal(6), Money(0));
}

TEST_F(InvoiceTest, ANullAmongTheChargesIsReportedAndLeavesTheLines) {
  for (const char* column : {"Discount", "Tax", "ShippingCharge", "Interest"}) {
    AddInvoice(1, 50, 1, 1, 1);
    AddLine(1, 1, 10);
    database.Execute(std::string("update tb_Invoice set ") + column + " = null");
    EXPECT_EQ(invoice->InvoiceTotal(1), Money(10)) << column;
    ExpectReport("Invoice.InvoiceTotal -", 94);
    database.Clear();
  }
}

TEST_F(InvoiceTest, ANewObjectIsOfTodayAndHasNoNumbersToRead) {
  for (const Date date : {invoice->InvoiceDate, invoice->Shippingdate, invoice->PayDate}) {
    EXPECT_EQ(date, Day(2026, 11, 22));
  }
  EXPECT_THROW(static_cast<void>(std::int32_t{invoice->InvoiceNum}), RuntimeError);
  EXPECT_THROW(static_cast<void>(std::int32_t{invoice->CustNum}), RuntimeError);
  invoice->CustNum = -1;
  EXPECT_EQ(invoice->CustNum, -1);
}

TEST_F(InvoiceTest, AllOfAnInvoiceIsSavedAndComesBack) {
  invoice->InvoiceNum = 1002;
  invoice->CustNum = 1001;
  invoice->InvoiceDate = Day(2024, 2, 29);
  invoice->description = "A \"gift\"";
  invoice->Discount = 0.1;
  invoice->Tax = Money(922337203685477.5);
  invoice->ShippingCharge = Money(-0.0001);
  invoice->Shippingdate = Date();
  invoice->ShippingType = "Ground";
  invoice->TrackingNum = "#1";
  invoice->Interest = Money(1.5);
  invoice->SalesRep = "Ann";
  invoice->Terms = "Net 30";
  AddInvoice(1001);
  invoice->SaveInvoiceAccess(1001);
  EXPECT_THAT(database.Rows("select * from tb_Invoice"),
              ElementsAre("1002|1001|" + Serial(2024, 2, 29) +
                          "|A \"gift\"|0.1|9223372036854775000|-1|0|Ground|#1|15000|Ann|Net 30"));

  Invoice other(workspace);
  other.InitAccess(database.File());
  other.OpenCn();
  other.GetInvoice(1002);
  EXPECT_EQ(other.InvoiceNum, 1002);
  EXPECT_EQ(other.CustNum, 1001);
  EXPECT_EQ(other.InvoiceDate, invoice->InvoiceDate);
  EXPECT_EQ(other.description, invoice->description);
  EXPECT_EQ(other.Discount, 0.1);
  EXPECT_EQ(other.Tax, invoice->Tax);
  EXPECT_EQ(other.ShippingCharge, invoice->ShippingCharge);
  EXPECT_EQ(other.Shippingdate, Date());
  EXPECT_EQ(other.ShippingType, "Ground");
  EXPECT_EQ(other.TrackingNum, "#1");
  EXPECT_EQ(other.Interest, invoice->Interest);
  EXPECT_EQ(other.SalesRep, "Ann");
  EXPECT_EQ(other.Terms, "Net 30");
}

TEST_F(InvoiceTest, AnUnknownNumberBlanksAllButTheDiscount) {
  AddInvoice(1500);
  invoice->CustNum = 5;
  invoice->Discount = 7.5;
  invoice->Tax = invoice->Interest = invoice->ShippingCharge = Money(1);
  invoice->InvoiceDate = invoice->Shippingdate = Day(2020, 1, 1);
  invoice->description = invoice->Terms = invoice->SalesRep = invoice->TrackingNum = invoice->ShippingType = "old";
  invoice->TransNotes = "kept";
  invoice->GetInvoice(7);
  EXPECT_EQ(invoice->InvoiceNum, 1501);
  EXPECT_EQ(invoice->CustNum.Text(), "");
  EXPECT_EQ(invoice->Discount, 7.5);
  EXPECT_EQ(invoice->Tax + invoice->Interest + invoice->ShippingCharge, Money(0));
  EXPECT_EQ(invoice->InvoiceDate, Day(2026, 11, 22));
  EXPECT_EQ(invoice->Shippingdate, Day(2026, 11, 22));
  EXPECT_EQ(invoice->description + invoice->Terms + invoice->SalesRep + invoice->TrackingNum + invoice->ShippingType,
            "");
  EXPECT_EQ(invoice->TransNotes, "kept");
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
    Invoice reading(workspace);
    reading.InitAccess(database.File());
    reading.OpenCn();
    reading.GetInvoice(8);
    ExpectReport("Invoice.GetInvoice -", 94);
    EXPECT_EQ(reading.InvoiceNum, 8);
    EXPECT_EQ(!reading.CustNum.Text().empty(), i > 0);
    EXPECT_EQ(reading.InvoiceDate == Date(45000), i > 1);
    EXPECT_EQ(reading.Discount == 1, i > 2);
    EXPECT_EQ(reading.ShippingCharge == Money(1), i > 3);
    EXPECT_EQ(reading.Shippingdate == Date(45001), i > 4);
    EXPECT_EQ(reading.Interest == Money(1), i > 5);
    EXPECT_EQ(reading.Tax, Money(0));
  }
}

TEST_F(InvoiceTest, ASaveWithoutNumbersOrWithAnApostropheLosesTheRow) {
  AddInvoice(1001);
  invoice->SaveInvoiceAccess(1001);
  ExpectReport("Invoice.SaveInvoiceAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select * from tb_Invoice"), IsEmpty());

  AddInvoice(1001);
  invoice->GetInvoice(1001);
  invoice->description = "Ann's";
  invoice->SaveInvoiceAccess(1001);
  ExpectReport("Invoice.SaveInvoiceAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select * from tb_Invoice"), IsEmpty());

  invoice->description = "Ann";
  invoice->SaveInvoiceAccess(1001);
  EXPECT_EQ(database.Cell("select Description from tb_Invoice"), "Ann");
}

TEST_F(InvoiceTest, ListsAreStrictlyAfterTheDateTheLatestNumberFirst) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname) values (1001, 'Abbot', 'Ann'), (1002, 'Baker', 'Bo');"
      "insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount) values "
      "(1, 1001, 45000, 'old', 0), (2, 1001, 45001, 'none', 1), (3, 1002, 45009, 'other', 2), "
      "(4, 1001, 45002, 'two', 3), (5, 1009, 45002, 'nobody', 4)");
  AddLine(1, 4, 1.5);
  AddLine(2, 4, 2);
  AddLine(3, 1, 9);
  AddLine(4, 3, 0);
  const std::vector<std::string> fields = {"InvoiceNum", "CustNum", "Lname", "Fname", "Description", "Charge"};
  EXPECT_THAT(Rows(invoice->GetAllInvoices(Date(45000)), fields),
              ElementsAre("4|1001|Abbot|Ann|two|3.5", "3|1002|Baker|Bo|other|0", "2|1001|Abbot|Ann|none|"));
  const Object<Recordset> one = invoice->GetCustInvoices(1001, Date(45001));
  EXPECT_EQ(one->Date("InvoiceDate"), Date(45002));
  EXPECT_EQ(one->Double("discount"), 3);
  EXPECT_THAT(Rows(one, fields), ElementsAre("4|1001|Abbot|Ann|two|3.5"));
}

class InvoiceLineTest : public InvoiceTest {};

TEST_F(InvoiceLineTest, SavingALineGivesItANumberAndForgetsItsOrderDate) {
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

TEST_F(InvoiceLineTest, ALineThatIsRefusedIsGone) {
  AddLine(5, 1, 1);
  invoice->InvoiceNum = 1;
  invoice->TransNum = 5;
  invoice->TransNotes = "6' pole";
  invoice->SaveTransAccess();
  ExpectReport("Invoice.SaveTransAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select * from tb_trans"), IsEmpty());
}

TEST_F(InvoiceLineTest, BackOrdersAreNegativeWhateverElseTheTextHolds) {
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

TEST_F(InvoiceLineTest, DeletingALineGivesNoStockBack) {
  database.Execute("insert into tb_Inventory (ItemNum, Par, InStock) values (7, 5, 1)");
  AddLine(1, 1, 1);
  AddLine(2, 1, 1);
  invoice->DeleteInvoiceItem(1);
  EXPECT_THAT(database.Rows("select TransNum from tb_trans"), ElementsAre("2"));
  EXPECT_EQ(database.Cell("select InStock from tb_Inventory"), "1");
}

TEST_F(InvoiceLineTest, DeletingAnInvoiceGivesTheWholeQuantityBackOfWhatIsCounted) {
  database.Execute(
      "insert into tb_Inventory (ItemNum, Par, InStock) values (1, 1, -4), (2, 0, 3), (3, 1, 10), (4, -1, 3);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, BackOrder) values (1, 9, 1, 4, -4), "
      "(2, 9, 2, 5, 0), (3, 9, 3, 2, 0), (4, 9, 3, 1, 0), (5, 8, 3, 1, 0), (6, 9, 4, 1, 0);"
      "insert into tb_Receive (TransNum, CustNum) values (1, 1001)");
  AddInvoice(9);
  AddInvoice(8);
  invoice->DeleteInvoice(9);
  EXPECT_THAT(database.Rows("select InStock from tb_Inventory"), ElementsAre("0", "3", "13", "3"));
  EXPECT_THAT(database.Rows("select InvoiceNum from tb_Invoice"), ElementsAre("8"));
  EXPECT_THAT(database.Rows("select TransNum from tb_trans"), ElementsAre("5"));
  EXPECT_THAT(database.Rows("select TransNum from tb_Receive"), ElementsAre("1"));
}

TEST_F(InvoiceLineTest, AnItemThatIsGoneEndsTheDeletionOfItsInvoiceHalfWay) {
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

class PaymentTest : public InvoiceTest {};

TEST_F(PaymentTest, IsSavedWithItsNextNumberAndReplacedUnderItsNumber) {
  invoice->CustNum = 1001;
  invoice->Paytype = "Check";
  invoice->Checknum = "0042";
  invoice->PayDate = Day(2026, 12, 31);
  invoice->Payment = Money(1234.5678);
  invoice->PayNotes = "thanks";
  invoice->SavePayment();
  EXPECT_EQ(invoice->PayNum, 1001);
  invoice->PayNotes = "";
  invoice->Payment = Money(-1);
  invoice->SavePayment();
  EXPECT_THAT(database.Rows("select * from tb_Receive"),
              ElementsAre("1001|1001|Check|0042|" + Serial(2026, 12, 31) + "|-10000|"));
  invoice->DeletePayment(1001);
  EXPECT_THAT(database.Rows("select * from tb_Receive"), IsEmpty());
}

TEST_F(PaymentTest, OfOneClientOrOfAllStrictlyAfterTheDate) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname) values (1001, 'Abbot', 'Ann'), (1002, 'Baker', null);"
      "insert into tb_Receive (TransNum, CustNum, Date, Amount) values (1, 1001, 45000, 1), "
      "(2, 1001, 45002, 20000), (3, 1002, 45001, 30000), (4, 1001, 45001, 40000), (5, 1009, 45002, 1)");
  EXPECT_THAT(Rows(invoice->AllPayments(Date(45000), -1), {"TransNum", "Fullname", "amount", "Date"}),
              ElementsAre("3|Baker, |3|3/16/2023", "4|Abbot, Ann|4|3/16/2023", "2|Abbot, Ann|2|3/17/2023"));
  EXPECT_EQ(invoice->CustNum, -1);
  EXPECT_THAT(Rows(invoice->AllPayments(Date(45001), 1001), {"TransNum"}), ElementsAre("2"));
  EXPECT_EQ(invoice->CustNum, 1001);
}

TEST_F(InvoiceTest, TheServersProceduresHaveNoTrapAndARowIsAddedToAnOpenListOnly) {
  EXPECT_THROW(invoice->SaveInvoice(), RuntimeError);
  EXPECT_THROW(invoice->SaveTrans(), RuntimeError);
  invoice->AddToInvoice(1, 2, 3, Money(4), "5", true);
  ExpectReport("Invoice.AddtoInvoice -", 3704);
  const Object<Recordset> lines = invoice->GetInvoiceItems(1);
  invoice->AddToInvoice(1, 2, 3, Money(4), "5", true);
  EXPECT_EQ(lines->RecordCount(), 1);
  EXPECT_EQ(lines->Currency("amount"), Money(4));
}

}  // namespace norvane::test
