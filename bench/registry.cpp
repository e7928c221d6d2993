// The check register: opening it, the balances below an edited row, scrolling, and its report.

#include <benchmark/benchmark.h>
#include <string>

#include "BarePages.h"
#include "ByHand.h"
#include "EmptyDesktop.h"
#include "Measuring.h"
#include "Offscreen.h"
#include "data/Vendor.h"
#include "forms/Program.h"
#include "reports/PrtRegistry.h"
#include "reports/RegisterReports.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "screens/registry/GL.h"
#include "support/Database.h"
#include "ui/QtDesktop.h"

namespace norvane {
namespace {

/// The program with so many entries in the ledger, in windows or without.
template <class Outside>
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
    RegisterReports(program);
    program.Start(Customer::kName);
  }
  GL& Screen() { return program.screens.Touch<GL>(); }
  void ShowAndClose() {
    program.screens.Show(GL::kName);
    desktop.DoEvents();
    program.screens.Unload(GL::kName);
  }

  test::Database database;
  Outside desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
};

/// What a screen costs by itself counts for more where there are few entries.
void Open(benchmark::State& state) {
  Ledger<EmptyDesktop> ledger(state.range(0));
  bench::Compare(
      state, [&] { ledger.ShowAndClose(); },
      [&] {
        bench::ByHand hand(ledger.database.File());
        benchmark::DoNotOptimize(hand.Rows("select * from tb_GL order by \"Date\", CheckNum"));
      },
      state.range(0) < 5'000 ? 4.0 : 2.0);
}
BENCHMARK(Open)->Arg(500)->Arg(5'000)->Arg(50'000)->UseManualTime()->Unit(benchmark::kMillisecond);

void OpenInAWindow(benchmark::State& state) {
  Ledger<ui::QtDesktop> ledger(state.range(0));
  ledger.ShowAndClose();
  bench::Measure(state, 0.25, [&] { ledger.ShowAndClose(); });
}
BENCHMARK(OpenInAWindow)->Arg(50'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// An edit of the row: the save, all balances below it and both labels.
void LeaveEdited(benchmark::State& state, bool last, double allowed) {
  Ledger<EmptyDesktop> ledger(state.range(0));
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
  Ledger<EmptyDesktop> ledger(state.range(0));
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

/// The report on all payments. `recorded` is the share of writing its PDF that recording it and its layout take.
void ReportAsPdf(benchmark::State& state) {
  Ledger<EmptyDesktop> ledger(state.range(0));
  ledger.program.globals.LedgerField = Vendor::kByVendor;
  ledger.program.globals.LedgerFieldValue = Vendor::kAll;
  ledger.program.screens.Show(PrtRegistry::kName);
  auto& report = ledger.program.screens.Touch<PrtRegistry>();
  report.txtSinceDate.SetText("01/01/00");
  report.btnGo.Press();
  const pages::Document& document = *report.VSregistry.Recorded();
  const bench::PdfCost cost = bench::CompareAsPdf(state, document);
  const double recording = bench::Seconds([&] { report.btnGo.Press(); });
  state.counters["recorded"] = (recording + cost.layout) / cost.pdf;
  state.counters["recorded_limit"] = 0.15;
}
BENCHMARK(ReportAsPdf)->Arg(50'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
  return norvane::bench::RunOffscreen(argc, argv);
}
