#include "SalesOffice.h"

namespace norvane::test {
namespace {

class CustInvoicesTest : public SalesOffice {
 protected:
  std::vector<std::string> Numbers() { return ColumnOf(Sales().InvoiceList, 1); }
  void ListSince(const char* date, int which) {
    Sales().txtSinceDate.UserType(date);
    Sales().CmbInvoice.UserPick(which);
    Sales().btnGo.Press();
  }
};

TEST_F(CustInvoicesTest, ListsWhatIsLaterThanNewYearTheLatestNumberFirst) {
  AddInvoice(1001, kAda, kNewYear);
  AddInvoice(1002, kAda, kNewYear + 5, 3);
  AddInvoice(1003, kAda, kNewYear + 1, 0);
  AddInvoice(1004, 1001, kNewYear + 9);
  database.Execute(
      "UPDATE tb_Invoice SET Discount = 10, Tax = 12345, Interest = 10000, ShippingCharge = 50000 WHERE InvoiceNum = "
      "1002");
  StartWithSales();
  EXPECT_THAT(Numbers(), ElementsAre("1003", "1002")) << "not the one of New Year's Day itself";
  EXPECT_EQ(RowText(Sales().InvoiceList, 2), "1/6/2026|1002|1003||Moss, Ada|$34.23|Order 1002");
  EXPECT_EQ(Sales().InvoiceList.Cell(1, 5), "") << "no lines, no charge";
  EXPECT_EQ(Sales().CmbInvoice.Text() + Sales().txtSinceDate.Text(), "Selected Client01/01/26");
  EXPECT_TRUE(Sales().IsVisible());
  EXPECT_FALSE(IsOpen("GettingInvoices"));
  EXPECT_THAT(desktop.log, Contains("show GettingInvoices"));
  EXPECT_EQ(globals.InvoiceSince, Date(kNewYear));

  EXPECT_EQ(globals.CurInvoiceNum, 1003);
  EXPECT_EQ(globals.CurInvoiceDate, Date(kNewYear + 1));
  EXPECT_EQ(globals.CurClientName, "Moss, Ada ");
  EXPECT_EQ(globals.CurInvoiceDesc, "Order 1003");
  Sales().InvoiceList.UserClick(2, 4);
  EXPECT_EQ(globals.CurInvoiceNum, 1002);
  EXPECT_EQ(globals.CurClientName, "Moss, Ada") << "a click takes the name alone";

  ListSince("010626", 0);
  EXPECT_THAT(Numbers(), IsEmpty());
  EXPECT_EQ(globals.CurInvoiceNum, 1002) << "an empty list leaves the selection";
  Sales().DTPicker1.UserPick(Date(kNewYear - 1));
  EXPECT_EQ(Sales().txtSinceDate.Text(), "12/31/25");
  Sales().btnGo.Press();
  EXPECT_THAT(Numbers(), ElementsAre("1003", "1002", "1001"));
}

TEST_F(CustInvoicesTest, ListsAllClientsWithoutABalanceAndSelectsAClickedRowsClient) {
  AddInvoice(1001);
  AddInvoice(1002, 1001);
  StartWithSales();
  std::string notice;
  desktop.DuringDoEvents(
      [&] { notice = static_cast<Label*>(program.screens.Find("LoadingInvoices")->Controls().at(0))->Caption(); });
  ListSince("010126", 1);
  EXPECT_EQ(notice, "Loading Invoices for ... All Clients");
  EXPECT_FALSE(IsOpen("LoadingInvoices"));
  EXPECT_THAT(Numbers(), ElementsAre("1002", "1001"));
  EXPECT_FALSE(Sales().lblBalDue.Visible() || Sales().Label3.Visible());
  EXPECT_EQ(globals.CurClientName, "Moss, Ada ") << "the invoice selected before is marked again";
  EXPECT_EQ(globals.CurCustNum, kAda);
  EXPECT_EQ(Connections(), 1) << "stays open by design";

  Sales().InvoiceList.UserClick(1, 1);
  EXPECT_EQ(globals.CurCustNum, 1001);
  database.Execute("INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1001, 1001, 46100, 150000)");
  ListSince("010126", 0);
  EXPECT_THAT(Numbers(), ElementsAre("1002"));
  EXPECT_TRUE(Sales().lblBalDue.Visible() && Sales().Label3.Visible());
  EXPECT_EQ(Sales().lblBalDue.Caption(), "($5.00)");
  EXPECT_EQ(Sales().lblBalDue.ForeColor(), Colour::Black);
  EXPECT_EQ(Connections(), 0);
}

TEST_F(CustInvoicesTest, WidensToAllDatesAfterADeletion) {
  AddInvoice(1001, kAda, kNewYear - 400);
  AddInvoice(1002, kAda, kNewYear + 5, 4);
  SetStock(-4);
  StartWithSales();
  Press(Sales().btnDelete, "Delete Invoice ... #1002?", Answer::No);
  ExpectQuestion("Delete Invoice ... #1002?");
  EXPECT_FALSE(globals.InvoicesStale);
  EXPECT_THAT(Numbers(), ElementsAre("1002"));
  Press(Sales().btnDelete, "Delete invoice #1002 and all associated charges?", Answer::Yes);
  EXPECT_FALSE(globals.InvoicesStale);
  EXPECT_THAT(Numbers(), ElementsAre("1001"));
  EXPECT_EQ(Sales().txtSinceDate.Text(), "01/01/26");
  EXPECT_EQ(Stock(), "0");
}

TEST_F(CustInvoicesTest, LeavesTheNoticesStandingAfterAnError) {
  AddInvoice(1001);
  StartWithSales();
  for (const char* wrong : {"02/30/26", ""}) {
    desktop.Expect("ClientInvoices.btnGo_Click -13 Type mismatch");
    ListSince(wrong, 0);
    EXPECT_TRUE(IsOpen("LoadingInvoices"));
    EXPECT_THAT(Numbers(), ElementsAre("1001"));
  }
  EXPECT_EQ(program.focus.Current(), &Sales().btnGo) << "a notice takes no focus";
  program.screens.Find("LoadingInvoices")->UserClose();
  EXPECT_FALSE(IsOpen("LoadingInvoices"));
  desktop.Expect("Globals.GetAllInvoices -13 Type mismatch");
  ListSince("13/41/26", 1);
  EXPECT_FALSE(IsOpen("LoadingInvoices"));
}

TEST_F(CustInvoicesTest, OpensAnInvoiceByEveryWayAndAsksBeforeItTakesThePlaceOfUnsavedChanges) {
  AddInvoice(1001);
  AddInvoice(1002);
  const auto shown = [&] { return Sheet().lblInvoiceNum.Caption(); };
  StartWith(1001);
  EXPECT_EQ(shown(), "1001");
  EXPECT_EQ(Sheet().Owner(), &Sales());
  Sales().InvoiceList.SetFocus();
  Sales().InvoiceList.UserKey(Key::Up);
  Sales().InvoiceList.UserKey(Key::Enter);
  EXPECT_EQ(shown(), "1002");
  Sales().InvoiceList.UserClick(2, 1);
  Sales().btnDetails.Press();
  EXPECT_EQ(shown(), "1001");
  Sales().btnNewInvoice.Press();
  desktop.Expect("Save changes to invoice?", Answer::No);
  Sheet().btnExit.Press();
  Sales().btnDetails.Press();
  EXPECT_EQ(shown(), "1001") << "a new invoice given up leaves the row marked before it";

  Open(1002).txtTerms.UserType("Net 30");
  desktop.Expect("Save changes to invoice?", Answer::Cancel);
  Open(1001);
  EXPECT_EQ(shown() + Sheet().txtTerms.Text(), "1002Net 30");
  // Lines that were changed reload the list on the way; what was asked for comes up all the same.
  Enter(Sheet().ItemList, 1, InvoiceDetail::kQuantity, "3");
  LeaveLines();
  Sheet().txtTerms.UserType("Net 60");
  desktop.Expect("Save changes to invoice?", Answer::Yes);
  Open(1001);
  EXPECT_EQ(shown() + Sheet().txtDescription.Text(), "1001Order 1001");
  EXPECT_EQ(database.Cell("SELECT Terms FROM tb_Invoice WHERE InvoiceNum = 1002"), "Net 60");

  Sales().btnExit.Press();
  EXPECT_TRUE(Sheet().IsVisible()) << "the invoice outlives the list that opened it";
}

}  // namespace
}  // namespace norvane::test
