// What the store adds to SQLite used by hand.

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

#include "ByHand.h"
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

/// The hand-written way: open, prepare, step all rows into strings, close.
std::vector<bench::ByHand::Row> ByHand(const std::string& sql) {
  return bench::ByHand(Business().File()).Rows(sql);
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

constexpr const char* kClients = "select CustNum, Lname, Fname, HomePhone, Email from tb_Client order by Lname, Fname";

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

/// A join of the two large tables, summed by item.
void SumSalesByItem(benchmark::State& state) {
  const std::string query =
      "select tb_trans.ItemNum, sum(tb_trans.Qty) as Units, sum(tb_trans.Amount) as Sales from tb_trans inner join "
      "tb_Invoice on tb_trans.InvoiceNum = tb_Invoice.InvoiceNum where tb_Invoice.[Date] >= ";
  const std::string groups = " group by tb_trans.ItemNum";
  Program program;
  bench::Compare(
      state, [&] { benchmark::DoNotOptimize(program.Read(query + "#1/1/2001#" + groups)); },
      [&] { benchmark::DoNotOptimize(ByHand(query + "36892" + groups)); }, 1.6);
}
BENCHMARK(SumSalesByItem)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace norvane

BENCHMARK_MAIN();
