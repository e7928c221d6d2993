#include "reports/PrtRegistry.h"

#include "core/Characters.h"
#include "data/Client.h"
#include "data/Vendor.h"
#include "forms/DatePair.h"
#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

using pages::TableBorder;

constexpr TableKind kAllVendorsTable{TableBorder::Grid, "^1in|^0.75in|1.75in|2in|>1in;",
                                     "Date|Num|Vendor|Category|Payment;"};
constexpr TableKind kVendorTable{TableBorder::Grid, "^1in|^0.75in|2in|>1in;", "Date|Num|Category|Payment;"};
constexpr TableKind kCategoryTable{TableBorder::Grid, "^1in|^0.75in|1.75in|>1in;", "Date|Num|Vendor|Payment;"};
constexpr TableKind kDepositTable{TableBorder::List, "1in|>1in|3in;", "Date|Deposit|Notes;"};
// What comes before the total: an empty row, and the place of the word. That of the deposits is made for a wider table,
// so that their list shows no total.
constexpr const char* kFiveColumnClosing = "||||;|||Total|";
constexpr const char* kFourColumnClosing = "|||;||Total|";

}  // namespace

PrtRegistry::PrtRegistry(Program& host) : VSregistryReport(host, kName, "Print Registry") {
  using namespace layout;
  SetFramedLayout(
      Frame1, Column({Group("Payments To:", Column({OptAll, OptVendor, OptCategory, OptDeposits})),
                      Fields({Field("Vendor/Category:", CmbPrintCrit), DateField("Since:", txtSinceDate, DTPicker1)}),
                      Strip({Space(), btnGo}), Space()}));
  OptAll.Click = [this] { OptAll_Click(); };
  OptVendor.Click = [this] { OptVendor_Click(); };
  OptCategory.Click = [this] { OptCategory_Click(); };
  OptDeposits.Click = [this] { OptDeposits_Click(); };
  WritePickedDate(DTPicker1, txtSinceDate);
  btnGo.Click = [this] { btnGo_Click(); };
}

// The client is read for nothing but its errors.
void PrtRegistry::Form_Load() {
  Build("PrtRegistry.Form_Load -", [&] {
    globals.rsLedger = std::make_shared<Recordset>();
    SelectOption();
    CmbPrintCrit.SetText(globals.LedgerFieldValue);
    globals.InvoiceSince = Date::FromYearMonthDay((desktop.Today() - 365).Year(), 1, 1);
    SetDates(DTPicker1, txtSinceDate, globals.InvoiceSince);
    ReadEntries();
    const Object<Client> client = globals.oClient;
    client->OpenCn();
    client->GetClient(globals.CurCustNum);
    client->CloseCn();
    ShowPreview();
  });
}

// What is chosen.

// Switching an option on raises its Click, which fills the list.
void PrtRegistry::SelectOption() {
  if (globals.LedgerField == Vendor::kByVendor) OptVendor.SetValue(true);
  if (globals.LedgerField == Vendor::kByCategory) OptCategory.SetValue(true);
  if (globals.LedgerField == Vendor::kByDeposit) {
    OptDeposits.SetValue(true);
    CmbPrintCrit.SetEnabled(false);
  }
}

void PrtRegistry::OptAll_Click() {
  globals.LedgerFieldValue = "all";
  CmbPrintCrit.SetText("All");
  CmbPrintCrit.SetEnabled(false);
  globals.LedgerField = Vendor::kByVendor;
}

void PrtRegistry::OptVendor_Click() {
  Offer(Vendor::kByVendor);
  GetVendors();
}

void PrtRegistry::OptCategory_Click() {
  Offer(Vendor::kByCategory);
  GetCategories();
}

// The combo stays as it was.
void PrtRegistry::OptDeposits_Click() {
  globals.LedgerField = Vendor::kByDeposit;
}

void PrtRegistry::Offer(const char* field) {
  globals.LedgerField = field;
  CmbPrintCrit.SetEnabled(true);
}

// The registry lets the list go as it closes.
void PrtRegistry::GetVendors() {
  Trapped("PrtRegistry.GetVendors -", [&] {
    if (!IsOpen(globals.rsVendors.Share())) {
      const Object<Vendor> vendor = globals.oVendor;
      vendor->OpenCn();
      globals.rsVendors = vendor->GetAllVendors();
      vendor->CloseCn();
    }
    ListChoices(globals.rsVendors, "Company");
  });
}

void PrtRegistry::GetCategories() {
  Trapped("PrtRegistry.GetCategories -", [&] { ListChoices(globals.rsExpenseTypes, "Type"); });
}

void PrtRegistry::ListChoices(const Object<Recordset>& choices, const char* field) {
  CmbPrintCrit.Clear();
  if (choices->RecordCount() == 0) return;
  for (choices->MoveFirst(); !choices->Eof(); choices->MoveNext()) CmbPrintCrit.AddItem(choices->Text(field));
}

// The registry's cursor may have gone on meanwhile, so the field is taken from the options too.
void PrtRegistry::btnGo_Click() {
  Build("PrtRegistry.btnGo_Click -", [&] {
    if (OptAll.Value() || OptVendor.Value()) globals.LedgerField = Vendor::kByVendor;
    if (OptCategory.Value()) globals.LedgerField = Vendor::kByCategory;
    if (OptDeposits.Value()) globals.LedgerField = Vendor::kByDeposit;
    globals.LedgerFieldValue = CmbPrintCrit.Text();
    ReadEntries();
    ShowPreview();
  });
}

void PrtRegistry::ReadEntries() {
  const Date since = convert.ToDateFromMask(txtSinceDate.Text());
  const Object<Vendor> ledger = globals.oVendor;
  ledger->OpenCn();
  globals.rsLedger = ledger->LedgerEntries(globals.LedgerField, globals.LedgerFieldValue, since);
  ledger->CloseCn();
}

// The pages.

void PrtRegistry::ShowPreview() {
  if (globals.LedgerField == Vendor::kByDeposit) DepositPreview();
  if (globals.LedgerField == Vendor::kByVendor) VendorPaymentPreview();
  if (globals.LedgerField == Vendor::kByCategory) CategoryPaymentPreview();
}

void PrtRegistry::VendorPaymentPreview() {
  Build("PrtRegistry.VendorPaymentPreview -", [&] {
    StartPayments();
    const bool allVendors = EqualNoCase(CmbPrintCrit.Text(), Vendor::kAll);
    ReportTable table(VSregistry, convert, allVendors ? kAllVendorsTable : kVendorTable);
    ListEntries(table, allVendors ? kFiveColumnClosing : kFourColumnClosing, [&](const Recordset& entry) {
      table.Cell(entry.Field("Date"));
      table.Cell(entry.Field("Checknum"));
      if (allVendors) table.Cell(entry.Field("Vendor"));
      table.Cell(entry.Field("Category"));
      table.Cell(Money{entry.Field("Payment")});
      table.EndRow();
    });
  });
}

void PrtRegistry::CategoryPaymentPreview() {
  Build("PrtRegistry.CategoryPaymentPreview -", [&] {
    StartPayments();
    ReportTable table(VSregistry, convert, kCategoryTable);
    ListEntries(table, kFourColumnClosing, [&](const Recordset& entry) {
      table.Row(entry.Field("Date"), entry.Field("Checknum"), entry.Field("Vendor"), Money{entry.Field("Payment")});
    });
  });
}

void PrtRegistry::DepositPreview() {
  Build("PrtRegistry.DepositPreview -", [&] {
    StartEntries(globals.LedgerFieldValue + "|Registry Report|" + convert.ToText(desktop.Today()));
    ReportTable table(VSregistry, convert, kDepositTable);
    ListEntries(table, kFiveColumnClosing, [&](const Recordset& entry) {
      table.Row(entry.Field("Date"), Money{entry.Field("Deposit")}, entry.Field("Notes"));
    });
  });
}

void PrtRegistry::StartPayments() {
  StartEntries("Registry entries for: " + globals.LedgerFieldValue + "||" + convert.ToText(desktop.Today()));
}

void PrtRegistry::StartEntries(const std::string& header) {
  VSregistry.Clear();
  StartList("Registry Report", header);
  VSregistry.WriteParagraph("");
}

/// Adds the rows, and the closing ones with the sum of the payments, whatever the list shows. A list without entries
/// has no total.
template <class AddRow>
void PrtRegistry::ListEntries(ReportTable& table, const char* closing, AddRow addRow) {
  const Object<Recordset> entries = globals.rsLedger;
  if (entries->RecordCount() > 0) {
    Currency total;
    for (entries->MoveFirst(); !entries->Eof(); entries->MoveNext()) {
      addRow(*entries);
      total = total + entries->Currency("Payment");
    }
    table.Raw(closing + convert.CurrencyText(total) + ";");
  }
  table.EndList("0.2in");
  VSregistry.EndDocument();
}

}  // namespace norvane
