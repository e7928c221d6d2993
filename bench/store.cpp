// What the store adds to SQLite used by hand.

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "LargeBusiness.h"
#include "Measuring.h"
#include "store/Engine.h"
#include "store/Recordset.h"

namespace norvane {
namespace {

/// A large business, made once for all benches here.
const bench::LargeBusiness& Business() {
  static const bench::LargeBusiness business(
      {.clients = 100'000, .invoices = 100'000, .lines = 500'000, .items = 1'000, .payments = 50'000});
  return business;
}

using Row = std::vector<std::string>;

/// The hand-written way: open, prepare, step all rows into strings, close.
std::vector<Row> ByHand(const std::string& sql) {
  sqlite3* database = nullptr;
  sqlite3_open_v2(Business().File().c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) std::abort();
  std::vector<Row> rows;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    Row& row = rows.emplace_back();
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
      row.emplace_back(text ? text : "");
    }
  }
  sqlite3_finalize(statement);
  sqlite3_close(database);
  return rows;
}

/// The program's way: a connection for the one operation and a detached recordset.
class Program {
 public:
  std::shared_ptr<Recordset> Read(const std::string& statement) {
    Connection connection(engine_);
    connection.ConnectionString =
        "Provider=Microsoft.Jet.OLEDB.4.0;Data Source = \"" + Business().File().string() + "\" ;";
    connection.Open();
    auto rows = std::make_shared<Recordset>();
    rows->Open(statement, connection, CursorType::ForwardOnly);
    rows->SetActiveConnection(nullptr);
    return rows;
  }

 private:
  Engine engine_;
};

constexpr const char* kClients =
    "select custnum, fname, lname, homephone, workphone, celphone, email from tb_Client order by Lname , fname";

void ListAllClients(benchmark::State& state) {
  Program program;
  bench::Compare(
      state, [&] { benchmark::DoNotOptimize(program.Read(kClients)); },
      [] { benchmark::DoNotOptimize(ByHand(kClients)); }, 1.6);
}
BENCHMARK(ListAllClients)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(9);

template <class Make>
double BytesOf(Make make) {
  const std::size_t before = bench::BytesInUse();
  const auto kept = make();
  return static_cast<double>(bench::BytesInUse() - before);
}

void MemoryOfAllClients(benchmark::State& state) {
  Program program;
  program.Read("select custnum from tb_Client where CustNum = 1001");
  for (auto _ : state) {
    const double ours = BytesOf([&] { return program.Read(kClients); });
    const double byHand = BytesOf([] { return ByHand(kClients); });
    state.counters["ours_MB"] = ours / 1e6;
    state.counters["by_hand_MB"] = byHand / 1e6;
    state.counters["ratio"] = ours / byHand;
  }
}
BENCHMARK(MemoryOfAllClients)->Unit(benchmark::kMillisecond)->Iterations(1);

void ReadOneClient(benchmark::State& state) {
  Program program;
  int next = 0;
  const auto statement = [&next] {
    return "select * from tb_Client where CustNum = " + std::to_string(1001 + (next++ * 7919) % 100'000);
  };
  const auto ours = [&] {
    const auto client = program.Read(statement());
    for (int i = 0; i < client->FieldCount(); ++i) benchmark::DoNotOptimize(client->Field(i));
  };
  const auto byHand = [&] { benchmark::DoNotOptimize(ByHand(statement())); };
  bench::Compare(state, ours, byHand, 1.5);
}
BENCHMARK(ReadOneClient)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(2'000);

void ListBalances(benchmark::State& state) {
  Program program;
  bench::Compare(
      state,
      [&] {
        benchmark::DoNotOptimize(
            program.Read("SELECT ClientBals.CustNum as CustNum, ClientBals.Fullname AS FullName, "
                         "ClientBals.Balance as Bal FROM ClientBals order by ClientBals.Fullname "));
      },
      [] { benchmark::DoNotOptimize(ByHand("SELECT CustNum, Fullname, Balance FROM ClientBals ORDER BY Fullname")); },
      1.2);
}
BENCHMARK(ListBalances)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(7);

constexpr const char* kInvoiceColumns =
    "SELECT tb_Client.CustNum, tb_Client.Lname as Lname, tb_Client.Fname as Fname, tb_Invoice.Date as InvoiceDate, "
    "tb_Invoice.InvoiceNum as InvoiceNum, tb_Invoice.Discount as Discount, tb_Invoice.ShippingCharge as "
    "ShippingCharge, tb_Invoice.Interest as Interest, tb_Invoice.Tax as Tax, Sum(tb_trans.amount) AS Charge, "
    "tb_Invoice.Description as Description FROM (tb_Client inner JOIN tb_Invoice ON tb_Client.CustNum = "
    "tb_Invoice.CustNum) left JOIN tb_trans ON tb_Invoice.InvoiceNum = tb_trans.InvoiceNum GROUP BY "
    "tb_Client.CustNum, tb_Client.Lname, tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, "
    "tb_Invoice.Discount, tb_Invoice.ShippingCharge, tb_Invoice.Interest, tb_Invoice.Tax, tb_Invoice.Description "
    "HAVING ";

void ListAllInvoices(benchmark::State& state) {
  Program program;
  bench::Compare(
      state,
      [&] {
        benchmark::DoNotOptimize(program.Read(std::string(kInvoiceColumns) +
                                              "(((tb_invoice.date)>#1/1/1981#)) order by tb_Invoice.InvoiceNum desc;"));
      },
      [] {
        benchmark::DoNotOptimize(
            ByHand(std::string(kInvoiceColumns) + "tb_Invoice.Date > 29587 order by tb_Invoice.InvoiceNum desc"));
      },
      1.6);
}
BENCHMARK(ListAllInvoices)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void ListInventorySales(benchmark::State& state) {
  const std::string query =
      "SELECT tb_Inventory.ItemNum as ItemNum, tb_InvCategories.Description as Category, tb_Inventory.Description as "
      "Description, Sum(tb_trans.Qty) AS Qty, Sum(tb_trans.Amount) AS TotalSales FROM ((tb_trans INNER JOIN "
      "tb_Inventory ON tb_trans.ItemNum = tb_Inventory.ItemNum) INNER JOIN tb_InvCategories ON tb_Inventory.CatNum = "
      "tb_InvCategories.CatNum) INNER JOIN tb_Invoice ON tb_trans.InvoiceNum = tb_Invoice.InvoiceNum where ";
  const std::string groups = " GROUP BY tb_Inventory.ItemNum, tb_InvCategories.Description, tb_Inventory.Description;";
  Program program;
  bench::Compare(
      state,
      [&] {
        benchmark::DoNotOptimize(
            program.Read(query + "(((tb_Invoice.Date)>=#1/1/2001# And (tb_Invoice.Date)<=#12/31/2030#))" + groups));
      },
      [&] {
        benchmark::DoNotOptimize(ByHand(query + "tb_Invoice.Date >= 36892 and tb_Invoice.Date <= 47848" + groups));
      },
      1.6);
}
BENCHMARK(ListInventorySales)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
