// The list of payments: what filling the grid costs above reading the rows, and whether scrolling minds the length.

#include <benchmark/benchmark.h>
#include <string>

#include "EmptyDesktop.h"
#include "Measuring.h"
#include "data/Invoice.h"
#include "forms/Program.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "screens/sales/Receipts.h"
#include "store/Recordset.h"
#include "support/Database.h"

namespace norvane {
namespace {

/// The payments screen over so many payments of all clients.
struct Cashbook {
  explicit Cashbook(std::int64_t payments) {
    database.Execute(
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 1000) "
        "insert into tb_Client (CustNum, Lname, Fname, Discount) select 1000 + i, 'Last' || i, 'First' || i, 0 from n;"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
        std::to_string(payments) +
        ") insert into tb_Receive (TransNum, CustNum, Type, CheckNum, Date, Amount, Notes) "
        "select 1000 + i, 1001 + i % 1000, 'Check', i, 45700 + i % 600, i * 1700, 'Invoice ' || i from n");
    RegisterScreens(program);
    program.Start(Customer::kName);
    program.globals.CurCustNum = -1;
    program.screens.Show(Receipts::kName);
  }
  Receipts& Screen() { return program.screens.Touch<Receipts>(); }
  void Read() {
    Invoice& invoice = *program.globals.oInvoice;
    invoice.OpenCn();
    benchmark::DoNotOptimize(invoice.AllPayments(Date::FromYearMonthDay(2025, 1, 1), -1)->RecordCount());
    invoice.CloseCn();
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
};

/// `ratio` is the whole reload to the reading alone.
void Reload(benchmark::State& state) {
  Cashbook book(state.range(0));
  double whole = 0;
  double reading = 0;
  for (auto _ : state) {
    const double seconds = bench::Seconds([&] { book.Screen().btnGo.Press(); });
    state.SetIterationTime(seconds);
    whole += seconds;
    reading += bench::Seconds([&] { book.Read(); });
  }
  state.counters["ratio"] = whole / reading;
  state.counters["rows"] = book.Screen().PaymentList.Rows();
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}
BENCHMARK(Reload)->Arg(500)->Arg(5'000)->Arg(50'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A step of the wheel with all cells that come into sight, somewhere in the list.
void ScrollByAPage(benchmark::State& state) {
  constexpr int kRowsInSight = 30;
  Cashbook book(state.range(0));
  Grid& list = book.Screen().PaymentList;
  list.SetVisibleRows(kRowsInSight);
  int top = 1;
  for (auto _ : state) {
    list.SetTopRow(top);
    for (int row = list.TopRow(); row < list.TopRow() + kRowsInSight; ++row) {
      for (int col = 0; col < list.Cols(); ++col) benchmark::DoNotOptimize(list.DisplayText(row, col));
    }
    top = (top + 7919) % (list.Rows() - kRowsInSight) + 1;
  }
}
BENCHMARK(ScrollByAPage)->Arg(500)->Arg(50'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
