#include <algorithm>

#include "ReportOffice.h"
#include "reports/PrtInvoice.h"
#include "support/Golden.h"

namespace norvane::test {
namespace {

class PrtInvoiceTest : public ReportOffice {
 protected:
  PrtInvoiceTest() {
    database.Execute(
        "INSERT INTO tb_Company (Name, Address1, Address2, City, State, ZipCode, Phone, Fax, WebSite, Statetaxrate) "
        "VALUES ('Norvane & Daughters', '12 Harbour Road', '', 'Portland', 'ME', '04101', '207-555-0100', '', "
        "'norvane.example', 5.5);"
        "INSERT INTO tb_Client (CustNum, Lname, Fname, Discount, BillLname, BillFname, BillAddress1, BillAddress2, "
        "Billcity, BillState, BillZipCode, BillHomePhone, ShipLname, ShipFname, ShipAddress1, Shipcity, ShipState, "
        "ShipZipCode, ShipHomePhone) VALUES (7, 'Byron', 'Ada', 0, 'Byron', 'Ada', '1 Mill Lane', 'unprinted', "
        "'Bath', 'ME', '04530', '207-555-0123', 'Lovelace', 'Bea', '2 Quay Street', 'Camden', 'ME', '04843', "
        "'207-555-0199')");
    AddInvoice(0);
    globals.CurInvoiceNum = 1001;
    globals.CurCustNum = 7;
  }

  /// Money in ten-thousandths, as everywhere in the tables.
  void AddInvoice(double discount, int tax = 0, int shipping = 0, int interest = 0) {
    database.Execute(
        "DELETE FROM tb_Invoice; INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, "
        "ShippingCharge, Shippingdate, ShippingType, Interest, SalesRep, Terms) VALUES (1001, 7, " +
        std::to_string(desktop.Today().Day()) + ", 'Spring order', " + std::to_string(discount) + ", " +
        std::to_string(tax) + ", " + std::to_string(shipping) + ", 0, 'Ground', " + std::to_string(interest) +
        ", 'Grace', 'Net 30')");
  }
  void AddLine(const std::string& quantity, const std::string& amount, const std::string& notes = "Oak table",
               const std::string& backOrder = "0") {
    const std::string number = std::to_string(++lines_);
    database.Execute("INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder) SELECT " +
                     number + ", 1001, 50" + number + ", " + quantity + ", " + amount + ", '" + notes + "', " +
                     backOrder);
  }

  std::vector<std::string> Words() { return WordsOf(Open<PrtInvoice>().VSInvoice); }
  /// The totals block and what follows.
  std::vector<std::string> Totals() {
    auto words = Words();
    words.erase(words.begin(), std::find(words.begin(), words.end(), "SubTotal"));
    return words;
  }
  void StartLinesAnew() {
    database.Execute("DELETE FROM tb_trans");
    lines_ = 0;
  }
  void ExpectPage(const char* golden) {
    PrtInvoice& report = Open<PrtInvoice>();
    EXPECT_EQ(PagesOf(report.VSInvoice).pages.size(), 1u);
    ExpectGolden(golden, TextOf(report.VSInvoice));
    report.Unload();
  }

 private:
  int lines_ = 0;
};

TEST_F(PrtInvoiceTest, PrintsFromNoLinesUpToTwentyOfTwentyOne) {
  AddInvoice(10, 31'200, 45'000, 10'000);
  ExpectPage("prt_invoice_no_lines.txt");
  AddInvoice(0, 31'200, 45'000, 10'000);
  AddLine("4", "5000000", "Oak table with two leaves");
  AddLine("3", "100000", "Lamp");
  AddLine("1", "12345678900", "Library");
  ExpectPage("prt_invoice_lines.txt");
  AddInvoice(12.5);
  StartLinesAnew();
  AddLine("2", "800000");
  ExpectPage("prt_invoice_discount.txt");
  AddInvoice(0);
  StartLinesAnew();
  for (int line = 1; line <= 21; ++line) AddLine("1", "10000", "Line " + std::to_string(line));
  ExpectPage("prt_invoice_21_lines.txt");
}

TEST_F(PrtInvoiceTest, OnlyAFullFormMovesTheTotalsOverThePageBelowALongDescription) {
  database.Execute("UPDATE tb_Invoice SET Description = 'first' || char(10) || 'second'");
  EXPECT_EQ(PagesOf(Open<PrtInvoice>().VSInvoice).pages.size(), 1u);
  program.screens.Unload("PrtInvoice");
  for (int line = 1; line <= 22; ++line) AddLine("1", "10000");
  Preview& preview = Open<PrtInvoice>().VSInvoice;
  ASSERT_EQ(PagesOf(preview).pages.size(), 2u);
  EXPECT_THAT(TextOf(preview), HasSubstr("page 2/2\ntext 6.46in 0.25in 14.25pt Courier New \"Invoice #1001\"\n"
                                         "text 6.20in 0.51in 11.25pt \"SubTotal\""));
  EXPECT_EQ(preview.SurplusRows(), 2);
}

TEST_F(PrtInvoiceTest, PrintsBackOrders) {
  AddLine("5", "50000", "three short", "'-3'");
  AddLine("5", "50000", "none", "'0'");
  AddLine("5", "50000", "flagged", "-1");
  AddLine("5", "50000", "unknown", "NULL");
  AddLine("5", "50000", "empty", "''");
  ExpectPage("prt_invoice_back_orders.txt");
}

TEST_F(PrtInvoiceTest, DerivesTheUnitChargeFromQuantityAndAmount) {
  AddLine("3", "100000", "three");
  AddLine("0", "70000", "none");
  AddLine("-2", "-40000", "returned");
  AddLine("NULL", "60000", "unknown");
  AddLine("0.5", "10000", "half");
  const auto words = Words();
  const auto rowOf = [&](const char* notes) {
    const auto found = std::find(words.begin(), words.end(), notes);
    return found[1] + " " + found[2];
  };
  EXPECT_EQ(rowOf("three"), "$3.33 $10.00");
  EXPECT_EQ(rowOf("none"), "$0.00 $7.00");
  EXPECT_EQ(rowOf("returned"), "$0.00 ($4.00)");
  EXPECT_EQ(rowOf("unknown"), "$0.00 $6.00");
  EXPECT_EQ(rowOf("half"), "$2.00 $1.00");
}

TEST_F(PrtInvoiceTest, RoundsTheShippingButNotTheDiscountToCents) {
  AddInvoice(49.9502);
  AddLine("1", "100000");
  // Rounded to cents, as it is shown, the discount of 4.99502 would leave 5.00.
  EXPECT_THAT(Totals(), IsSupersetOf({"$10.00", "Discount:", "$5.00", "Total:", "$5.01"}));
  program.screens.Unload("PrtInvoice");
  AddInvoice(0, 0, 10'050);
  database.Execute("UPDATE tb_trans SET Amount = 99990");
  // With 1.005 for shipping the total would be 11.004.
  EXPECT_THAT(Totals(), IsSupersetOf({"Shipping:", "$1.01", "Total:", "$11.01"}));
}

TEST_F(PrtInvoiceTest, IsAWindowOfItsOwn) {
  PrtInvoice& report = Open<PrtInvoice>();
  EXPECT_EQ(report.VSInvoice.Title(), "Invoice 1001");
  EXPECT_TRUE(report.VSInvoice.HasFocus());
  globals.CurInvoiceNum = 1002;
  program.screens.Show("PrtInvoice");
  EXPECT_EQ(report.VSInvoice.Title(), "Invoice 1001") << "what is open keeps its document";
  report.btnExit.Press();
  EXPECT_EQ(program.screens.Find("PrtInvoice"), nullptr);
  EXPECT_EQ(Open<PrtInvoice>().VSInvoice.Title(), "Invoice 1002");
}

TEST_F(PrtInvoiceTest, IsSentToTheAddressForBillsIfThereIsOne) {
  const auto address = [this] {
    const std::string sentTo = Open<PrtInvoice>().VSInvoice.SentAs()->address;
    return program.screens.Unload("PrtInvoice"), sentTo;
  };
  database.Execute("UPDATE tb_Client SET Email = 'ada@byron.example'");
  EXPECT_EQ(address(), "ada@byron.example");
  database.Execute("UPDATE tb_Client SET BillEmail = 'bills@byron.example'");
  EXPECT_EQ(address(), "bills@byron.example");
}

TEST_F(PrtInvoiceTest, ADeletedInvoiceOrClientLeavesItsPlacesEmpty) {
  AddLine("1", "10000");
  Open<PrtInvoice>().Unload();
  database.Execute("DELETE FROM tb_Invoice; DELETE FROM tb_trans; DELETE FROM tb_Client");
  const auto words = Words();
  EXPECT_THAT(words, IsSupersetOf({"Invoice #1001", "Description: "}));
  for (const char* gone : {"Ada Byron", "Ground"}) EXPECT_THAT(words, Not(Contains(gone)));
  EXPECT_THAT(Totals(), IsSupersetOf({"SubTotal", "Total:", "$0.00"}));
}

TEST_F(PrtInvoiceTest, SeparatorsInTheDataSplitTheirCellAndNothingElse) {
  database.Execute("UPDATE tb_Client SET BillLname = 'Byron; | Sons'");
  database.Execute("UPDATE tb_Invoice SET SalesRep = 'Grace|Ann', Description = 'one; two | three'");
  AddLine("1", "10000", "split|here");
  AddLine("1", "20000", "two;rows");
  AddLine("1", "30000", "third");
  EXPECT_THAT(Words(), IsSupersetOf({"Ada Byron; | Sons", "Description: one; two | three", "Grace", "Ann", "split",
                                     "here", "two", "rows", "third"}));
  EXPECT_THAT(Totals(), Contains("$6.00").Times(2)) << "as subtotal and as total";
}

TEST_F(PrtInvoiceTest, AnErrorLeavesThePageAsFarAsItWasBuilt) {
  AddLine("1", "NULL");
  desktop.Expect("PrtInvoice.Form_Load -94 Invalid use of Null.  If error persists contact Norvanes author.");
  PrtInvoice& report = Open<PrtInvoice>();
  EXPECT_TRUE(report.IsVisible());
  EXPECT_EQ(WordsOf(report.VSInvoice).back(), "Net 30") << "the order table is the last that was ended";
  report.Unload();

  globals.oInvoice.Release();
  desktop.Expect("PrtInvoice.Form_Load -91");
  PrtInvoice& empty = Open<PrtInvoice>();
  EXPECT_EQ(PagesOf(empty.VSInvoice).pages.size(), 0u);
  EXPECT_TRUE(empty.btnExit.HasFocus());
}

}  // namespace
}  // namespace norvane::test
