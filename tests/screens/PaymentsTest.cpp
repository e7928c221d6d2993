#include "Office.h"
#include "screens/clients/CustSearch.h"
#include "screens/sales/PaymentDate.h"
#include "screens/sales/Receipts.h"

namespace norvane::test {
namespace {

class PaymentsTest : public Office {
 protected:
  /// January 1st 2025 as the tables hold it, and the day that the desktop calls today.
  static constexpr int kSince = 45658;
  static constexpr int kToday = 46348;

  PaymentsTest() { AddClients(); }
  void AddPayment(int number, int custNum, int date = kToday, const char* type = "Cash") {
    database.Execute("INSERT INTO tb_Receive (TransNum, CustNum, Type, CheckNum, Date, Amount) VALUES (" +
                     std::to_string(number) + ", " + std::to_string(custNum) + ", '" + type + "', '7', " +
                     std::to_string(date) + ", 250000)");
  }
  /// The payments of Ada Moss, 1003.
  void Open() {
    Start();
    Select(2);
    Main().btnReceipts.Press();
  }
  void ListAll() {
    Screen().CmbReceipt.UserPick(1);
    Screen().btnGo.Press();
  }
  Receipts& Screen() { return The<Receipts>(); }
  Grid& List() { return Screen().PaymentList; }
  void Leave() { Main().UserActivate(); }
  std::string Row(int row) { return RowText(List(), row); }
  std::vector<std::string> Stored() {
    return database.Rows("SELECT TransNum, CustNum, Type, CheckNum, Date, Amount, Notes FROM tb_Receive");
  }
};

TEST_F(PaymentsTest, RowAfterRowIsEnteredByTheKeyboardAloneForTheSelectedClient) {
  Open();
  EXPECT_FALSE(IsOpen("GettingReceipts"));
  EXPECT_EQ(Row(1), "*||||||||");
  ASSERT_TRUE(List().HasFocus());
  EXPECT_EQ(List().Col(), Receipts::kDate);
  TypeCells(List(), {"11/20/2026", "Ch", "1044"});
  EXPECT_EQ(Row(1), "*||1003|11/20/2026|Check|1044|Moss, Ada ||");
  TypeCells(List(), {"", "250"});
  EXPECT_EQ(Row(1), "?|0|1003|11/20/2026|Check|1044|Moss, Ada |$250.00|");
  EXPECT_EQ(List().Rows(), 3) << "a new row below one that is complete";
  TypeCells(List(), {"Order 5"});
  EXPECT_THAT(Stored(), ElementsAre("1001|1003|Check|1044|46346|2500000|Order 5"));
  EXPECT_EQ(Row(1).substr(0, 6), "|1001|");
  EXPECT_EQ(Row(2), "*||||||||");

  EXPECT_EQ(List().Col(), Receipts::kDate);
  TypeCells(List(), {"11/22/2026", "M", "", ""});
  Type(List(), "12.505");
  Screen().Command2.Press();
  EXPECT_EQ(Stored().at(1), "1002|1003|Money Order||46348|125100|") << "closing stores the edit still open";
  EXPECT_EQ(Connections(), 0);
}

TEST_F(PaymentsTest, AmongAllClientsThePickerNamesTheOneWhoPaid) {
  Open();
  ListAll();
  EXPECT_EQ(globals.CurCustNum, -1);
  Enter(List(), 1, Receipts::kDate, "11/22/2026");
  Pick(List(), 1, Receipts::kType, 0);
  Enter(List(), 1, Receipts::kAmount, "40");
  List().UserClick(1, Receipts::kClient);
  List().UserKey(Key::Down, {.alt = true});
  EXPECT_THAT(Stored(), IsEmpty()) << "without a client the row is dropped";
  auto& picker = The<CustSearch>();
  ASSERT_TRUE(picker.CustList.HasFocus());
  EXPECT_THAT(ColumnOf(picker.CustList, 0), ElementsAre("Adams, Bea", "Moss, Ada", "Moss, Carl"));
  picker.CustList.SetRow(0);
  picker.btnOK.Press();
  EXPECT_TRUE(IsOpen("CustSearch")) << "nothing is picked";
  picker.CustList.SetFocus();
  picker.CustList.UserKey(Key::End);
  picker.CustList.UserKey(Key::Enter);
  EXPECT_FALSE(IsOpen("CustSearch"));
  EXPECT_FALSE(globals.PayClientSet);
  ASSERT_TRUE(List().HasFocus());
  EXPECT_EQ(List().Col(), Receipts::kAmount);
  EXPECT_EQ(Row(1), "?|0|1001|11/22/2026|Cash||Moss, Carl|$40.00|");
  List().UserKey(Key::Down);
  EXPECT_THAT(Stored(), ElementsAre("1001|1001|Cash||46348|400000|"));
}

TEST_F(PaymentsTest, AllClientsStaySelectedBehindTheScreenUntilARowNamesOne) {
  AddPayment(1001, 1001);
  AddPayment(1002, 1003);
  Open();
  EXPECT_EQ(List().Rows(), 3);
  ListAll();
  EXPECT_EQ(List().Rows(), 4);
  Screen().CmbReceipt.UserPick(0);
  Press(Screen().btnGo, "Receipts.btnGo_Click -13 Type mismatch");
  List().UserClick(1, Receipts::kType);
  EXPECT_EQ(globals.CurClientName, "Moss, Carl");
  Screen().btnGo.Press();
  EXPECT_EQ(globals.CurCustNum, 1001);
  EXPECT_EQ(List().Rows(), 3);
  ListAll();
  Screen().Command2.Press();
  EXPECT_EQ(globals.CurCustNum, -1);
  Main().btnReceipts.Press();
  EXPECT_EQ(Screen().CmbReceipt.Text(), "Selected Client") << "the one marked";
  EXPECT_EQ(List().Cell(1, Receipts::kTransNum), "1001");
}

TEST_F(PaymentsTest, TheSinceDateItselfIsNotListed) {
  AddPayment(1001, 1003, kSince);
  AddPayment(1002, 1003, kSince + 1, "Barter");
  Open();
  EXPECT_EQ(Screen().txtSinceDate.Text(), "01/01/25");
  EXPECT_EQ(Row(1), "|1002|1003|1/2/2025|Barter|7|Moss, Ada|$25.00|");
  Screen().txtSinceDate.UserType("023126");
  Press(Screen().btnGo, "Receipts.btnGo_Click -13 Type mismatch");
  EXPECT_EQ(List().Rows(), 3);
  Screen().DTPicker1.UserPick(Date(kSince - 1));
  EXPECT_EQ(Screen().txtSinceDate.Text(), "12/31/24");
  Screen().btnGo.Press();
  EXPECT_EQ(List().Rows(), 4);
}

TEST_F(PaymentsTest, ARefusedPaymentKeepsItsTextsAndOnlyAStoredOneItsNumber) {
  AddPayment(1001, 1003);
  Open();
  desktop.Expect("Invoice.SavePayment --2147217900");
  Enter(List(), 1, Receipts::kNotes, "May's");
  Leave();
  EXPECT_EQ(Row(1), ">|1001|1003|11/22/2026|Cash|7|Moss, Ada|$25.00|May's");
  List().UserClick(2, Receipts::kDate);
  TypeCells(List(), {"11/22/2026", "Ca", "", "", "9"});
  desktop.Expect("Invoice.SavePayment --2147217900");
  Type(List(), "June's");
  Leave();
  EXPECT_EQ(Row(2).substr(0, 4), "?|0|");
  Enter(List(), 2, Receipts::kNotes, "June");
  Enter(List(), 1, Receipts::kNotes, "May");
  Leave();
  EXPECT_THAT(Stored(), ElementsAre("1001|1003|Cash|7|46348|250000|May", "1002|1003|Cash||46348|90000|June"));
}

TEST_F(PaymentsTest, APaymentIsDeletedAfterTheQuestion) {
  AddPayment(1001, 1003);
  AddPayment(1002, 1003);
  Open();
  Screen().btnDelete.Press();
  EXPECT_THAT(desktop.boxes, IsEmpty()) << "no row was clicked";
  List().UserClick(2, Receipts::kType);
  Press(Screen().btnDelete, "Delete Payment by Moss, Ada in the amount of $25.00?", Answer::No);
  ExpectQuestion("Delete payment?");
  EXPECT_EQ(Stored().size(), 2u);
  Press(Screen().btnDelete, "Delete Payment by Moss, Ada in the amount of $25.00?", Answer::Yes);
  EXPECT_EQ(database.Cell("SELECT group_concat(TransNum) FROM tb_Receive"), "1001");
  EXPECT_EQ(Row(2), "*||||||||");
  Screen().btnDelete.Press();  // on the empty row

  List().UserClick(1, Receipts::kType);
  Screen().btnNew.Press();
  TypeCells(List(), {"11/22/2026", "Ca", "", "", "9"});
  Press(Screen().btnDelete, "in the amount of $9.00?", Answer::Yes);
  EXPECT_EQ(database.Cell("SELECT group_concat(TransNum) FROM tb_Receive"), "1001") << "the row in question goes";

  Choose(Main().mnuDelete, "Deleting a client is not recommended", Answer::Yes);
  Screen().btnGo.Press();
  EXPECT_EQ(List().Rows(), 2) << "a client deleted meanwhile has nothing to list";
  EXPECT_EQ(Row(1), "*||||||||");
}

TEST_F(PaymentsTest, BothCardsAreOfferedUnderTheFirstOnesNumber) {
  database.Execute(
      "UPDATE tb_Client SET PaymentType1 = 'Credit Card', CardNum1 = '4111', PaymentType2 = 'Debit Card', CardNum2 = "
      "'5222' WHERE CustNum = 1003");
  Open();
  EXPECT_THAT(List().DropDownItems(Receipts::kType), ElementsAre("Credit Card #4111", "Debit Card #4111", "Cash",
                                                                 "Check", "Credit Card", "Debit Card", "Money Order"));
  Enter(List(), 1, Receipts::kDate, "11/22/2026");
  Pick(List(), 1, Receipts::kType, 1);
  EXPECT_EQ(List().Cell(1, Receipts::kType) + " " + List().Cell(1, Receipts::kCheckNum), "2 4111");
  Enter(List(), 1, Receipts::kAmount, "9");
  Leave();
  EXPECT_THAT(Stored(), ElementsAre("1001|1003|Debit Card #4111|4111|46348|90000|"));

  ListAll();
  Pick(List(), 2, Receipts::kType, 0);
  EXPECT_EQ(List().Cell(2, Receipts::kType) + List().Cell(2, Receipts::kCheckNum), "3") << "no card, no number";
}

TEST_F(PaymentsTest, TheCalendarStandsBesideItsCellAndIsUsedByKeys) {
  Open();
  desktop.WhenModal<PaymentDate>([&](PaymentDate& calendar) {
    EXPECT_EQ(calendar.PayDate.Value(), Date(kToday));
    EXPECT_EQ(calendar.Left(), Screen().Left() + 720 + 300 + 1000);
    EXPECT_EQ(calendar.Top(), Screen().Top() + Screen().PaymentList.Top() + 300);
    calendar.PayDate.UserKey(static_cast<int>(Key::Left));
    calendar.PayDate.UserKey(static_cast<int>(Key::Enter));
  });
  List().UserKey(Key::F4);
  EXPECT_EQ(Row(1), "*||1003|11/21/2026|||Moss, Ada ||");
  EXPECT_EQ(List().Col(), Receipts::kType);
  EXPECT_TRUE(globals.RowChanged);
  EXPECT_FALSE(globals.PayDateSet);

  Screen().UserResize(5200, 5000);
  desktop.WhenModal<PaymentDate>([&](PaymentDate& calendar) {
    EXPECT_EQ(calendar.Left() + calendar.Width(), Screen().Left() + 5200);
    EXPECT_EQ(calendar.Top() + calendar.Height(), Screen().Top() + 5000);
    calendar.PayDate.UserKey(static_cast<int>(Key::Escape));
  });
  List().PressCellButton(1, Receipts::kDate);
  EXPECT_EQ(List().Cell(1, Receipts::kDate), "11/21/2026");
  EXPECT_EQ(List().Col(), Receipts::kDate);

  Screen().Command2.Press();
  Main().btnReceipts.Press();
  EXPECT_EQ(Screen().Width(), 5200) << "the window keeps its place";
}

TEST_F(PaymentsTest, ARowWithADateThatIsNoneWaitsAndLeavesNothingOpen) {
  AddPayment(1001, 1003);
  Open();
  desktop.Expect("Receipts.SaveRow -13 Type mismatch");
  EnterAndGoDown(List(), 1, Receipts::kDate, "2/30/2026");
  EXPECT_TRUE(globals.RowChanged);
  EXPECT_EQ(Connections(), 0);
  Screen().btnGo.Press();
  EXPECT_EQ(Row(1), "|1001|1003|11/22/2026|Cash|7|Moss, Ada|$25.00|") << "a new list has nothing that waits";
  EXPECT_FALSE(globals.RowChanged);
}

TEST_F(PaymentsTest, AReceiptIsPrintedForTheDateOfTheRowClicked) {
  StandIn({"PrtReceipt"});
  AddPayment(1001, 1003, kSince + 9);
  Open();
  Press(Screen().btnPrint, "Select payment with valid date for printing receipt.");
  EXPECT_FALSE(IsOpen("PrtReceipt"));
  List().UserClick(1, Receipts::kAmount);
  EXPECT_EQ(globals.ReceiptDate, Date(kSince + 9));
  globals.CurCustNum = 1001;
  globals.ReceiptDate = Date();
  Screen().btnPrint.Press();
  EXPECT_TRUE(IsOpen("PrtReceipt"));
  EXPECT_EQ(globals.CurCustNum, 1003) << "the client of the marked row, whatever was selected elsewhere";
  EXPECT_EQ(globals.ReceiptDate, Date(kSince + 9));
}

}  // namespace
}  // namespace norvane::test
