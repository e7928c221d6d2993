// What lists and the income statement cost of the processor's time above their bare queries.

#include <benchmark/benchmark.h>
#include <string>

#include "BarePages.h"
#include "ByHand.h"
#include "Measuring.h"
#include "Offscreen.h"
#include "ReportProgram.h"
#include "reports/Prt30Days.h"
#include "reports/PrtIncome.h"
#include "reports/PrtInventory.h"
#include "reports/PrtInventorySales.h"
#include "store/Recordset.h"

namespace norvane {
namespace {

constexpr int kToday = 46'348;

/// The program over 25,000 clients who owe, with two invoices of three lines and a payment each.
struct Office : bench::ReportProgram {
  Office() {
    database.Execute(
        Count(25'000) +
        "insert into tb_Client (CustNum, Lname, Fname, Discount) select i, 'Lastname' || i, 'First' || i, 0 from n;" +
        Count(1'000) +
        "insert into tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) select i, 1, 'Item ' || i, "
        "10000, 5, 10 from n;" +
        Count(50'000) +
        "insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Interest) "
        "select i, i % 25000 + 1, 46348 - i * 7 % 320, 'Goods', i % 7 * 1.5, 10000, 5000, 0 from n;" +
        Count(150'000) +
        "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes) select i, i % 50000 + 1, i % 1000 + "
        "1, 2, i * 17 % 200 * 10000 + 10000, 'Line' from n;" +
        Count(25'000) +
        "insert into tb_Receive (TransNum, CustNum, Date, Amount) select i, i, 46348 - i * 11 % 320, 5000 from n;" +
        Count(20'000) +
        "insert into tb_GL (TransNum, Date, Payment, Deposit, Category) select i, 46348 - i * 3 % 320, 10000, 0, "
        "'Rent' from n");
    program.globals.oSetup->OpenCn();
    program.globals.rsExpenseTypes = program.globals.oSetup->rsExpenseTypes();
    program.globals.oSetup->CloseCn();
    program.globals.AgingDays = 30;
  }
};

void AgingOf25000Clients(benchmark::State& state) {
  Office office;
  bench::Compare(
      state, [&] { office.program.screens.Reopen(Prt30Days::kName); },
      [&] {
        bench::ByHand hand(office.database.File());
        const auto clients = hand.Cells("select CustNum, Fullname, Balance from ClientBals order by Fullname");
        for (std::size_t i = 0; i < clients.size(); i += 3) {
          benchmark::DoNotOptimize(hand.Cells(
              "select \"Date\", Amount from tb_Receive where CustNum = ? order by \"Date\" desc, TransNum desc",
              {std::stoll(clients[i])}));
        }
      },
      1.2);
}
BENCHMARK(AgingOf25000Clients)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(4);

void IncomeOf50000Invoices(benchmark::State& state) {
  Office office;
  bench::Compare(
      state, [&] { office.program.screens.Reopen(PrtIncome::kName); },
      [&] {
        bench::ByHand hand(office.database.File());
        const std::string period = " between 46023 and " + std::to_string(kToday);
        benchmark::DoNotOptimize(hand.Cells("select sum(Amount) from tb_Receive where \"Date\"" + period));
        for (const std::string& invoice : hand.Cells("select InvoiceNum from tb_Invoice where \"Date\"" + period)) {
          const std::int64_t number = std::stoll(invoice);
          benchmark::DoNotOptimize(hand.Cells(
              "select Discount, ShippingCharge, Interest, Tax from tb_Invoice where InvoiceNum = ?", {number}));
          benchmark::DoNotOptimize(hand.Cells("select sum(Amount) from tb_trans where InvoiceNum = ?", {number}));
        }
        const std::string paid = "select sum(Payment) from tb_GL where Category = 'Rent' and \"Date\"" + period;
        for (int type = 0; type < 8; ++type) benchmark::DoNotOptimize(hand.Cells(paid));
      },
      1.4);
}
BENCHMARK(IncomeOf50000Invoices)->UseManualTime()->Unit(benchmark::kMillisecond);

void SalesOf1000Items(benchmark::State& state) {
  Office office;
  bench::Compare(
      state, [&] { office.program.screens.Reopen(PrtInventorySales::kName); },
      [&] {
        bench::ByHand hand(office.database.File());
        benchmark::DoNotOptimize(hand.Cells(
            "select tb_Inventory.ItemNum, tb_InvCategories.Description, tb_Inventory.Description, sum(Qty), "
            "sum(Amount) from tb_trans join tb_Inventory on tb_trans.ItemNum = tb_Inventory.ItemNum join "
            "tb_InvCategories on tb_Inventory.CatNum = tb_InvCategories.CatNum join tb_Invoice on tb_trans.InvoiceNum "
            "= tb_Invoice.InvoiceNum where tb_Invoice.\"Date\" between 36892 and 46348 group by tb_Inventory.ItemNum, "
            "tb_InvCategories.Description, tb_Inventory.Description"));
      },
      1.2);
}
BENCHMARK(SalesOf1000Items)->UseManualTime()->Unit(benchmark::kMillisecond);

void StockOf20000ItemsAsPdf(benchmark::State& state) {
  bench::ReportProgram office;
  office.database.Execute(bench::ReportProgram::Count(20'000) +
                          "insert into tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock, Warranty) "
                          "select i, 1, 'Oak table, "
                          "model ' || i, i * 1700, 5, i % 40, 'Two years' from n");
  office.program.screens.Show(PrtInventory::kName);
  bench::CompareAsPdf(state, *office.program.screens.Touch<PrtInventory>().VSregistry.Recorded());
}
BENCHMARK(StockOf20000ItemsAsPdf)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
  return norvane::bench::RunOffscreen(argc, argv);
}
