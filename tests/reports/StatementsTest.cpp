#include <random>

#include "ReportOffice.h"
#include "reports/Billing.h"
#include "reports/PrtBilling.h"
#include "reports/PrtReceipt.h"
#include "support/Golden.h"

namespace norvane::test {
namespace {

constexpr int kAda = 7;
constexpr int kBea = 8;

/// Two clients; today is June 30th, 2024.
class Statements : public ReportOffice {
 protected:
  Statements() {
    desktop.now = Date::FromYearMonthDay(2024, 6, 30);
    database.Execute(
        "INSERT INTO tb_Company (Name, Address1, City, State, ZipCode, Phone, Fax, WebSite, Statetaxrate) VALUES "
        "('Norvane & Daughters', '12 Harbour Road', 'Portland', 'ME', '04101', '207-555-0100', '', '', 5.5);"
        "INSERT INTO tb_Client (CustNum, Lname, Fname, BillLname, BillFname, BillAddress1, Billcity, BillState, "
        "BillZipCode, Discount) VALUES (7, 'Byron', 'Ada', 'Byron', 'Ada', '1 Mill Lane', 'Bath', 'ME', '04530', 0), "
        "(8, 'Clark', 'Bea', 'Clark', 'Bea', '2 Quay Street', 'Camden', 'ME', '04843', 0)");
  }

  int DaysAgo(int days) const { return desktop.Today().Day() - days; }

  /// An amount in cents.
  void AddInvoice(int client, int daysAgo, int amount) {
    const std::string number = std::to_string(++lastNumber_);
    database.Execute(
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, "
        "Interest) VALUES (" +
        number + ", " + std::to_string(client) + ", " + std::to_string(DaysAgo(daysAgo)) + ", 'Order " + number +
        "', 0, 0, 0, 0); INSERT INTO tb_trans (TransNum, InvoiceNum, Qty, Amount) VALUES (" + number + ", " + number +
        ", 1, " + std::to_string(amount * 100) + ")");
  }
  void AddPayment(int client, int daysAgo, int amount) {
    database.Execute("INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (" +
                     std::to_string(++lastNumber_) + ", " + std::to_string(client) + ", " +
                     std::to_string(DaysAgo(daysAgo)) + ", " + std::to_string(amount * 100) + ")");
  }

  /// Ada has entries before the 30 days, on their first day, on the next, which is in neither part of a statement, on
  /// the one after that, and today. The first invoice is 100.00 less 10 % and 8.00 of charges.
  void AddEntries() {
    AddInvoice(kAda, 76, 10000);
    database.Execute("UPDATE tb_Invoice SET Discount = 10, Tax = 50000, ShippingCharge = 25000, Interest = 5000");
    AddInvoice(kAda, 30, 5000);
    AddInvoice(kAda, 29, 2000);
    AddInvoice(kAda, 28, 3000);
    AddInvoice(kAda, 0, 4000);
    AddPayment(kAda, 51, 6000);
    AddPayment(kAda, 29, 500);
    AddPayment(kAda, 28, 1000);
    AddPayment(kAda, 0, 2500);
    AddInvoice(kBea, 10, 1250);
  }

  Billing& OpenBilling() { return Open<Billing>(); }

  PrtBilling& Print(Billing& criteria) {
    criteria.btnPrint.Press();
    EXPECT_EQ(program.screens.Find<Billing>(), nullptr);
    return *program.screens.Find<PrtBilling>();
  }
  PrtBilling& PrintSelected(const std::string& days) {
    Billing& criteria = OpenBilling();
    criteria.OptClient.Press();
    criteria.txtDays.UserType(days);
    return Print(criteria);
  }

  /// The cells of a page's table that are not empty, below its heading.
  std::vector<std::string> Cells(Preview& preview, std::size_t page = 0) {
    const pages::Page& shown = PagesOf(preview).pages.at(page);
    std::vector<std::string> cells;
    for (const pages::TextRun& run : shown.runs) cells.emplace_back(shown.TextOf(run));
    cells.erase(cells.begin(), std::find(cells.begin(), cells.end(), "Balance") + 1);
    cells.pop_back();  // the footer
    return cells;
  }

  bool NoticeIsOpen() { return program.screens.Find(screen::kLoadingBilling) != nullptr; }

 private:
  int lastNumber_ = 1000;
};

TEST_F(Statements, ForAllClientsGoThroughThePeriodAndLeaveTheLastClientSelected) {
  AddEntries();
  Billing& criteria = OpenBilling();
  const auto row = [&](int number) {
    std::string cells;
    for (int col = 0; col < 5; ++col) cells += criteria.CustList2.Cell(number, col) + ";";
    return cells;
  };
  ASSERT_EQ(criteria.CustList2.Rows(), 3);
  EXPECT_EQ(row(1), "7;Byron, Ada;$138.00;6/30/2024;$25.00;");
  EXPECT_EQ(row(2), "8;Clark, Bea;$12.50;6/30/2024;$25.00;") << "without a payment, the one above";
  PrtBilling& report = Print(criteria);
  ASSERT_EQ(PagesOf(report.VSInvoice).pages.size(), 2u);
  // 98.00 + 50.00 - 60.00; then what is owed less the 15.00 of June 1st.
  EXPECT_THAT(Cells(report.VSInvoice),
              ElementsAre("5/31/2024", "Starting Balance", "$88.00", "6/30/2024", "Order 1005", "$40.00", "$128.00",
                          "6/2/2024", "Order 1004", "$30.00", "$158.00", "6/2/2024", "Payment - Thank You!", "$10.00",
                          "$148.00", "6/30/2024", "Payment - Thank You!", "$25.00", "$123.00"));
  EXPECT_THAT(Cells(report.VSInvoice, 1),
              ElementsAre("5/31/2024", "Starting Balance", "$0.00", "6/20/2024", "Order 1010", "$12.50", "$12.50"));
  ExpectGolden("statements.txt", TextOf(report.VSInvoice));
  EXPECT_EQ(report.VSInvoice.Title(), "Statements 6/30/2024");
  EXPECT_FALSE(NoticeIsOpen());
  EXPECT_EQ(globals.CurCustNum, kBea);
  EXPECT_EQ(globals.CurClientName, "Clark, Bea");
}

TEST_F(Statements, ReadTheDaysByTheirLeadingNumber) {
  AddEntries();
  struct {
    const char* days;
    const char* opening;
    const char* balance;
    std::size_t cells;
  } const cases[] = {
      {"", "6/30/2024", "$138.00", 3},      {"abc", "6/30/2024", "$138.00", 3}, {"1", "6/29/2024", "$123.00", 3},
      {"2.5x", "6/28/2024", "$123.00", 11}, {"30x", "5/31/2024", "$88.00", 19}, {"-5", "7/5/2024", "$138.00", 3},
      {"365", "7/1/2023", "$0.00", 3 + 36},
  };
  for (const auto& each : cases) {
    PrtBilling& report = PrintSelected(each.days);
    const auto cells = Cells(report.VSInvoice);
    EXPECT_EQ(cells.size(), each.cells) << each.days;
    EXPECT_EQ(cells[0], each.opening) << each.days;
    EXPECT_EQ(cells[2], each.balance) << each.days;
    EXPECT_EQ(report.VSInvoice.Title(), "Statement Byron, Ada 6/30/2024");
  }
  desktop.Expect("PrtBilling.Form_Load -6 Overflow.");
  EXPECT_EQ(PagesOf(PrintSelected("99999").VSInvoice).pages.size(), 0u);
  EXPECT_TRUE(NoticeIsOpen()) << "until its report closes";
}

TEST_F(Statements, StopAtARowThatDoesNotConvert) {
  AddInvoice(kAda, 10, 3276749);
  AddInvoice(kBea, 10, 3276750);
  desktop.Expect("PrtBilling.Form_Load -13 Type mismatch.");
  EXPECT_EQ(PagesOf(PrintSelected("30").VSInvoice).pages.size(), 0u) << "selected, and without any last payment";
  desktop.Expect("PrtBilling.Form_Load -6 Overflow.");
  PrtBilling& report = Print(OpenBilling());
  EXPECT_EQ(Cells(report.VSInvoice).back(), "$32,767.49") << "the statements before stay";
  EXPECT_TRUE(report.IsVisible());
  report.Unload();
  EXPECT_FALSE(NoticeIsOpen());

  database.Execute("DELETE FROM tb_Invoice");
  desktop.Expect("PrtBilling.Form_Load -13 Type mismatch.");
  PrintSelected("30");
  EXPECT_EQ(PagesOf(Print(OpenBilling()).VSInvoice).pages.size(), 1u) << "of no clients, one empty page";
}

TEST_F(Statements, OfAClientDeletedMeanwhileHaveNothingButTheOthersStay) {
  AddEntries();
  Billing& criteria = OpenBilling();
  database.Execute(
      "DELETE FROM tb_Client WHERE CustNum = 7; DELETE FROM tb_Receive; DELETE FROM tb_trans WHERE InvoiceNum IN "
      "(SELECT InvoiceNum FROM tb_Invoice WHERE CustNum = 7); DELETE FROM tb_Invoice WHERE CustNum = 7");
  Preview& preview = Print(criteria).VSInvoice;
  ASSERT_EQ(PagesOf(preview).pages.size(), 2u);
  EXPECT_THAT(Cells(preview), ElementsAre("5/31/2024", "Starting Balance", "$0.00"));
  EXPECT_EQ(Cells(preview, 1).back(), "$12.50");
  EXPECT_THAT(TextOf(preview), Not(HasSubstr("Mill Lane")));
}

TEST_F(Statements, HoldNineteenEntriesAndCountTheOthers) {
  for (int i = 0; i < 20; ++i) AddInvoice(kAda, 5, 100);
  AddPayment(kAda, 5, 100);
  Preview& preview = Print(OpenBilling()).VSInvoice;
  EXPECT_EQ(Cells(preview).back(), "$19.00");
  EXPECT_EQ(preview.SurplusRows(), 2);
}

TEST_F(Statements, CloseWithTheBalanceButForTheDayBetween) {
  std::mt19937 random(20240630);
  const auto below = [&](int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); };
  for (int round = 0; round < 6; ++round) {
    database.Execute("DELETE FROM tb_Invoice; DELETE FROM tb_trans; DELETE FROM tb_Receive");
    AddPayment(kAda, 500, 1);
    for (int i = 0; i < 9; ++i) AddInvoice(kAda, below(5) ? below(400) : below(3), below(100'000));
    for (int i = 0; i < 8; ++i) AddPayment(kAda, below(5) ? below(400) : 28 + below(3), below(100'000));
    Date tomorrow;
    globals.oClient->OpenCn();
    const Currency balance = globals.oClient->ClientBal(kAda, tomorrow);
    for (const int days : {0, 1, 30, 365}) {
      const std::string between = " WHERE Date = " + std::to_string(DaysAgo(days - 1));
      const auto seam = std::stoll(
          database.Cell("SELECT (SELECT ifnull(sum(Amount), 0) FROM tb_trans JOIN tb_Invoice USING (InvoiceNum)" +
                        between + ") - (SELECT ifnull(sum(Amount), 0) FROM tb_Receive" + between + ")"));
      const auto cells = Cells(PrintSelected(std::to_string(days)).VSInvoice);
      EXPECT_EQ(program.convert.ToCurrency(cells.back()), balance - Currency::FromTenThousandths(seam))
          << "round " << round << ", " << days << " days";
    }
  }
}

TEST_F(Statements, AReceiptListsThePaymentsFromItsDayOn) {
  AddEntries();
  AddPayment(kAda, -3, 700);
  globals.CurCustNum = kAda;
  globals.CurClientName = "Byron, Ada";
  globals.ReceiptDate = desktop.Today() - 28;
  PrtReceipt& report = Open<PrtReceipt>();
  // 98.00 + 50.00 + 20.00 - 60.00 - 5.00 on June 1st; the day shown is yesterday all the same.
  EXPECT_THAT(Cells(report.VSInvoice),
              ElementsAre("6/29/2024", "Starting Balance", "$103.00", "6/2/2024", "Payment - Thank You!", "$10.00",
                          "$93.00", "6/30/2024", "Payment - Thank You!", "$25.00", "$68.00", "7/3/2024",
                          "Payment - Thank You!", "$7.00", "$61.00"));
  EXPECT_EQ(report.VSInvoice.Title(), "Receipt Byron, Ada 6/2/2024");
  EXPECT_FALSE(NoticeIsOpen());
  report.Unload();

  AddInvoice(kAda, 0, 3300000);
  desktop.Expect("PrtReceipt.Form_Load -6 Overflow.");
  EXPECT_EQ(PagesOf(Open<PrtReceipt>().VSInvoice).pages.size(), 0u);
  EXPECT_TRUE(NoticeIsOpen());
}

}  // namespace
}  // namespace norvane::test
