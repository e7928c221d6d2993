// What statements for all clients cost of the processor's time above their bare queries, and what their pages weigh.

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

#include "BarePages.h"
#include "ByHand.h"
#include "Measuring.h"
#include "Offscreen.h"
#include "ReportProgram.h"
#include "pages/Layout.h"
#include "reports/Billing.h"
#include "reports/PrtBilling.h"
#include "support/PinnedFontMetrics.h"

namespace norvane {
namespace {

constexpr int kClients = 1'000;
constexpr int kToday = 46'348;

/// The program over 1,000 clients with 50,000 invoices of three lines in four years, and 20,000 payments.
struct Office : bench::ReportProgram {
  Office() {
    database.Execute(
        "insert into tb_Company (Name, Statetaxrate) values ('Norvane', 5);" + Count(kClients) +
        "insert into tb_Client (CustNum, Lname, Fname, BillLname, BillFname, Discount) select i, 'Lastname' || i, "
        "'First' || i, 'Lastname' || i, 'First' || i, 0 from n;" +
        Count(50'000) +
        "insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Shippingdate, "
        "Interest) select i, i % 1000 + 1, 46348 - i * 7 % 1461, 'Goods and services ' || i, i % 7 * 1.5, 10000, 5000, "
        "40000, 0 from n;" +
        Count(150'000) +
        "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes) select i, i % 50000 + 1, 1, 2, "
        "i * 17 % 200 * 10000, 'Line' from n;" +
        Count(20'000) +
        "insert into tb_Receive (TransNum, CustNum, Date, Amount) select i, i % 1000 + 1, 46348 - i * 11 % 1461, "
        "i * 13 % 1000 * 10000 from n");
  }

  /// With the list of clients open, whose rows are not part of the statements.
  Preview& Print() {
    program.screens.Touch<Billing>();
    program.screens.Reopen(PrtBilling::kName);
    return program.screens.Touch<PrtBilling>().VSInvoice;
  }
};

constexpr const char* kInvoices =
    "SELECT tb_Client.CustNum, tb_Client.Lname, tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, "
    "tb_Invoice.Discount, tb_Invoice.ShippingCharge, tb_Invoice.Interest, tb_Invoice.Tax, Sum(tb_trans.amount), "
    "tb_Invoice.Description FROM (tb_Client INNER JOIN tb_Invoice ON tb_Client.CustNum = tb_Invoice.CustNum) "
    "LEFT JOIN tb_trans ON tb_Invoice.InvoiceNum = tb_trans.InvoiceNum GROUP BY tb_Client.CustNum, tb_Client.Lname, "
    "tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, tb_Invoice.Discount, tb_Invoice.ShippingCharge, "
    "tb_Invoice.Interest, tb_Invoice.Tax, tb_Invoice.Description HAVING tb_Client.CustNum = ?1 AND tb_Invoice.Date > "
    "?2 ORDER BY tb_Invoice.InvoiceNum DESC";

void TotalsByHand(bench::ByHand& connection, const std::vector<bench::ByHand::Row>& invoices) {
  for (const auto& invoice : invoices) {
    const int number = std::stoi(invoice[4]);
    benchmark::DoNotOptimize(
        connection.Rows("select sum(amount) as SumOfCharge from tb_trans where InvoiceNum = ?1", {number}));
    benchmark::DoNotOptimize(connection.Rows(
        "select discount, tax, shippingcharge, interest from tb_Invoice where InvoiceNum = ?1", {number}));
  }
}

/// The same queries on the same connections: one for the clients throughout, and another that is closed after each
/// balance.
void StatementsByHand(const test::Database& database, int days) {
  bench::ByHand clients(database.File());
  auto invoices = std::make_unique<bench::ByHand>(database.File());
  for (int client = 1; client <= kClients; ++client) {
    benchmark::DoNotOptimize(clients.Rows("select * from tb_Client where CustNum = ?1", {client}));
    auto owed = invoices->Rows(kInvoices, {client, 29'587});
    std::erase_if(owed, [&](const auto& invoice) { return std::stoi(invoice[3]) > kToday - days; });
    TotalsByHand(*invoices, owed);
    benchmark::DoNotOptimize(clients.Rows(
        "SELECT tb_Client.CustNum, Sum(tb_Receive.Amount) AS SumOfPay FROM tb_Receive INNER JOIN tb_Client ON "
        "tb_Receive.CustNum = tb_Client.CustNum WHERE tb_Receive.Date <= ?1 GROUP BY tb_Client.CustNum HAVING "
        "tb_Client.CustNum = ?2",
        {kToday - days, client}));
    invoices = std::make_unique<bench::ByHand>(database.File());
    TotalsByHand(*invoices, invoices->Rows(kInvoices, {client, kToday - days + 1}));
    benchmark::DoNotOptimize(invoices->Rows(
        "SELECT tb_Client.CustNum, tb_Client.Fname, tb_Client.Lname, tb_Client.Lname || ', ' || tb_Client.Fname, "
        "tb_Receive.TransNum, tb_Receive.Type, tb_Receive.CheckNum, tb_Receive.Date, tb_Receive.Amount, "
        "tb_Receive.Notes FROM tb_Client INNER JOIN tb_Receive ON tb_Client.CustNum = tb_Receive.CustNum WHERE "
        "tb_Receive.Date > ?1 AND tb_Receive.CustNum = ?2 ORDER BY tb_Receive.Date, tb_Receive.TransNum",
        {kToday - days + 1, client}));
  }
}

void StatementsForAll(benchmark::State& state) {
  Office office;
  office.program.screens.Touch<Billing>().txtDays.SetText("365");
  if (office.program.screens.Touch<Billing>().CustList2.Rows() != kClients + 1) state.SkipWithError("clients missing");
  bench::Compare(
      state, [&] { office.Print(); }, [&] { StatementsByHand(office.database, 365); }, 1.3);
}
BENCHMARK(StatementsForAll)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

/// `ratio` is bytes of document and pages together to 25 KB a page.
void PagesOfStatements(benchmark::State& state) {
  const pages::PinnedFontMetrics metrics;
  Office office;
  const std::size_t before = bench::BytesInUse();
  const pages::Document& document = *office.Print().Recorded();
  const std::size_t recorded = bench::BytesInUse();
  pages::Pages pages;
  for (auto _ : state) pages = pages::LayOut(document, metrics);
  const auto count = static_cast<double>(pages.pages.size());
  state.counters["pages"] = count;
  state.counters["document/page"] = static_cast<double>(recorded - before) / count;
  state.counters["bytes/page"] = static_cast<double>(bench::BytesInUse() - before) / count;
  state.counters["ratio"] = static_cast<double>(bench::BytesInUse() - before) / count / 25'000;
  state.counters["limit"] = 1;
}
BENCHMARK(PagesOfStatements)->Unit(benchmark::kMillisecond);

void StatementsAsPdf(benchmark::State& state) {
  Office office;
  bench::CompareAsPdf(state, *office.Print().Recorded());
}
BENCHMARK(StatementsAsPdf)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(9);

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
  return norvane::bench::RunOffscreen(argc, argv);
}
