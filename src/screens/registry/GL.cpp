#include "screens/registry/GL.h"

#include <algorithm>
#include <utility>

#include "core/Val.h"
#include "data/Vendor.h"
#include "screens/KeyedList.h"
#include "screens/RowOf.h"
#include "screens/sales/PaymentDate.h"
#include "store/Recordset.h"

namespace norvane {

GL::GL(Program& host)
    : Form(host, kName, {.caption = "Registry"}),
      rows_(PaymentList, globals, desktop,
            {.labels = {.setOldRowStatus = "GL.SetOldRowStatus -",
                        .setNewRowStatus = "GL.SetNewRowStatus -",
                        .afterRowEdit = "GL.PaymentList_AfterRowEdit -",
                        .afterEdit = "GL.PaymentList_AfterEdit -",
                        .saveRow = "GL.SaveRow -"},
             .testColumns = {kPayment, kDeposit},
             .scrollsBack = true,
             .scrollsToNewRow = false},
            [this](std::int32_t row) { StoreRow(row); }) {
  using namespace layout;
  SetLayout(Column(
      {Group(Frame2,
             Strip({btnNew, btnDelete,
                    Stretch(Group(Frame1, Strip({btnPaymentCategories, btnVendors, btnPrint, Space(), Command2})))})),
       Stretch(PaymentList), Strip({Space(), Label2, lblCurBal, Label3, lblEndBal})}));
  SetExitButton(Command2);
  btnNew.Click = Trapping("GL.btnNew_Click -", [this] { rows_.GoToNewRow(); });
  btnDelete.Click = [this] { btnDelete_Click(); };
  btnPaymentCategories.Click = [this] { screens.Show(screen::kExpenseTypes, {.owner = this, .modal = true}); };
  WireTo(btnVendors, screen::kVendors);
  WireToReopen(btnPrint, screen::kPrtRegistry);
  Command2.Click = [this] { Unload(); };
  PaymentList.GotFocus = [this] { PaymentList_GotFocus(); };
  PaymentList.LeaveCell.Replace([this] { PaymentList_LeaveCell(); });
  PaymentList.RowColChange.Replace([this] { PaymentList_RowColChange(); });
  PaymentList.EnterCell = [this] { PaymentList_EnterCell(); };
  PaymentList.Click = [this] { PaymentList_Click(); };
  PaymentList.CellButtonClick = [this](int, int col) { PaymentList_CellButtonClick(col); };
  PaymentList.AfterEdit = [this](int row, int) { PaymentList_AfterEdit(row); };
}

// Loading.

void GL::Form_Load() {
  PaymentList.SetFocus();
  Trapped("GL.Form_Load -", [&] {
    globals.rsLedger = std::make_shared<Recordset>();
    globals.rsVendors = std::make_shared<Recordset>();
    EntryDate = Date::FromYearMonthDay(1959, 1, 1);
    globals.LedgerField = Vendor::kByVendor;
    globals.LedgerFieldValue = Vendor::kAll;
    ReadGeometry(kName);
    SetPayments();
    if (PaymentList.Rows() == 2) rows_.SetMarker(LedgerRow, "*");
    EntryDate = globals.LedgerSince;
  });
}

void GL::SetPayments() {
  Trapped("GL.SetPayments -", [&] {
    ReadLedger();
    SetUpGrid();
    OfferCategories();
    ReadVendors();
    OfferVendors();
    ListLedger();
  });
}

void GL::ReadLedger() {
  const Object<Vendor> ledger = globals.oVendor;
  ledger->OpenCn();
  if (std::exchange(DeletePending, false)) ledger->DeleteLedgerEntry(SelPayNum);
  SelPayNum = 0;
  globals.rsLedger = ledger->LedgerEntriesAll();
  ledger->CloseCn();
}

// The payment column has no type: its editor takes any text.
void GL::SetUpGrid() {
  rows_.StartOver();
  PaymentList.Clear();
  PaymentList.SetRows(2);
  PaymentList.SetColumns({{"^Sel", 400},
                          {"TransNum", 0},
                          {"^Date", 1000, ColumnType::Date, "..."},
                          {"^Num", 700},
                          {"Vendor", 1500},
                          {"Category", 800},
                          {">Payment", 1000},
                          {"^CLR", 400, ColumnType::Boolean},
                          {">Deposit", 1000, ColumnType::Currency},
                          {">Balance", 1000},
                          {"Notes", 1000}});
  PaymentList.SetColEditable(kBalance, false);
}

bool GL::MarkEntry(std::int32_t number) {
  const int row = RowOf(PaymentList, kTransNum, convert.ToText(number));
  if (row == 0) return false;
  PaymentList.SetRow(row);
  PaymentList_Click();
  return true;
}

void GL::OfferCategories() {
  PaymentList.SetColComboList(kCategory, WithoutLastSeparator(KeyedItems(*globals.rsExpenseTypes, "Type")));
}

void GL::ReadVendors() {
  const Object<Vendor> ledger = globals.oVendor;
  ledger->OpenCn();
  lblCurBal.SetCaption(convert.CurrencyText(ledger->LedgerCurrentBal()));
  globals.rsVendors = ledger->GetAllVendors();
  ledger->CloseCn();
}

void GL::OfferVendors() {
  const Object<Recordset> vendors = globals.rsVendors;
  std::string items;
  for (vendors->MoveFirst(); !vendors->Eof(); vendors->MoveNext()) items += vendors->Text("Company") + "|";
  PaymentList.SetColComboList(kVendor, WithoutLastSeparator(std::move(items)));
}

void GL::ListLedger() {
  RunningBal = Currency();
  LedgerRow = 1;
  const Object<Recordset> entries = globals.rsLedger;
  globals.LedgerSince = entries->Eof() ? desktop.Today() : entries->Date("Date");
  for (; !entries->Eof(); entries->MoveNext()) PaymentList.AddItem(CellsOf(*entries), LedgerRow++);
  if (LedgerRow > 1) {
    if (LedgerRow > 6) PaymentList.SetTopRow(LedgerRow - 5);
    PaymentList.SetRow(LedgerRow);
  }
  entries->Close();
  globals.rsLedger.Release();
  lblEndBal.SetCaption(convert.CurrencyText(RunningBal));
}

std::string GL::CellsOf(const Recordset& entry) {
  const Currency payment = entry.Currency("Payment");
  const Currency deposit = entry.Currency("Deposit");
  const auto moneyText = [&](Currency amount) {
    return amount == Currency() ? std::string() : convert.CurrencyText(amount);
  };
  RunningBal = RunningBal - payment + deposit;
  return GridRow({"", entry.Text("TransNum"), convert.ToText(entry.Field("Date")), entry.Text("Checknum"),
                  entry.Text("Vendor"), entry.Text("Category"), moneyText(payment), entry.Text("Cleared"),
                  moneyText(deposit), convert.CurrencyText(RunningBal), entry.Text("Notes")});
}

// Moving about.

// After a pick the cursor goes on after the cell that was filled.
void GL::PaymentList_GotFocus() {
  Trapped("GL.PaymentList_GotFocus -", [&] {
    if (std::exchange(globals.VendorPicked, false)) {
      PaymentList.SetCol(kDeposit);
    } else if (globals.PayDateSet) {
      PaymentList.SetCol(kNum);
      if (PaymentList.Row() > 0) PaymentList_AfterEdit(PaymentList.Row());
      globals.PayDateSet = false;
    } else {
      PaymentList.SetCol(kDate);
    }
  });
}

void GL::PaymentList_LeaveCell() {
  if (PaymentList.Col() != kBalance) rows_.LeaveCell();
}

// The balance can't be entered. Writing the column raises the events at once, so the row left is stored on the way.
void GL::PaymentList_RowColChange() {
  Trapped("GL.PaymentList_RowColChange -", [&] {
    if (PaymentList.Col() == kBalance) PaymentList.SetCol(kNotes);
    rows_.RowColChange();
  });
}

// The registry's report starts from the cell that was entered last.
void GL::PaymentList_EnterCell() {
  Trapped("GL.PaymentList_EnterCell -", [&] {
    const int row = PaymentList.Row();
    if (row < 1) return;
    const std::string text = PaymentList.DisplayText(row, PaymentList.Col());
    const auto select = [&](const char* field, const std::string& value) {
      globals.LedgerField = field;
      globals.LedgerFieldValue = value;
    };
    switch (PaymentList.Col()) {
      case kVendor:
        return select(Vendor::kByVendor, text);
      case kCategory:
        return select(Vendor::kByCategory, text);
      case kDeposit:
        return select(Vendor::kByDeposit, Vendor::kAll);
      case kDate:
        if (convert.IsDate(text)) EntryDate = convert.ToDate(text);
        return;
      default:
        return;
    }
  });
}

void GL::PaymentList_Click() {
  SelPayNum = ValLong(PaymentList.Cell(PaymentList.Row(), kTransNum));
}

void GL::PaymentList_CellButtonClick(int col) {
  Trapped("GL.PaymentList_CellButtonClick -", [&] {
    PaymentList_Click();
    if (col == kDate) {
      globals.PayDateCaller = PaymentDate::kForRegistry;
      screens.Reopen(screen::kPaymentDate, {.owner = this});
    }
    // No cell of this column has a button.
    if (col == kNum) screens.Reopen(screen::kLedgerTypes, {.owner = this});
  });
}

// Editing.

// A row with its date and an amount is priced; a new one counts as started, and an empty one is below it.
void GL::PaymentList_AfterEdit(int row) {
  rows_.AfterEdit(row, [&] {
    if (!HasDateAndAmount(row)) return false;
    const Currency payment = FormatAmount(row, kPayment);
    const Currency deposit = FormatAmount(row, kDeposit);
    const Currency previous = row > 1 ? AmountIn(row - 1, kBalance) : Currency();
    PaymentList.SetCell(row, kBalance, convert.CurrencyText(previous - payment + deposit));
    if (PaymentList.Cell(row, kTransNum).empty()) {
      PaymentList.SetRows(PaymentList.Rows() + 1);
      PaymentList.SetCell(row, kTransNum, "0");
    }
    return true;
  });
}

bool GL::HasDateAndAmount(std::int32_t row) const {
  const auto isFilled = [&](int col) { return !PaymentList.Cell(row, col).empty(); };
  return isFilled(kDate) && (isFilled(kPayment) || isFilled(kDeposit));
}

Currency GL::FormatAmount(std::int32_t row, int col) {
  const std::string text = PaymentList.Cell(row, col);
  if (!text.empty()) PaymentList.SetCell(row, col, convert.CurrencyText(std::string_view(text)));
  return AmountIn(row, col);
}

Currency GL::AmountIn(std::int32_t row, int col) const {
  const std::string text = PaymentList.Cell(row, col);
  return text.empty() ? Currency() : convert.ToCurrency(text);
}

// Storing.

// All is read before the connection opens, so that what can't be read leaves none open. OldRow goes down to the empty
// row with the balances: the next move counts as leaving that one.
void GL::StoreRow(std::int32_t row) {
  if (!HasDateAndAmount(row)) return;
  const auto cell = [&](int col) { return PaymentList.Cell(row, col); };
  const Object<Vendor> entry = globals.oVendor;
  entry->TransNum = ValLong(cell(kTransNum));
  entry->TransDate = convert.ToDate(cell(kDate));
  entry->Checknum = cell(kNum);
  entry->LedgerVendor = cell(kVendor);
  entry->Payment = AmountIn(row, kPayment);
  entry->Category = PaymentList.DisplayText(row, kCategory);
  entry->Cleared = !cell(kCleared).empty() && cell(kCleared) != "0";
  entry->Deposit = AmountIn(row, kDeposit);
  entry->LedgerNotes = cell(kNotes);
  entry->OpenCn();
  entry->SaveLedgerEntry();
  entry->CloseCn();
  PaymentList.SetCell(row, kTransNum, convert.ToText(std::int32_t{entry->TransNum}));
  CalcBal(rows_.OldRow);
}

// The first row's balance goes in as a plain number until the next load.
void GL::CalcBal(std::int32_t& row) {
  Trapped("GL.CalcBal -", [&] {
    const auto change = [&](std::int32_t at) { return AmountIn(at, kDeposit) - AmountIn(at, kPayment); };
    const auto hasBalance = [&](std::int32_t at) { return !PaymentList.Cell(at, kBalance).empty(); };
    if (hasBalance(1)) PaymentList.SetCell(1, kBalance, convert.ToText(change(1)));
    for (; row < PaymentList.Rows() && hasBalance(row); ++row) {
      if (row == 1) continue;
      const Currency balance = AmountIn(row - 1, kBalance) + change(row);
      PaymentList.SetCell(row, kBalance, convert.CurrencyText(balance));
    }
    ShowBalances();
  });
}

void GL::ShowBalances() {
  const Object<Vendor> ledger = globals.oVendor;
  ledger->OpenCn();
  lblCurBal.SetCaption(convert.CurrencyText(ledger->LedgerCurrentBal()));
  lblEndBal.SetCaption(convert.CurrencyText(ledger->LedgerEndBal()));
  ledger->CloseCn();
}

// Buttons.

// A row must have been clicked since the load; the marked one goes, also if the cursor came to it without a click. The
// cursor goes up by one in any case.
void GL::btnDelete_Click() {
  Trapped("GL.btnDelete_Click -", [&] {
    const int row = PaymentList.Row();
    if (SelPayNum != 0) SelPayNum = ValLong(PaymentList.Cell(row, kTransNum));
    if (SelPayNum != 0 && AskYesNo("Delete selected legder entry?", "Delete ledger entry?")) {
      DeletePending = true;
      SetPayments();
    }
    PaymentList.SetRow(std::clamp(row - 1, 0, PaymentList.Rows() - 1));
  });
}

// The window.

void GL::Form_Resize() {
  Trapped("GL.Form_Resize -", [&] {
    const Twips width = ScaleWidth();
    const Twips height = ScaleHeight();
    if (width >= 160) PaymentList.SetWidth(width - 160);
    if (width >= 20) PaymentList.SetLeft(20);
    if (height >= 1500) PaymentList.SetHeight(height - 1500);
    if (height >= 700) PaymentList.SetTop(700);
    if (width >= 2300) Label3.SetLeft(width - 2300);
    if (height > 650) Label3.SetTop(height - 650);
    lblEndBal.SetLeft(Label3.Left() + 1200);
    lblEndBal.SetTop(Label3.Top() - 15);
    if (width >= 4600) Label2.SetLeft(width - 4600);
    if (height > 650) Label2.SetTop(height - 650);
    lblCurBal.SetLeft(Label2.Left() + 1200);
    lblCurBal.SetTop(Label2.Top() - 15);
    if (width >= 160) Frame2.SetWidth(width - 160);
    if (width >= 20) Frame2.SetLeft(20);
    Frame1.SetWidth(Frame2.Width() - Frame1.Left());
  });
}

void GL::Form_Unload() {
  rows_.Close();
  Trapped("GL.Form_Unload -", [&] { WriteGeometry(kName); });
}

void GL::Form_Terminate() {
  IgnoringErrors(
      [&] {
        if (IsOpen(globals.rsVendors.Share())) globals.rsVendors->Close();
      },
      [&] { globals.rsVendors.Release(); });
}

}  // namespace norvane
