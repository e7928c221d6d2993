#include "screens/sales/Receipts.h"

#include <algorithm>
#include <utility>

#include "core/Val.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "forms/DatePair.h"
#include "screens/KeyedList.h"
#include "screens/clients/CustSearch.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/PaymentDate.h"

namespace norvane {

namespace {

constexpr const char* kSelectedClient = CustInvoices::kSelectedClient;
constexpr const char* kAllClients = CustInvoices::kAllClients;
constexpr const char* kSection = "RECEIPTS";
/// CurCustNum while the payments of all clients are listed.
constexpr std::int32_t kEveryClient = -1;

}  // namespace

Receipts::Receipts(Program& host)
    : Form(host, kName, {.caption = "Payments Received"}),
      rows_(PaymentList, globals, desktop,
            {.labels = {.setOldRowStatus = "Receipts.SetOldRowStatus -",
                        .setNewRowStatus = "Receipts.SetNewRowStatus -",
                        .afterRowEdit = "Receipts.PaymentList_AfterRowEdit -",
                        .afterEdit = "Receipts.PaymentList_AfterEdit -",
                        .saveRow = "Receipts.SaveRow -"},
             .testColumns = {kAmount},
             .marksRowEntered = false,
             .scrollsBack = true,
             .scrollsToNewRow = false},
            [this](std::int32_t row) { StoreRow(row); }) {
  using namespace layout;
  PaymentList.SetTop(900);
  for (Button* button : {&Command2, &btnPrint}) button->SetWidth(480);
  SetLayout(Column({Strip({Field("View Payments Received from:", CmbReceipt),
                           DateField("Since:", txtSinceDate, DTPicker1), btnGo, Space(), btnPrint, Command2}),
                    Stretch(Row({Column({btnNew, btnDelete, Space()}), Stretch(PaymentList)}))}));
  SetExitButton(Command2);
  WritePickedDate(DTPicker1, txtSinceDate);
  btnGo.Click = [this] { btnGo_Click(); };
  PaymentList.Click = [this] { PaymentList_Click(); };
  PaymentList.GotFocus = [this] { PaymentList_GotFocus(); };
  PaymentList.AfterEdit = [this](int row, int col) { PaymentList_AfterEdit(row, col); };
  PaymentList.CellButtonClick = [this](int row, int col) { PaymentList_CellButtonClick(row, col); };
  btnNew.Click = Trapping("Receipts.btnNew_Click -", [this] { rows_.GoToNewRow(); });
  btnDelete.Click = [this] { btnDelete_Click(); };
  WireTo(btnPrint, screen::kPrtReceipt, [this] { btnPrint_Click(); });
  Command2.Click = [this] { Unload(); };
}

// Loading.

void Receipts::Form_Load() {
  PaymentList.SetFocus();
  Trapped("Receipts.Form_Load -", [&] {
    screens.Show(screen::kGettingReceipts);
    ReadGeometry(kSection);
    SetDates(DTPicker1, txtSinceDate, Date::FromYearMonthDay((desktop.Today() - 365).Year(), 1, 1));
    SinceDate = DTPicker1.Value();
    for (const char* item : {kSelectedClient, kAllClients}) CmbReceipt.AddItem(item);
    CmbReceipt.SetText(globals.CurCustNum == kEveryClient ? kAllClients : kSelectedClient);
    SetPayments();
    screens.Unload(screen::kGettingReceipts);
  });
}

void Receipts::SetPayments() {
  Trapped("Receipts.SetPayments -", [&] {
    ReadPayments();
    SetUpGrid();
    ReadCards();
    PaymentList.SetColComboList(kType, TypeItems());
    ListPayments();
  });
}

void Receipts::ReadPayments() {
  const Object<Invoice> payments = globals.oInvoice;
  payments->OpenCn();
  if (std::exchange(DeletePending, false)) payments->DeletePayment(SelPayNum);
  rsPayments = payments->AllPayments(SinceDate, globals.CurCustNum);
  payments->CloseCn();
}

void Receipts::SetUpGrid() {
  rows_.StartOver();
  PaymentList.Clear();
  PaymentList.SetRows(2);
  PaymentList.SetColumns({{"^", 300},
                          {"TransNum", 0},
                          {"CustNum", 0},
                          {"Date", 1000, ColumnType::Date, "..."},
                          {"Type", 1300},
                          {"Card/Check#", 1700},
                          {"Client", 1500, ColumnType::Plain, "..."},
                          {">Amount", 1000, ColumnType::Currency},
                          {"Notes", 1400}});
}

// The second card is offered under the first one's number.
void Receipts::ReadCards() {
  const Object<Client> client = globals.oClient;
  client->OpenCn();
  client->GetClient(globals.CurCustNum);
  CardType1 = client->PaymentType1;
  CardType2 = client->PaymentType2;
  CardNo1 = client->CardNum1;
  CardNo2 = client->CardNum1;
  client->CloseCn();
}

std::string Receipts::TypeItems() const {
  std::string items;
  if (!CardType1.empty()) items += "#1;" + CardType1 + " #" + CardNo1 + "|";
  if (!CardType2.empty()) items += "#2;" + CardType2 + " #" + CardNo2 + "|";
  return WithoutLastSeparator(items + KeyedItems(*globals.rsPaymentTypes, "Type"));
}

void Receipts::ListPayments() {
  PayRow = 1;
  for (; !rsPayments->Eof(); rsPayments->MoveNext()) PaymentList.AddItem(CellsOf(*rsPayments), PayRow++);
  if (PayRow > 6) PaymentList.SetTopRow(PayRow - 5);
  if (PayRow > 1) PaymentList.SetRow(PayRow);
  rows_.SetMarker(PayRow, "*");
}

std::string Receipts::CellsOf(const Recordset& payment) const {
  return GridRow({"", payment.Text("TransNum"), payment.Text("CustNum"), convert.ToText(payment.Field("Date")),
                  payment.Text("Type"), payment.Text("Checknum"), payment.Text("Fullname"),
                  convert.CurrencyText(payment.Field("amount")), payment.Text("Notes")});
}

// Which payments.

bool Receipts::ShowsAllClients() const {
  return CmbReceipt.Text() == kAllClients;
}

// The text counts, not the picker.
void Receipts::btnGo_Click() {
  Trapped("Receipts.btnGo_Click -", [&] {
    SinceDate = convert.ToDateFromMask(txtSinceDate.Text());
    if (ShowsAllClients()) {
      globals.CurCustNum = kEveryClient;
    } else {
      TakeClientOfRow();
    }
    SetPayments();
  });
}

// The empty row at the end has no client: the one that is selected stays, if any is.
void Receipts::TakeClientOfRow() {
  const std::string custNum = PaymentList.Cell(PaymentList.Row(), kCustNum);
  if (custNum.empty() && globals.CurCustNum != kEveryClient) return;
  globals.CurCustNum = convert.ToLong(custNum);
}

// Editing.

void Receipts::PaymentList_Click() {
  Trapped("Receipts.PaymentList_Click -", [&] {
    const int row = PaymentList.Row();
    const std::string custNum = PaymentList.Cell(row, kCustNum);
    if (row != 0 && !custNum.empty()) {
      globals.CurCustNum = convert.ToLong(custNum);
      globals.CurClientName = PaymentList.Cell(row, kClient);
    }
    SelPayNum = ValLong(PaymentList.Cell(row, kTransNum));
    const std::string date = PaymentList.Cell(row, kDate);
    globals.ReceiptDate = convert.IsDate(date) ? convert.ToDate(date) : desktop.Today();
  });
}

void Receipts::PaymentList_GotFocus() {
  Trapped("Receipts.PaymentList_GotFocus -", [&] {
    PaymentList.SetCol(kDate);
    AfterPick(globals.PayDateSet, kType);
    AfterPick(globals.PayClientSet, kAmount);
  });
}

// A picker wrote into the row: the cursor goes on behind that cell, and the row is treated as edited.
void Receipts::AfterPick(bool& picked, int col) {
  if (!picked) return;
  PaymentList.SetCol(col);
  PaymentList_AfterEdit(PaymentList.Row(), PaymentList.Col());
  picked = false;
}

bool Receipts::AreFilled(int row, std::initializer_list<int> cols) const {
  return std::none_of(cols.begin(), cols.end(), [&](int col) { return PaymentList.Cell(row, col).empty(); });
}

// A row that is complete counts as started, and a new empty one stands at the end.
void Receipts::PaymentList_AfterEdit(int row, int col) {
  rows_.AfterEdit(row, [&] {
    if (!ShowsAllClients()) {
      PaymentList.SetCell(row, kCustNum, convert.ToText(globals.CurCustNum));
      PaymentList.SetCell(row, kClient, globals.CurClientName);
    }
    if (AreFilled(row, {kDate, kType, kClient, kAmount})) {
      PaymentList.SetCell(row, kAmount, convert.CurrencyText(std::string_view(PaymentList.Cell(row, kAmount))));
      if (PaymentList.Cell(row, kTransNum).empty()) {
        PaymentList.SetRows(PaymentList.Rows() + 1);
        PaymentList.SetCell(row, kTransNum, "0");
      }
    }
    if (col == kType) FillCardNumber(row);
    return true;
  });
}

void Receipts::FillCardNumber(int row) {
  const std::string key = PaymentList.Cell(row, kType);
  if (key == "1") PaymentList.SetCell(row, kCheckNum, CardNo1);
  if (key == "2") PaymentList.SetCell(row, kCheckNum, CardNo2);
}

void Receipts::PaymentList_CellButtonClick(int row, int col) {
  Trapped("Receipts.PaymentList_CellButtonClick -", [&] {
    if (col == kClient) {
      globals.RowSelected = row;
      screens.Show(CustSearch::kName, {.owner = this});
      screens.Touch<CustSearch>().CustList.SetFocus();
    }
    if (PaymentList.Col() == kDate) {
      globals.PayDateCaller = PaymentDate::kForReceipts;
      screens.Show(PaymentDate::kName, {.owner = this, .modal = true});
    }
  });
}

// All is read before the connection opens, so that what can't be read leaves none open.
void Receipts::StoreRow(std::int32_t row) {
  if (!AreFilled(row, {kCustNum, kDate, kAmount})) return;
  const Object<Invoice> payment = globals.oInvoice;
  payment->PayNum = ValLong(PaymentList.Cell(row, kTransNum));
  payment->CustNum = convert.ToLong(PaymentList.Cell(row, kCustNum));
  payment->Paytype = PaymentList.DisplayText(row, kType);
  payment->Checknum = PaymentList.Cell(row, kCheckNum);
  payment->PayDate = convert.ToDate(PaymentList.Cell(row, kDate));
  payment->Payment = convert.ToCurrency(convert.CurrencyText(std::string_view(PaymentList.Cell(row, kAmount))));
  payment->PayNotes = PaymentList.Cell(row, kNotes);
  payment->OpenCn();
  payment->SavePayment();
  payment->CloseCn();
  PaymentList.SetCell(row, kTransNum, convert.ToText(std::int32_t{payment->PayNum}));
}

// Buttons.

// A row must have been clicked; the one that the question names goes, also if the cursor came to it without a click.
void Receipts::btnDelete_Click() {
  Trapped("Receipts.btnDelete_Click -", [&] {
    const int row = PaymentList.Row();
    if (SelPayNum == 0 || PaymentList.Cell(row, kAmount).empty()) return;
    SelPayNum = ValLong(PaymentList.Cell(row, kTransNum));
    const std::string amount = convert.CurrencyText(convert.ToCurrency(PaymentList.Cell(row, kAmount)));
    if (!AskYesNo("Delete Payment by " + PaymentList.Cell(row, kClient) + " in the amount of " + amount + "?",
                  "Delete payment?")) {
      return;
    }
    DeletePending = true;
    SetPayments();
  });
}

// The receipt is made out to the client and the date of the marked payment, whatever is selected elsewhere.
void Receipts::btnPrint_Click() {
  if (PaymentList.Cell(PaymentList.Row(), kDate).empty()) {
    desktop.Say("Select payment with valid date for printing receipt.");
  } else {
    PaymentList_Click();
    screens.Reopen(screen::kPrtReceipt);
  }
}

// The window.

void Receipts::Form_Resize() {
  Trapped("Receipts.Form_Resize -", [&] {
    PaymentList.SetLeft(720);
    if (ScaleWidth() > 900) PaymentList.SetWidth(ScaleWidth() - 900);
    PaymentList.SetHeight(std::max(0.0, ScaleHeight() - 1100));
    const Twips left = ScaleWidth() - Command2.Width() - 200;
    if (left >= 0) Command2.SetLeft(left);
    btnPrint.SetLeft(Command2.Left() - btnPrint.Width() - 20);
  });
}

void Receipts::Form_Unload() {
  rows_.Close();
  Trapped("Receipts.Form_Unload -", [&] { WriteGeometry(kSection); });
}

}  // namespace norvane
