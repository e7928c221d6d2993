// The stock screen over a category with many items: opening it, and an edit that is stored as its row is left.

#include "data/Inventory.h"

#include <benchmark/benchmark.h>
#include <string>

#include "EmptyDesktop.h"
#include "Measuring.h"
#include "forms/Program.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "screens/stock/frmInventory.h"
#include "store/Recordset.h"
#include "support/Database.h"

namespace norvane {
namespace {

constexpr int kItems = 20'000;

struct Stockroom {
  Stockroom() {
    database.Execute(
        "insert into tb_Client (CustNum, Lname, Fname, Discount) values (1001, 'Last', 'First', 0);"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
        std::to_string(kItems) +
        ") insert into tb_Inventory select 1000 + i, 1, 'Item ' || i, i * 1700, 5, i % 40, '1 year' from n");
    RegisterScreens(program);
    program.Start(Customer::kName);
  }
  frmInventory& Screen() { return program.screens.Touch<frmInventory>(); }
  void Read() {
    Inventory& inventory = *program.globals.oInventory;
    inventory.OpenCn();
    benchmark::DoNotOptimize(inventory.rsInventory(1)->RecordCount());
    inventory.CloseCn();
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
};

/// `ratio` is the whole opening to the reading alone, which an opening does twice.
void Open(benchmark::State& state) {
  Stockroom room;
  double whole = 0;
  double reading = 0;
  for (auto _ : state) {
    const double seconds = bench::Seconds([&] { room.program.screens.Touch<Customer>().btnInventory.Press(); });
    state.SetIterationTime(seconds);
    whole += seconds;
    reading += bench::Seconds([&] { room.Read(); });
    room.Screen().Unload();
  }
  state.counters["ratio"] = whole / reading;
}
BENCHMARK(Open)->UseManualTime()->Unit(benchmark::kMillisecond);

void EditAndLeaveARow(benchmark::State& state) {
  Stockroom room;
  room.program.screens.Touch<Customer>().btnInventory.Press();
  Grid& list = room.Screen().InventoryList;
  int row = kItems / 2;
  for (auto _ : state) {
    state.SetIterationTime(bench::Seconds([&] {
      list.UserClick(row, 5);
      list.UserText(std::to_string(row % 50 + 50));
      list.UserKey(Key::Down);
    }));
    row = row % (kItems - 1) + 1;
  }
}
BENCHMARK(EditAndLeaveARow)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
