#include "data/Standing.h"

#include <algorithm>
#include <map>

#include "core/Clock.h"
#include "core/FileNames.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "data/Reports.h"
#include "data/Statement.h"
#include "data/Vendor.h"

namespace norvane {

namespace {

constexpr const char* kExtras[] = {"ShippingCharge", "Interest", "Tax"};

/// The lines alone where a charge is missing.
Currency TotalOf(const Recordset& invoice, Currency lines) {
  double total = lines.ToDouble();
  if (invoice.IsNull("Discount")) return lines;
  total -= invoice.Double("Discount") / 100 * total;
  for (const char* extra : kExtras) {
    if (invoice.IsNull(extra)) return lines;
    total += invoice.Currency(extra).ToDouble();
  }
  return Currency::FromDouble(total);
}

/// Counts months from one to another day's.
int MonthsBetween(Date from, Date to) {
  return (to.Year() - from.Year()) * 12 + to.Month() - from.Month();
}

bool IsBetter(const Standing::Best& a, const Standing::Best& b) {
  return a.sales != b.sales ? a.sales > b.sales : a.name < b.name;
}

}  // namespace

void Standing::Read() {
  const Date today = workspace_.clock.Today();
  months.clear();
  for (int back = kMonths - 1; back >= 0; --back) {
    const int month = today.Year() * 12 + today.Month() - 1 - back;
    months.push_back({Date::FromYearMonthDay(month / 12, month % 12 + 1, 1), {}, {}});
  }
  OpenCn();
  const std::vector<Sale> sales = ReadSales();
  AddUpMonths(sales);
  AddReceipts();
  CountStock();
  CloseCn();
  AgeBalances(sales);
  FindBestClients();
  FindBestItems();
}

// Both come in the order of the invoices' numbers.
std::vector<Standing::Sale> Standing::ReadSales() {
  const auto lines = DataObject::Read("select InvoiceNum, sum(Amount) as Lines from tb_trans group by InvoiceNum");
  std::map<std::int32_t, Currency> sums;
  for (; !lines->Eof(); lines->MoveNext()) {
    if (!lines->IsNull("InvoiceNum")) sums.emplace(lines->Long("InvoiceNum"), SumOrZero(*lines, "Lines"));
  }
  const auto invoices =
      DataObject::Read("select InvoiceNum, CustNum, [Date], Discount, ShippingCharge, Interest, Tax from tb_Invoice");
  std::vector<Sale> sales;
  for (; !invoices->Eof(); invoices->MoveNext()) {
    if (invoices->IsNull("CustNum") || invoices->IsNull("Date")) continue;
    const auto sum = sums.find(invoices->Long("InvoiceNum"));
    sales.push_back({invoices->Long("CustNum"), invoices->Date("Date"),
                     TotalOf(*invoices, sum == sums.end() ? Currency() : sum->second)});
  }
  return sales;
}

void Standing::AddUpMonths(const std::vector<Sale>& sales) {
  const Date today = workspace_.clock.Today();
  for (const Sale& sale : sales) {
    const int month = MonthsBetween(months.front().first, sale.date);
    if (month >= 0 && month < kMonths) months[static_cast<std::size_t>(month)].sales += sale.total;
    if (sale.date.Year() == today.Year() && sale.date <= today) salesThisYear += sale.total;
  }
}

void Standing::AddReceipts() {
  const Date today = workspace_.clock.Today();
  const auto payments =
      DataObject::Read(sql::Statement("select [Date], Amount from tb_Receive where [Date] >= ", months.front().first));
  for (; !payments->Eof(); payments->MoveNext()) {
    if (payments->IsNull("Amount")) continue;
    const Date date = payments->Date("Date");
    const int month = MonthsBetween(months.front().first, date);
    if (month < kMonths) {
      months[static_cast<std::size_t>(month)].received += payments->Currency("Amount");
      months[static_cast<std::size_t>(month)].hasReceipts = true;
    }
    if (date.Year() != today.Year() || date > today) continue;
    receivedThisYear += payments->Currency("Amount");
    hasReceiptsThisYear = true;
  }
}

/// What a client owes is what the latest invoices come to: earlier ones have been paid first.
void Standing::AgeBalances(std::vector<Sale> sales) {
  const Date today = workspace_.clock.Today();
  const Date first = Date::FromYearMonthDay(1981, 1, 1);
  Client client(workspace_);
  client.InitAccess(workspace_.File(kDatabaseFile));
  client.OpenCn();
  const Object<Recordset> balances = client.ClientBals();
  client.CloseCn();
  std::map<std::int32_t, Currency> open;
  for (; !balances->Eof(); balances->MoveNext()) {
    const Currency balance = balances->Currency("Bal");
    owed += balance;
    balance < Currency() ? credits += balance : open[balances->Long("CustNum")] = balance;
  }
  std::stable_sort(sales.begin(), sales.end(), [](const Sale& a, const Sale& b) { return a.date > b.date; });
  for (const Sale& sale : sales) {
    const auto balance = open.find(sale.client);
    if (balance == open.end() || sale.date <= first || sale.date > today + 1) continue;
    const Currency part = std::clamp(sale.total, Currency(), balance->second);
    const int age = today.Day() - sale.date.Day();
    aged[age <= 30 ? 0 : age <= 60 ? 1 : age <= 90 ? 2 : 3] += part;
    balance->second -= part;
  }
  // What no invoice explains is of no date.
  for (const auto& [number, rest] : open) aged[3] += rest;
}

void Standing::FindBestClients() {
  const Date today = workspace_.clock.Today();
  Invoice invoices(workspace_);
  invoices.InitAccess(workspace_.File(kDatabaseFile));
  invoices.OpenCn();
  const Object<Recordset> list = invoices.GetAllInvoices(Date::FromYearMonthDay(today.Year(), 1, 1));
  invoices.CloseCn();
  std::map<std::int32_t, Best> byNumber;
  for (; !list->Eof(); list->MoveNext()) {
    if (list->IsNull("Charge")) continue;
    Best& best = byNumber[list->Long("CustNum")];
    if (best.name.empty()) best = {list->Long("CustNum"), list->Text("Lname") + ", " + list->Text("Fname"), {}};
    best.sales += TotalOf(*list, list->Currency("Charge"));
  }
  for (const auto& [number, best] : byNumber) clients.push_back(best);
  std::sort(clients.begin(), clients.end(), IsBetter);
  clients.resize(std::min(clients.size(), kBest));
}

// As the report on the best sellers opens.
void Standing::FindBestItems() {
  Reports reports(workspace_);
  reports.BegDate = Date::FromYearMonthDay(2001, 1, 1);
  reports.EndDate = workspace_.clock.Today();
  reports.InitAccess(workspace_.File(kDatabaseFile));
  reports.OpenCn();
  const Object<Recordset> sales = reports.rsInventorySales();
  reports.CloseCn();
  sales->Sort("TotalSales desc");
  for (; !sales->Eof() && items.size() < kBest; sales->MoveNext()) {
    items.push_back({sales->Long("ItemNum"), sales->Text("Description"), SumOrZero(*sales, "TotalSales")});
  }
}

void Standing::CountStock() {
  itemsAtPar = DataObject::Read("select ItemNum from tb_Inventory where Par > 0 and InStock <= Par")->RecordCount();
  Invoice invoices(workspace_);
  invoices.InitAccess(workspace_.File(kDatabaseFile));
  invoices.OpenCn();
  toOrder = invoices.GetBackOrderItems()->RecordCount();
  onOrder = invoices.GetBackOrderedItems()->RecordCount();
  invoices.CloseCn();
  Vendor ledger(workspace_);
  ledger.InitAccess(workspace_.File(kDatabaseFile));
  ledger.OpenCn();
  registryCurrent = ledger.LedgerCurrentBal();
  registryEnding = ledger.LedgerEndBal();
  ledger.CloseCn();
}

}  // namespace norvane
