// What lists and the income statement cost of the processor's time above their bare queries.

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "EmptyDesktop.h"
#include "Measuring.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "data/cSetup.h"
#include "forms/Program.h"
#include "reports/Prt30Days.h"
#include "reports/PrtIncome.h"
#include "reports/PrtInventorySales.h"
#include "reports/RegisterReports.h"
#include "screens/Notices.h"
#include "store/Recordset.h"
#include "support/Database.h"

namespace norvane {
namespace {

constexpr int kToday = 46'348;

/// The program over 25,000 clients who owe, with two invoices of three lines and a payment each.
struct Office {
  Office() {
    const auto count = [](int rows) {
      return "with recursive n(i) as (select 1 union all select i + 1 from n where i < " + std::to_string(rows) + ") ";
    };
    database.Execute(
        count(25'000) +
        "insert into tb_Client (CustNum, Lname, Fname, Discount) select i, 'Lastname' || i, 'First' || i, 0 from n;" +
        count(1'000) +
        "insert into tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) select i, 1, 'Item ' || i, "
        "10000, 5, 10 from n;" +
        count(50'000) +
        "insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, Interest) "
        "select i, i % 25000 + 1, 46348 - i * 7 % 320, 'Goods', i % 7 * 1.5, 10000, 5000, 0 from n;" +
        count(150'000) +
        "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes) select i, i % 50000 + 1, i % 1000 + "
        "1, 2, i * 17 % 200 * 10000 + 10000, 'Line' from n;" +
        count(25'000) +
        "insert into tb_Receive (TransNum, CustNum, Date, Amount) select i, i, 46348 - i * 11 % 320, 5000 from n;" +
        count(20'000) +
        "insert into tb_GL (TransNum, Date, Payment, Deposit, Category) select i, 46348 - i * 3 % 320, 10000, 0, "
        "'Rent' from n");
    RegisterReports(program);
    RegisterNotices(program.screens);
    program.globals.oClient = Made<Client>();
    program.globals.oSetup = Made<cSetup>();
    program.globals.oSetup->OpenCn();
    program.globals.rsExpenseTypes = program.globals.oSetup->rsExpenseTypes();
    program.globals.oSetup->CloseCn();
    program.globals.AgingDays = 30;
  }

  template <class Data>
  std::shared_ptr<Data> Made() {
    auto object = std::make_shared<Data>(program.workspace);
    object->InitAccess(database.File());
    return object;
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
};

/// Statements prepared once on one connection, each run reading its rows into strings.
class ByHand {
 public:
  explicit ByHand(const Office& office) {
    sqlite3_open_v2(office.database.File().c_str(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  }
  ~ByHand() {
    for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
    sqlite3_close(database_);
  }
  ByHand(const ByHand&) = delete;
  ByHand& operator=(const ByHand&) = delete;

  sqlite3_stmt* Prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) std::abort();
    statements_.push_back(statement);
    return statement;
  }
  static std::vector<std::string> Read(sqlite3_stmt* statement, const std::string& parameter = {}) {
    if (!parameter.empty()) sqlite3_bind_int64(statement, 1, std::atoll(parameter.c_str()));
    std::vector<std::string> cells;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
        cells.emplace_back(text ? text : "");
      }
    }
    sqlite3_reset(statement);
    return cells;
  }

 private:
  sqlite3* database_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
};

void AgingOf25000Clients(benchmark::State& state) {
  Office office;
  bench::Compare(
      state, [&] { office.program.screens.Reopen(Prt30Days::kName); },
      [&] {
        ByHand hand(office);
        sqlite3_stmt* last = hand.Prepare(
            "select \"Date\", Amount from tb_Receive where CustNum = ? order by \"Date\" desc, TransNum desc");
        const auto clients =
            ByHand::Read(hand.Prepare("select CustNum, Fullname, Balance from ClientBals order by Fullname"));
        for (std::size_t i = 0; i < clients.size(); i += 3) benchmark::DoNotOptimize(ByHand::Read(last, clients[i]));
      },
      1.2);
}
BENCHMARK(AgingOf25000Clients)->UseManualTime()->Unit(benchmark::kMillisecond);

void IncomeOf50000Invoices(benchmark::State& state) {
  Office office;
  bench::Compare(
      state, [&] { office.program.screens.Reopen(PrtIncome::kName); },
      [&] {
        ByHand hand(office);
        const std::string period = " between 46023 and " + std::to_string(kToday);
        benchmark::DoNotOptimize(
            ByHand::Read(hand.Prepare("select sum(Amount) from tb_Receive where \"Date\"" + period)));
        sqlite3_stmt* head =
            hand.Prepare("select Discount, ShippingCharge, Interest, Tax from tb_Invoice where InvoiceNum = ?");
        sqlite3_stmt* lines = hand.Prepare("select sum(Amount) from tb_trans where InvoiceNum = ?");
        for (const std::string& number :
             ByHand::Read(hand.Prepare("select InvoiceNum from tb_Invoice where \"Date\"" + period))) {
          benchmark::DoNotOptimize(ByHand::Read(head, number));
          benchmark::DoNotOptimize(ByHand::Read(lines, number));
        }
        sqlite3_stmt* paid =
            hand.Prepare("select sum(Payment) from tb_GL where Category = 'Rent' and \"Date\"" + period);
        for (int type = 0; type < 8; ++type) benchmark::DoNotOptimize(ByHand::Read(paid));
      },
      1.4);
}
BENCHMARK(IncomeOf50000Invoices)->UseManualTime()->Unit(benchmark::kMillisecond);

void SalesOf1000Items(benchmark::State& state) {
  Office office;
  bench::Compare(
      state, [&] { office.program.screens.Reopen(PrtInventorySales::kName); },
      [&] {
        ByHand hand(office);
        benchmark::DoNotOptimize(ByHand::Read(hand.Prepare(
            "select tb_Inventory.ItemNum, tb_InvCategories.Description, tb_Inventory.Description, sum(Qty), "
            "sum(Amount) from tb_trans join tb_Inventory on tb_trans.ItemNum = tb_Inventory.ItemNum join "
            "tb_InvCategories on tb_Inventory.CatNum = tb_InvCategories.CatNum join tb_Invoice on tb_trans.InvoiceNum "
            "= tb_Invoice.InvoiceNum where tb_Invoice.\"Date\" between 36892 and 46348 group by tb_Inventory.ItemNum, "
            "tb_InvCategories.Description, tb_Inventory.Description")));
      },
      1.2);
}
BENCHMARK(SalesOf1000Items)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
