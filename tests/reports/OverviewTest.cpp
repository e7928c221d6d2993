#include "ReportOffice.h"
#include "reports/PrtBals.h"
#include "reports/PrtIncome.h"
#include "reports/PrtInventoryBestSales.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "screens/overview/frmOverview.h"
#include "screens/registry/GL.h"
#include "screens/sales/CustInvoices.h"

namespace norvane::test {
namespace {

class OverviewTest : public ReportOffice {
 protected:
  OverviewTest() { RegisterScreens(program); }

  // Day 46348 is today, November 22, 2026.
  void Fill() {
    database.Execute(
        "INSERT INTO tb_Client (CustNum, Lname, Fname, Discount) VALUES (1, 'Moss', 'Ada', 0), (2, 'Adams', 'Bea', 0);"
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Discount, Tax, ShippingCharge, Interest) VALUES "
        "(1, 1, 46348, 10, 10000, 0, 0), (2, 1, 46300, 0, 0, 50000, 0), (3, 1, 46200, 0, 0, 0, 0), "
        "(4, 2, 46340, 0, 0, 0, 0), (5, 1, 40000, 0, 0, 0, 0);"
        "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) VALUES (7, 1, 'Lamp', 1, 5, 5), "
        "(8, 1, 'Desk', 1, 0, 0), (9, 1, 'Oak', 1, 2, 3);"
        "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, BackOrder, Ordered) VALUES "
        "(1, 1, 7, 1, 1000000, '-2', NULL), (2, 2, 8, 1, 2000000, '', NULL), (3, 3, 7, 1, 4000000, '', NULL), "
        "(4, 4, 7, 1, 300000, '-1', 46000), (5, 5, 8, 1, 70000, '', NULL);"
        "INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1, 1, 46346, 3000000), (2, 2, 46000, 500000);"
        "INSERT INTO tb_Vendor (VendorNum, Company, Discount) VALUES (1, 'Acme', 0);"
        "INSERT INTO tb_GL (TransNum, Date, Vendor, Payment, Deposit, Cleared, Category) VALUES "
        "(1, 46000, 'Acme', 10000, 0, -1, 'Rent'), (2, 46000, 'Acme', 0, 90000, 0, 'Rent')");
    program.Start(Customer::kName);
    Screen();
  }
  frmOverview& Screen() {
    if (!program.screens.Find<frmOverview>()) program.screens.Touch<Customer>().mnuOverview.Choose();
    return *program.screens.Find<frmOverview>();
  }
  int RowOfFigure(const std::string& name) {
    Grid& list = Screen().FigureList;
    for (int row = 1; row < list.Rows(); ++row) {
      if (list.Cell(row, 0) == name) return row;
    }
    ADD_FAILURE() << name;
    return 1;
  }
  std::string Value(const std::string& name) { return Screen().FigureList.Cell(RowOfFigure(name), 1); }
  /// A click on the figure's place on the page.
  void Follow(const std::string& name) {
    const std::string target = std::to_string(RowOfFigure(name) - 1);
    const auto& links = PagesOf(Screen().OverviewPage).pages.at(0).links;
    for (const pages::Link& link : links) {
      if (link.target == target) return Screen().OverviewPage.UserFollow(target);
    }
    ADD_FAILURE() << name << " is nowhere on the page";
  }
  template <class Report>
  std::vector<std::string> Words(Preview Report::*preview) {
    auto* report = program.screens.Find<Report>();
    return report ? WordsOf(report->*preview) : std::vector<std::string>();
  }
};

TEST_F(OverviewTest, EachFigureAgreesWithTheReportItOpens) {
  Fill();
  Screen().FigureList.UserSort(1, program.convert);  // the list keeps its order
  EXPECT_EQ(Value("Owed in all"), "$383.00");
  Follow("Owed in all");
  EXPECT_THAT(Words<PrtBals>(&PrtBals::VSInvoice), Contains(HasSubstr(Value("Owed in all"))));

  Follow("Sales this year");
  EXPECT_THAT(Words<PrtIncome>(&PrtIncome::VSregistry),
              IsSupersetOf({Value("Sales this year"), Value("Received this year")}));
  EXPECT_EQ(Value("November 2026"), "$121.00 / $300.00");
  Follow("November 2026");
  EXPECT_THAT(Words<PrtIncome>(&PrtIncome::VSregistry), IsSupersetOf({"$121.00", "$300.00"}));
  EXPECT_EQ(program.screens.Find<PrtIncome>()->txtBegDate.Text(), "11/01/26");
  program.screens.Reopen(PrtIncome::kName);
  EXPECT_EQ(program.screens.Find<PrtIncome>()->txtBegDate.Text(), "01/01/26") << "asked for once only";

  Follow("Lamp");
  EXPECT_THAT(Words<PrtInventoryBestSales>(&PrtInventoryBestSales::VSregistry), Contains(Value("Lamp")));
  EXPECT_EQ(Value("Items at or below par"), "1");

  Follow("Registry, current balance");
  const auto& registry = *program.screens.Find<GL>();
  EXPECT_EQ(Value("Registry, current balance"), registry.lblCurBal.Caption());
  EXPECT_EQ(Value("Registry, ending balance"), registry.lblEndBal.Caption());

  for (const auto& [figure, report] : {std::pair("Back orders to order", screen::kPrtBackOrders),
                                       std::pair("Back orders on order", screen::kPrtBackOrdered),
                                       std::pair("Items at or below par", screen::kPrtInventory)}) {
    EXPECT_EQ(Value(figure), "1");
    Follow(figure);
    EXPECT_NE(program.screens.Find(report), nullptr) << figure;
  }
  Follow("Moss, Ada");
  const Grid& sales = program.screens.Find<CustInvoices>()->InvoiceList;
  Currency total;
  for (int row = 1; row < sales.Rows(); ++row) total += program.convert.ToCurrency(sales.Cell(row, 5));
  EXPECT_EQ(program.convert.CurrencyText(total), Value("Moss, Ada"));
}

TEST_F(OverviewTest, PaymentsPayTheOldestInvoicesFirst) {
  Fill();
  // $703.00 invoiced, $300.00 paid: the one of 2009, then most of that of June.
  EXPECT_EQ(Value("Up to 30 days"), "$91.00");
  EXPECT_EQ(Value("31 to 60 days"), "$205.00");
  EXPECT_EQ(Value("61 to 90 days"), "$0.00");
  EXPECT_EQ(Value("Over 90 days"), "$107.00");
  EXPECT_EQ(Value("Credits"), "($20.00)");
}

TEST_F(OverviewTest, AnEmptyBusinessHasAPageAndNoBars) {
  desktop.Expect("Please enter a client");
  program.Start(Customer::kName);
  const pages::Pages& pages = PagesOf(Screen().OverviewPage);
  ASSERT_EQ(pages.pages.size(), 1u);
  for (const pages::Box& box : pages.pages[0].boxes) {
    EXPECT_TRUE(box.width > 8.5 || box.fill == pages::Fill::Panel || box.fill == pages::Fill::Track);
  }
  EXPECT_THAT(WordsOf(Screen().OverviewPage), Contains("None yet"));
  Screen().FigureList.UserDoubleClick(5, 0);
}

}  // namespace
}  // namespace norvane::test
