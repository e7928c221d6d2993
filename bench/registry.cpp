// The check register: opening it, the balances below an edited row, scrolling, and its report.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "EmptyDesktop.h"
#include "Measuring.h"
#include "data/Vendor.h"
#include "forms/Program.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "screens/registry/GL.h"
#include "store/Recordset.h"
#include "support/Database.h"

namespace norvane {
namespace {

/// The program with so many entries in the ledger.
struct Ledger {
  explicit Ledger(std::int64_t entries) {
    database.Execute(
        "insert into tb_Client (CustNum, Lname, Fname, Discount) values (1001, 'Byron', 'Ada', 0);"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 50) "
        "insert into tb_Vendor (VendorNum, Company) select 1000 + i, 'Vendor ' || i from n;"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
        std::to_string(entries) +
        ") insert into tb_GL (TransNum, Date, CheckNum, Vendor, Category, Payment, Deposit, Cleared, Notes) "
        "select 1000 + i, 40000 + i * 6000 / " +
        std::to_string(entries) +
        ", 2000 + i, 'Vendor ' || (i % 50 + 1), 'Utilities', iif(i % 4, i % 900 * 1700, 0), "
        "iif(i % 4, 0, i % 900 * 6100), -(i % 2), 'Bill ' || i from n");
    RegisterScreens(program);
    program.Start(Customer::kName);
  }
  GL& Screen() { return program.screens.Touch<GL>(); }
  /// The same rows as a prototype would read them: every field as it is, joined.
  std::vector<std::string> ReadByHand() {
    std::vector<std::string> rows;
    Vendor& vendor = *program.globals.oVendor;
    vendor.OpenCn();
    const auto entries = vendor.LedgerEntriesAll();
    vendor.CloseCn();
    for (; !entries->Eof(); entries->MoveNext()) {
      std::string row;
      for (int field = 0; field < entries->FieldCount(); ++field) {
        row += '\t' + program.workspace.convert.ToText(entries->Field(field));
      }
      rows.push_back(std::move(row));
    }
    return rows;
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
};

void Open(benchmark::State& state) {
  Ledger ledger(state.range(0));
  bench::Compare(
      state,
      [&] {
        ledger.program.screens.Show(GL::kName);
        ledger.program.screens.Unload(GL::kName);
      },
      [&] { benchmark::DoNotOptimize(ledger.ReadByHand()); }, 2.0);
}
BENCHMARK(Open)->Arg(500)->Arg(5'000)->Arg(50'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// An edit of the row: the save, all balances below it and both labels.
void LeaveEdited(benchmark::State& state, bool last, double allowed) {
  Ledger ledger(state.range(0));
  ledger.program.screens.Show(GL::kName);
  Grid& list = ledger.Screen().PaymentList;
  const int row = last ? list.Rows() - 2 : 1;
  int amount = 0;
  bench::Measure(state, allowed, [&] {
    list.UserClick(row, GL::kPayment);
    list.UserText(std::to_string(++amount));
    list.UserKey(row == 1 ? Key::Down : Key::Up);
  });
}
BENCHMARK_CAPTURE(LeaveEdited, FirstRow, false, 0.060)
    ->Arg(500)
    ->Arg(50'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LeaveEdited, LastRow, true, 0.015)
    ->Arg(500)
    ->Arg(50'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// A page of rows with all cells that come into sight.
void ScrollByAPage(benchmark::State& state) {
  constexpr int kRowsInSight = 30;
  Ledger ledger(state.range(0));
  ledger.program.screens.Show(GL::kName);
  Grid& list = ledger.Screen().PaymentList;
  list.SetVisibleRows(kRowsInSight);
  int top = 1;
  bench::Measure(state, 0.001, [&] {
    list.SetTopRow(top);
    for (int row = list.TopRow(); row < list.TopRow() + kRowsInSight; ++row) {
      for (int col = 0; col < list.Cols(); ++col) benchmark::DoNotOptimize(list.DisplayText(row, col));
    }
    top = (top + 7919) % (list.Rows() - kRowsInSight) + 1;
  });
}
BENCHMARK(ScrollByAPage)->Arg(500)->Arg(50'000)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
