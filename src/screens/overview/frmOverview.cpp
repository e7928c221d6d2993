#include "screens/overview/frmOverview.h"

#include <array>
#include <utility>

#include "core/FileNames.h"
#include "core/Val.h"
#include "data/Standing.h"
#include "screens/clients/Customer.h"
#include "screens/find/GoTo.h"

namespace norvane {

namespace {

constexpr std::array<const char*, 4> kAgeNames{"Up to 30 days", "31 to 60 days", "61 to 90 days", "Over 90 days"};
constexpr std::array<const char*, 12> kMonthNames{"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};

/// The last day of a month that begins with `first`.
Date EndOfMonth(Date first) {
  const int next = first.Year() * 12 + first.Month();
  return Date::FromYearMonthDay(next / 12, next % 12 + 1, 1) - 1;
}

}  // namespace

frmOverview::frmOverview(Program& host)
    : Form(host, kName, {.caption = "Overview of the Business", .width = 16200, .height = 10800}) {
  using namespace layout;
  SetLayout(Column(
      {Strip({btnRefresh, btnOpen, Space(), btnExit}), Stretch(Row({Stretch(OverviewPage, 2), Stretch(FigureList)}))}));
  SetExitButton(btnExit);
  btnRefresh.Click = [this] { ReadFigures(); };
  btnOpen.Click = [this] { OpenFigure(FigureList.Row() - 1); };
  btnExit.Click = [this] { Unload(); };
  FigureList.DblClick = [this] { OpenFigure(FigureList.Row() - 1); };
  FigureList.KeyPress = [this](int keyAscii) {
    if (keyAscii == static_cast<int>(Key::Enter)) OpenFigure(FigureList.Row() - 1);
  };
  OverviewPage.LinkClick = [this](const std::string& target) { OpenFigure(ValLong(target)); };
}

void frmOverview::Form_Load() {
  OverviewPage.SetChoice(ZoomChoice::PageWidth);
  FigureList.SetSortable(false);  // a row opens the figure of its place
  FigureList.SetFocus();
  ReadFigures();
}

void frmOverview::ReadFigures() {
  Trapped("Overview.ReadFigures -", [&] {
    Standing standing(workspace);
    standing.InitAccess(workspace.File(kDatabaseFile));
    standing.Read();
    figures_.clear();
    AddFigures(standing);
    FigureList.SetColumns({{"Figure", 2200}, {">Today", 2800}});
    FigureList.SetRows(1);
    for (const Figure& figure : figures_) FigureList.AddItem(GridRow({figure.name, figure.value}));
    FigureList.SetRow(1);
    WriteOverview(OverviewPage, figures_, standing, globals.CoName, convert.LongDateText(desktop.Today()));
  });
}

void frmOverview::Add(std::string name, std::string value, std::function<void()> open) {
  figures_.push_back({std::move(name), std::move(value), std::move(open)});
}

// In the order in which the page shows them.
void frmOverview::AddFigures(const Standing& standing) {
  const auto money = [&](Currency amount) { return convert.CurrencyText(amount); };
  const auto count = [&](std::int32_t number) { return convert.ToText(number); };
  const auto income = standing.hasReceiptsThisYear ? Choosing(&Customer::mnuIncomeStatement) : nullptr;
  Add("Owed in all", money(standing.owed), Choosing(&Customer::mnuBals));
  Add("Sales this year", money(standing.salesThisYear), income);
  Add("Received this year", money(standing.receivedThisYear), income);
  Add("Registry, current balance", money(standing.registryCurrent), Choosing(&Customer::mnuPay));
  AddMonths(standing);
  for (std::size_t i = 0; i < kAgeNames.size(); ++i) Add(kAgeNames[i], money(standing.aged[i]));
  Add("Credits", money(standing.credits));
  for (const auto& best : standing.clients) Add(best.name, money(best.sales), ShowingSalesOf(best.number));
  for (const auto& best : standing.items) Add(best.name, money(best.sales), Choosing(&Customer::mnuBestSellers));
  Add("Items at or below par", count(standing.itemsAtPar), Choosing(&Customer::mnuInStock));
  Add("Back orders to order", count(standing.toOrder), Choosing(&Customer::mnuOrdering));
  Add("Back orders on order", count(standing.onOrder), Choosing(&Customer::mnuOrdered));
  Add("Registry, ending balance", money(standing.registryEnding), Choosing(&Customer::mnuPay));
}

// The income statement reports a period without receipts as an error, so such a month opens nothing.
void frmOverview::AddMonths(const Standing& standing) {
  for (const Standing::Month& month : standing.months) {
    const Date first = month.first;
    const std::string name =
        std::string(kMonthNames[static_cast<std::size_t>(first.Month() - 1)]) + " " + convert.ToText(first.Year());
    const std::string value = convert.CurrencyText(month.sales) + " / " + convert.CurrencyText(month.received);
    std::function<void()> open;
    if (month.hasReceipts) open = [this, first] { ShowIncome(first, EndOfMonth(first)); };
    Add(name, value, open);
  }
}

std::function<void()> frmOverview::OnMain(std::function<void(Customer&)> action) {
  return [this, action = std::move(action)] {
    if (auto* customer = screens.Find<Customer>()) action(*customer);
  };
}

std::function<void()> frmOverview::Choosing(MenuEntry Customer::*entry) {
  return OnMain([entry](Customer& customer) { (customer.*entry).Choose(); });
}

std::function<void()> frmOverview::ShowingSalesOf(std::int32_t client) {
  return OnMain([client](Customer& customer) {
    if (customer.MarkClient(client)) customer.btnDetails.Press();
  });
}

void frmOverview::ShowIncome(Date beginning, Date ending) {
  if (!screens.Has(screen::kPrtIncome)) return;
  screens.Unload(screen::kPrtIncome);
  globals.PeriodBeginning = beginning;
  globals.PeriodEnd = ending;
  screens.Show(screen::kPrtIncome);
}

void frmOverview::OpenFigure(int index) {
  Trapped("Overview.OpenFigure -", [&] {
    if (index < 0 || index >= static_cast<int>(figures_.size())) return;
    const auto open = figures_[static_cast<std::size_t>(index)].open;
    if (!open) return;
    ProvideInvoice(program);
    open();
  });
}

}  // namespace norvane
