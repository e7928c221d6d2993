#include "reports/PrtIncome.h"

#include <utility>

#include "core/FileNames.h"
#include "data/Reports.h"
#include "forms/LongWork.h"
#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr TableKind kStatement{pages::TableBorder::None, "<2in|>1.25in;", "|;"};
constexpr std::int32_t kMostExpenseTypes = 99;
/// Total receipts, and the rows of the last two totals of a statement with eight expense types.
constexpr int kBoldRows[] = {3, 15, 17};

}  // namespace

PrtIncome::PrtIncome(Program& host) : PeriodReport(host, kName, "Print Income Statement") {
  using namespace layout;
  SetFramedLayout(
      Frame1, Column({Fields({BeginningField("Beginning:"), EndingField("Ending:")}), Row({btnGo, Space()}), Space()}));
}

void PrtIncome::Form_Load() {
  Build("PrtIncome.Form_Load -", [this] {
    const Date today = desktop.Today();
    const Date beginning = std::exchange(globals.PeriodBeginning, {});
    const Date ending = std::exchange(globals.PeriodEnd, {});
    const bool isAsked = beginning != Date();
    SetPeriod(isAsked ? beginning : Date::FromYearMonthDay(today.Year(), 1, 1), isAsked ? ending : today);
    btnGo_Click();
  });
}

// It has no trap of its own: as the form opens its errors are reported under the label of that, from the button by the
// runtime's box.
void PrtIncome::btnGo_Click() {
  IncomePreview(ReadFigures());
}

// The dates typed count, not the pickers. TotalSales leaves the shared oInvoice empty.
PrtIncome::Figures PrtIncome::ReadFigures() {
  const Object<Recordset> types = globals.rsExpenseTypes;
  if (types->RecordCount() > kMostExpenseTypes) Raise(ErrorNumber::SubscriptOutOfRange);
  Figures figures;
  Reports reports(workspace);
  reports.BegDate = convert.ToDateFromMask(txtBegDate.Text());
  reports.EndDate = convert.ToDateFromMask(txtEndDate.Text());
  reports.InitAccess(workspace.File(kDatabaseFile));
  reports.OpenCn();
  figures.Receipts = reports.Receipts();
  LongWork work(program);
  figures.TotalSales = reports.TotalSales([&] { work.Step(); });
  if (types->RecordCount() > 0) types->MoveFirst();
  for (; !types->Eof(); types->MoveNext(), work.Step()) {
    const std::string type = types->Text("Type");
    figures.expenses.push_back({type, reports.Payments(type)});
    figures.TotalExpenses += figures.expenses.back().amount;
  }
  reports.CloseCn();
  return figures;
}

void PrtIncome::IncomePreview(const Figures& figures) {
  Build("PrtIncome.IncomePreview -", [&] {
    const std::string period = txtBegDate.Text() + " - " + txtEndDate.Text();
    StartList("Income statement " + period, ListHeader("Income Statement"));
    for (const std::string& line : {std::string(), "For Period " + period, std::string()}) {
      VSregistry.WriteParagraph(line);
    }
    ReportTable table(VSregistry, convert, kStatement);
    table.Row("Total Sales", Money{figures.TotalSales});
    table.Row("Accounts Receivable", Money{figures.TotalSales - figures.Receipts});
    table.Row("Total Receipts", Money{figures.Receipts});
    table.Row("", "");
    table.Row("Expenses:", "");
    for (const Expense& expense : figures.expenses) table.Row(expense.name, Money{expense.amount});
    table.Row("", "");
    table.Row("Total Expenses", Money{figures.TotalExpenses});
    table.Row("", "");
    table.Row("Net Income", Money{figures.Receipts - figures.TotalExpenses});
    for (const int row : kBoldRows) table.Bold(row, 2);
    table.End();
    VSregistry.EndDocument();
  });
}

}  // namespace norvane
