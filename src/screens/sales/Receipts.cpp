#include "screens/sales/Receipts.h"

#include <algorithm>
#include <utility>

#include "core/Val.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "forms/DatePair.h"
#include "screens/KeyedList.h"
#include "screens/RowOf.h"
#include "screens/clients/CustSearch.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/PaymentDate.h"

namespace norvane {

namespace {

constexpr const char* kSelectedClient = CustInvoices::kSelectedClient;
constexpr const char* kAllClients = CustInvoices::kAllClients;
constexpr const char* kSection = "RECEIPTS";
/// The number in place of a client's while the payments of all clients are listed.
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
                    Stretch(Row({Column({btnNew, btnDelete, Space()}), Stretch(PaymentList)})),
                    Strip({lblClient, Space(), Label3, lblBalDue})}));
  SetExitButton(Command2);
  lblClient.SetForeColor(Colour::Grey);
  PaymentList.SetEmptyHint("No payments since this date. Type the first one into the row with the star.");
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
    client_ = SelectedClient(globals);
    SetPayments();
    screens.Unload(screen::kGettingReceipts);
  });
}

void Receipts::SetPayments() {
  Trapped("Receipts.SetPayments -", [&] {
    // The row that it was to find a client for goes.
    screens.Unload(CustSearch::kName);
    CmbReceipt.SetText(client_.number == kEveryClient ? kAllClients : kSelectedClient);
    ReadPayments();
    SetUpGrid();
    ReadClientOfList();
    PaymentList.SetColComboList(kType, TypeItems());
    ListPayments();
  });
}

void Receipts::ReadPayments() {
  const Object<Invoice> payments = globals.oInvoice;
  payments->OpenCn();
  if (std::exchange(DeletePending, false)) payments->DeletePayment(SelPayNum);
  SelPayNum = 0;
  rsPayments = payments->AllPayments(SinceDate, client_.number);
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
                          {">Amount", 1000, ColumnType::Currency, "", true},
                          {"Notes", 1400}});
}

// The second card is offered under the first one's number.
void Receipts::ReadClientOfList() {
  const Object<Client> client = globals.oClient;
  client->OpenCn();
  clientIsKnown_ = client->GetClient(client_.number);
  CardType1 = client->PaymentType1;
  CardType2 = client->PaymentType2;
  CardNo1 = client->CardNum1;
  CardNo2 = client->CardNum1;
  lblClient.SetCaption(clientIsKnown_ ? client->lname + ", " + client->fname : "");
  client->CloseCn();
  ShowBalance();
}

// Nothing else in an empty list says whose it is and what is owed.
void Receipts::ShowBalance() {
  for (Label* label : {&lblClient, &Label3, &lblBalDue}) label->SetVisible(clientIsKnown_);
  if (!clientIsKnown_) return;
  const Object<Client> client = globals.oClient;
  Date upToToday;
  client->OpenCn();
  const Currency balance = client->ClientBal(client_.number, upToToday);
  client->CloseCn();
  lblBalDue.SetCaption(convert.CurrencyText(balance));
  lblBalDue.SetForeColor(balance > Currency() ? Colour::Red : Colour::Black);
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

bool Receipts::MarkPayment(std::int32_t number, Date date) {
  if (date <= SinceDate) {
    SetDates(DTPicker1, txtSinceDate, date - 1);
    SinceDate = date - 1;
    SetPayments();
  }
  const int row = RowOf(PaymentList, kTransNum, convert.ToText(number));
  if (row == 0) return false;
  PaymentList.SetRow(row);
  PaymentList_Click();
  return true;
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
      client_ = {kEveryClient, kAllClients};
    } else {
      TakeClientOfRow();
    }
    SelectClient(program, client_);
    SetPayments();
  });
}

// The empty row at the end has no client: the one whose payments are listed stays, if it is one.
void Receipts::TakeClientOfRow() {
  const int row = PaymentList.Row();
  const std::string custNum = PaymentList.Cell(row, kCustNum);
  if (custNum.empty() && client_.number != kEveryClient) return;
  client_ = {convert.ToLong(custNum), PaymentList.Cell(row, kClient)};
}

bool Receipts::Shows(std::int32_t custNum) const {
  return client_.number == custNum || RowOf(PaymentList, kCustNum, convert.ToText(custNum)) > 0;
}

// Editing.

void Receipts::PaymentList_Click() {
  Trapped("Receipts.PaymentList_Click -", [&] {
    const int row = PaymentList.Row();
    const std::string custNum = PaymentList.Cell(row, kCustNum);
    if (row != 0 && !custNum.empty()) {
      SelectClient(program, {convert.ToLong(custNum), PaymentList.Cell(row, kClient)});
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

// A picker wrote into the row: the cursor goes on after that cell, and the row is treated as edited.
void Receipts::AfterPick(bool& picked, int col) {
  if (!picked) return;
  PaymentList.SetCol(col);
  PaymentList_AfterEdit(PaymentList.Row(), PaymentList.Col());
  picked = false;
}

bool Receipts::AreFilled(int row, std::initializer_list<int> cols) const {
  return std::none_of(cols.begin(), cols.end(), [&](int col) { return PaymentList.Cell(row, col).empty(); });
}

// Among one client's payments a row without a client gets that one; else it waits for the picker. A row that is
// complete counts as started, and a new empty one follows it.
void Receipts::PaymentList_AfterEdit(int row, int col) {
  rows_.AfterEdit(row, [&] {
    if (!ShowsAllClients() && clientIsKnown_ && PaymentList.Cell(row, kCustNum).empty()) FillClient(row, client_);
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

void Receipts::FillClient(int row, const ClientShown& client) {
  PaymentList.SetCell(row, kCustNum, convert.ToText(client.number));
  PaymentList.SetCell(row, kClient, client.name);
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
      screens.Reopen(CustSearch::kName, {.owner = this});
      screens.Touch<CustSearch>().CustList.SetFocus();
    }
    if (PaymentList.Col() == kDate) {
      globals.PayDateCaller = PaymentDate::kForReceipts;
      screens.Reopen(PaymentDate::kName, {.owner = this, .modal = true});
    }
  });
}

void Receipts::TakeClient(int row, const ClientShown& client) {
  PaymentList.SetRow(row);
  FillClient(row, client);
  rows_.MarkChanged(row);
  globals.PayClientSet = true;
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
  if (payment->PayNum != 0) ShowBalance();
}

// Buttons.

// A row must have been clicked since the list was filled. The payment that the question names is deleted, also if the
// cursor came to it without a click.
void Receipts::btnDelete_Click() {
  Trapped("Receipts.btnDelete_Click -", [&] {
    const int row = PaymentList.Row();
    if (SelPayNum == 0) return;
    SelPayNum = ValLong(PaymentList.Cell(row, kTransNum));
    if (SelPayNum == 0) return;
    const std::string amount = convert.CurrencyText(convert.ToCurrency(PaymentList.Cell(row, kAmount)));
    if (!AskYesNo("Delete Payment by " + PaymentList.Cell(row, kClient) + " in the amount of " + amount + "?",
                  "Delete payment?")) {
      return;
    }
    DeletePending = true;
    SetPayments();
  });
}

// A receipt is made out to the client and the date of the payment marked.
void Receipts::btnPrint_Click() {
  PaymentList_Click();
  if (AreFilled(PaymentList.Row(), {kDate, kCustNum})) {
    screens.Reopen(screen::kPrtReceipt);
  } else {
    desktop.Say("Select payment with valid date for printing receipt.");
  }
}

// The window.

void Receipts::Form_Resize() {
  Trapped("Receipts.Form_Resize -", [&] {
    PaymentList.SetLeft(720);
    if (ScaleWidth() > 900) PaymentList.SetWidth(ScaleWidth() - 900);
    PaymentList.SetHeight(ScaleHeight() - 1100);
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
