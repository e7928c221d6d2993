#include <filesystem>

#include "SalesOffice.h"
#include "screens/CustSearch.h"

namespace norvane::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class CustInvoicesTest : public SalesOffice {
 protected:
  void OpenSalesOf(int clientRow) {
    Select(clientRow);
    Main().btnDetails.Press();
  }
  std::vector<std::string> Numbers() {
    std::vector<std::string> numbers;
    for (int row = 1; row < Sales().InvoiceList.Rows(); ++row) numbers.push_back(Sales().InvoiceList.Cell(row, 1));
    return numbers;
  }
  void ListSince(const char* date, int which) {
    Sales().txtSinceDate.UserType(date);
    Sales().CmbInvoice.UserPick(which);
    Sales().btnGo.Press();
  }
};

TEST_F(CustInvoicesTest, ListsWhatIsLaterThanNewYearTheLatestNumberFirst) {
  AddInvoice(1001, 1003, kNewYear);
  AddInvoice(1002, 1003, kNewYear + 5, 3);
  AddInvoice(1003, 1003, kNewYear + 1, 0);
  AddInvoice(1004, 1001, kNewYear + 9);
  database.Execute(
      "UPDATE tb_Invoice SET Discount = 10, Tax = 12345, Interest = 10000, ShippingCharge = 50000 WHERE InvoiceNum = "
      "1002");
  Start();
  globals.CurInvoiceNum = 5;
  OpenSalesOf(2);

  const Grid& list = Sales().InvoiceList;
  EXPECT_THAT(Numbers(), ElementsAre("1003", "1002")) << "not the one of New Year's Day itself";
  EXPECT_EQ(
      list.Cell(2, 0) + "|" + list.Cell(2, 2) + "|" + list.Cell(2, 4) + "|" + list.Cell(2, 5) + "|" + list.Cell(2, 6),
      "1/6/2026|1003|Moss, Ada|$34.23|Order 1002");
  EXPECT_EQ(list.Cell(1, 5), "") << "no lines, no charge";
  EXPECT_EQ(list.ColWidth(2) + list.ColWidth(3), 0);
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
}

TEST_F(CustInvoicesTest, TakesTheDateFromTheBoxNotFromThePicker) {
  AddInvoice(1001, 1003, kNewYear - 100);
  AddInvoice(1002, 1003, kNewYear + 5);
  Start();
  OpenSalesOf(2);
  Sales().DTPicker1.UserPick(Date(kNewYear - 101));
  EXPECT_EQ(Sales().txtSinceDate.Text(), MaskedDateText(Date(kNewYear - 101)));
  Sales().btnGo.Press();
  EXPECT_THAT(Numbers(), ElementsAre("1002", "1001"));
  ListSince("010326", 0);
  EXPECT_THAT(Numbers(), ElementsAre("1002"));
  ListSince("010626", 0);
  EXPECT_THAT(Numbers(), ElementsAre());
  EXPECT_EQ(globals.CurInvoiceNum, 1002) << "an empty list leaves the selection";
}

TEST_F(CustInvoicesTest, ListsAllClientsWithoutABalanceAndSelectsAClickedRowsClient) {
  AddInvoice(1001, 1003, kNewYear + 1);
  AddInvoice(1002, 1001, kNewYear + 2);
  Start();
  OpenSalesOf(2);
  std::string notice;
  desktop.DuringDoEvents(
      [&] { notice = static_cast<Label*>(program.screens.Find("LoadingInvoices")->Controls().at(0))->Caption(); });
  ListSince("010126", 1);
  EXPECT_EQ(notice, "Loading Invoices for ... All Clients");
  EXPECT_FALSE(IsOpen("LoadingInvoices"));
  EXPECT_THAT(Numbers(), ElementsAre("1002", "1001"));
  EXPECT_FALSE(Sales().lblBalDue.Visible() || Sales().Label3.Visible());
  EXPECT_EQ(globals.CurClientName, "Moss, Carl ");
  EXPECT_EQ(globals.CurCustNum, 1003) << "until a row is clicked";
  EXPECT_EQ(program.engine.OpenConnections(database.File()), 1) << "stays open by design";
  Sales().InvoiceList.UserClick(1, 1);
  EXPECT_EQ(globals.CurCustNum, 1001);
  ListSince("010126", 0);
  EXPECT_THAT(Numbers(), ElementsAre("1002"));
  EXPECT_TRUE(Sales().lblBalDue.Visible() && Sales().Label3.Visible());
  EXPECT_EQ(program.engine.OpenConnections(database.File()), 0);
}

TEST_F(CustInvoicesTest, ShowsACreditInBlack) {
  AddInvoice(1001, 1003, kNewYear + 1);
  Start();
  OpenSalesOf(2);
  EXPECT_EQ(Sales().lblBalDue.ForeColor(), Colour::Red);
  database.Execute("INSERT INTO tb_Receive (TransNum, CustNum, Date, Amount) VALUES (1001, 1003, 46100, 150000)");
  Sales().btnGo.Press();
  EXPECT_EQ(Sales().lblBalDue.Caption(), "($5.00)");
  EXPECT_EQ(Sales().lblBalDue.ForeColor(), Colour::Black);
}

TEST_F(CustInvoicesTest, WidensToAllDatesAfterADeletion) {
  AddInvoice(1001, 1003, kNewYear - 400);
  AddInvoice(1002, 1003, kNewYear + 5, 4);
  SetStock(-4);
  Start();
  OpenSalesOf(2);
  desktop.Expect("Delete Invoice ... #1002?", Answer::No);
  Sales().btnDelete.Press();
  EXPECT_EQ(LastBox().preselected, Answer::No);
  EXPECT_EQ(LastBox().icon, Icon::Question);
  EXPECT_FALSE(globals.InvoicesStale);
  EXPECT_THAT(Numbers(), ElementsAre("1002"));
  desktop.Expect("Delete invoice #1002 and all associated charges?", Answer::Yes);
  Sales().btnDelete.Press();
  EXPECT_FALSE(globals.InvoicesStale);
  EXPECT_THAT(Numbers(), ElementsAre("1001"));
  EXPECT_EQ(Sales().txtSinceDate.Text(), "01/01/26");
  EXPECT_EQ(Stock(), "0");
}

TEST_F(CustInvoicesTest, LeavesTheNoticesStandingAfterAnError) {
  AddInvoice(1001, 1003, kNewYear + 1);
  Start();
  OpenSalesOf(2);
  for (const char* wrong : {"02/30/26", ""}) {
    desktop.Expect("ClientInvoices.btnGo_Click -13 Type mismatch");
    ListSince(wrong, 0);
    EXPECT_TRUE(IsOpen("LoadingInvoices"));
    EXPECT_THAT(Numbers(), ElementsAre("1001"));
  }
  desktop.Expect("Globals.GetAllInvoices -13 Type mismatch");
  ListSince("13/41/26", 1);
  EXPECT_FALSE(IsOpen("LoadingInvoices"));

  std::filesystem::remove(database.File());
  for (const char* report : {"Invoice.GetCustInvoices -3709", "Globals.GetInvoices -91"}) desktop.Expect(report);
  ListSince("010126", 0);
  EXPECT_TRUE(IsOpen("GettingInvoices"));
  EXPECT_FALSE(std::filesystem::exists(database.File()));
}

TEST_F(CustInvoicesTest, LeadsToTheScreensAroundTheSelection) {
  AddInvoice(1001, 1003, kNewYear + 1);
  StandIn({"Receipts", "PrtInvoice", "frmInventory"});
  Start();
  OpenSalesOf(2);
  Sales().btnCustInfo.Press();
  Sales().btnReceipts.Press();
  Sales().btnInventory.Press();
  EXPECT_TRUE(IsOpen("Profile") && IsOpen("Receipts") && IsOpen("frmInventory"));
  EXPECT_EQ(globals.CurCatNum, 1);
  program.screens.Unload("Receipts");
  globals.CurCustNum = 0;
  desktop.Expect("Select or enter a client first");
  Sales().btnReceipts.Press();
  EXPECT_FALSE(IsOpen("Receipts"));
  desktop.Expect("Select or enter a client first.");
  Sales().btnNewInvoice.Press();
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
}

TEST_F(CustInvoicesTest, OpensTheInvoiceByDoubleClickEnterAndButton) {
  AddInvoice(1001, 1003, kNewYear + 1);
  AddInvoice(1002, 1003, kNewYear + 2);
  Start();
  OpenSalesOf(2);
  EXPECT_EQ(Open(1001).lblInvoiceNum.Caption(), "1001");
  EXPECT_EQ(Sheet().Owner(), &Sales());
  Sales().InvoiceList.SetFocus();
  Sales().InvoiceList.UserKey(Key::Up);
  Sales().InvoiceList.UserKey(Key::Enter);
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1002");
  Sales().InvoiceList.UserClick(2, 1);
  Sales().btnDetails.Press();
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1001");
  Sales().btnExit.Press();
  EXPECT_TRUE(Sheet().IsVisible()) << "the invoice outlives the list that opened it";
}

TEST_F(CustInvoicesTest, AsksBeforeAnInvoiceTakesThePlaceOfUnsavedChanges) {
  AddInvoice(1001, 1003, kNewYear + 1);
  AddInvoice(1002, 1003, kNewYear + 2);
  Start();
  OpenSalesOf(2);
  Open(1002).txtTerms.UserType("Net 30");
  desktop.Expect("Save changes to invoice?", Answer::Cancel);
  Open(1001);
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption(), "1002");
  EXPECT_EQ(Sheet().txtTerms.Text(), "Net 30");

  // Lines that were changed reload the list on the way; what was asked for comes up all the same.
  Enter(Sheet().ItemList, 1, InvoiceDetail::kQuantity, "3");
  LeaveLines();
  Sheet().txtTerms.UserType("Net 60");
  desktop.Expect("Save changes to invoice?", Answer::Yes);
  Open(1001);
  EXPECT_EQ(Sheet().lblInvoiceNum.Caption() + Sheet().txtDescription.Text(), "1001Order 1001");
  EXPECT_EQ(database.Cell("SELECT Terms FROM tb_Invoice WHERE InvoiceNum = 1002"), "Net 60");
}

class CustSearchTest : public SalesOffice {};

TEST_F(CustSearchTest, OffersTheClientsAsTheMainScreenReadThem) {
  Start();
  AddClient(1004, "Zola", "Emil");
  program.screens.Show(CustSearch::kName);
  auto& search = program.screens.Touch<CustSearch>();
  const Grid& list = search.CustList;
  EXPECT_EQ(list.Rows(), 4) << "not the one added since";
  EXPECT_EQ(list.Cell(1, 0) + list.Cell(1, 1), "Adams, Bea1002");
  search.CustList.SetRow(0);
  search.btnOK.Press();
  EXPECT_TRUE(IsOpen("CustSearch")) << "nothing is picked";
  EXPECT_FALSE(globals.PayClientSet);
  search.btnCancel.Press();
  EXPECT_FALSE(IsOpen("CustSearch"));
}

}  // namespace
}  // namespace norvane::test
