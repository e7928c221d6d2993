// What finding costs of the processor's time: a keystroke over a large business, and reading it all.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <string>

#include "EmptyDesktop.h"
#include "Measuring.h"
#include "data/FindIndex.h"
#include "data/FindSearch.h"
#include "data/Standing.h"
#include "forms/Program.h"
#include "support/Database.h"

namespace norvane {
namespace {

/// 100,000 clients, 100,000 invoices of two lines each, 50,000 ledger entries.
struct Office {
  Office() {
    const auto count = [](int rows) {
      return "with recursive n(i) as (select 1 union all select i + 1 from n where i < " + std::to_string(rows) + ") ";
    };
    database.Execute(
        count(100'000) +
        "insert into tb_Client (CustNum, Lname, Fname, Company, City, HomePhone, Email, Discount) select i, 'Lastname' "
        "|| i, 'First' || i, 'Company ' || i % 977, 'Springfield', '(555) 0' || (100000 + i), 'first' || i || "
        "'@example.org', 0 from n;" +
        count(100'000) +
        "insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Interest) "
        "select i, i % 25000 + 1, 46348 - i * 7 % 700, 'Goods of oak ' || i, 0, 10000, 5000, 0 from n;" +
        count(200'000) +
        "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount) select i, i / 2 + 1, 1, 2, 170000 from n;" +
        count(50'000) +
        "insert into tb_GL (TransNum, Date, CheckNum, Vendor, Payment, Deposit, Cleared, Category, Notes) select i, "
        "46348 - i % 320, i, 'Paper Mill', i * 100, 0, -1, 'Rent', 'Entry ' || i from n");
    index.InitAccess(database.File());
    index.ReadIfChanged();
    while (index.Reading()) index.ReadSlice();
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
  FindIndex index{program.workspace};
};

Office& TheOffice() {
  static Office office;
  return office;
}

constexpr const char* kTyped[] = {"a", "o", "oak", "lastname99", "springfield 99999", "(555) 0123", "12.34", "zzz"};

/// The whole search of a keystroke, to 50 milliseconds.
void Keystroke(benchmark::State& state) {
  Office& office = TheOffice();
  const char* typed = kTyped[state.range(0)];
  state.SetLabel(typed);
  bench::Measure(state, 0.050, [&] {
    FindSearch search(office.index.Tables(), FindWords(typed, office.program.convert));
    while (search.Step()) {
    }
    benchmark::DoNotOptimize(search.Groups());
  });
}
BENCHMARK(Keystroke)->DenseRange(0, 7)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Against a substring scan of the same fields of clients and invoices by hand.
void AgainstScan(benchmark::State& state) {
  Office& office = TheOffice();
  sqlite3* database = nullptr;
  sqlite3_open_v2(office.database.File().c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
  const auto ours = [&] {
    FindSearch search(office.index.Tables(), FindWords("lastname99", office.program.convert));
    while (search.Step()) {
    }
    benchmark::DoNotOptimize(search.Groups());
  };
  const auto byHand = [&] {
    for (const char* sql :
         {"select CustNum from tb_Client where Lname || '|' || Fname || '|' || Company || '|' || City || '|' || "
          "HomePhone || '|' || Email like '%lastname99%'",
          "select InvoiceNum from tb_Invoice where InvoiceNum || '|' || Description like '%lastname99%'"}) {
      sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
    }
  };
  bench::Compare(state, ours, byHand, 1);
  sqlite3_close(database);
}
BENCHMARK(AgainstScan)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The longest slice of reading all of it, to 50 milliseconds.
void LongestSlice(benchmark::State& state) {
  Office& office = TheOffice();
  double all = 0;
  for (auto _ : state) {
    FindIndex index(office.program.workspace);
    index.InitAccess(office.database.File());
    index.ReadIfChanged();
    double longest = 0;
    while (index.Reading()) {
      const double slice = bench::Seconds([&] { index.ReadSlice(); });
      longest = std::max(longest, slice);
      all += slice;
    }
    state.SetIterationTime(longest);
    state.counters["ratio"] = longest / 0.050;
    state.counters["limit"] = 1;
  }
  state.counters["reading_s"] = all / static_cast<double>(state.iterations());
}
BENCHMARK(LongestSlice)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The figures of the overview, over twice as many invoices as are allowed a second.
void Overview(benchmark::State& state) {
  Office& office = TheOffice();
  bench::Measure(state, 2.0, [&] {
    Standing standing(office.program.workspace);
    standing.InitAccess(office.database.File());
    standing.Read();
  });
}
BENCHMARK(Overview)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
