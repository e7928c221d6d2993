// What the sales screens cost of the processor's time, database included, as shares of what they may cost.

#include <benchmark/benchmark.h>
#include <string>

#include "EmptyDesktop.h"
#include "Measuring.h"
#include "forms/Program.h"
#include "screens/Screens.h"
#include "screens/clients/Customer.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/InvoiceDetail.h"
#include "support/Database.h"
#include "support/Gestures.h"

namespace norvane {

namespace {

/// The program over a database of 2,000 clients, so many invoices, and so many lines to each.
struct Shop {
  Shop(int invoices, int lines) {
    const auto count = [](int rows) {
      return "with recursive n(i) as (select 1 union all select i + 1 from n where i < " + std::to_string(rows) + ") ";
    };
    database.Execute(
        "insert into tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) values (1, 1, 'Lamp', 100000, "
        "5, 1000000);" +
        count(2'000) +
        "insert into tb_Client (CustNum, Lname, Fname, Discount) select i, 'Lastname' || i, 'First' || i, 0 from n;" +
        count(invoices) +
        "insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Shippingdate, "
        "Interest) select i, i % 2000 + 1, 40000 + i % 6000, 'Goods and services ' || i, i % 7 * 1.5, i, i * 3, 40000, "
        "0 from n;" +
        count(invoices * lines) +
        "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes, BackOrder) select i, i % " +
        std::to_string(invoices) + " + 1, 1, 2, 200000, 'Lamp', '0' from n");
    RegisterScreens(program);
    program.Start(Customer::kName);
    program.screens.Show(CustInvoices::kName);
    Sales().txtSinceDate.UserType("010181");
    Sales().CmbInvoice.UserPick(1);
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
  CustInvoices& Sales() { return program.screens.Touch<CustInvoices>(); }
};

void ListOf50000Invoices(benchmark::State& state) {
  Shop shop(50'000, 3);
  bench::Measure(state, 1.0, [&] { shop.Sales().btnGo.Press(); });
  if (shop.Sales().InvoiceList.Rows() != 50'001) state.SkipWithError("the list is not complete");
}
BENCHMARK(ListOf50000Invoices)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3);

/// A quantity typed into a line of many, and the row left: stock, line and total. The first line takes the invoice's
/// head and the client's balance along.
void EditOnAnInvoiceOf200Lines(benchmark::State& state) {
  Shop shop(100, 200);
  shop.Sales().btnGo.Press();
  test::DoubleClick(shop.Sales().InvoiceList, 1, 1);
  auto& lines = shop.program.screens.Touch<InvoiceDetail>().ItemList;
  const int row = static_cast<int>(state.range(0));
  int quantity = 3;
  lines.UserClick(row, InvoiceDetail::kQuantity);
  bench::Measure(state, 0.05, [&] {
    test::Type(lines, std::to_string(quantity));
    lines.UserKey(row == 1 ? Key::Down : Key::Up);
    lines.UserClick(row, InvoiceDetail::kQuantity);
    quantity = 7 - quantity;
  });
  if (shop.program.globals.RowChanged || lines.Rows() != 201) state.SkipWithError("the edit was not stored");
}
BENCHMARK(EditOnAnInvoiceOf200Lines)
    ->ArgName("line")
    ->Arg(1)
    ->Arg(100)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
