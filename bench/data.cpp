// How much the record classes cost above the bare queries, and what a list weighs. Every figure is a ratio taken in one
// run, both sides in turn on the same file.

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

#include "ByHand.h"
#include "Measuring.h"
#include "core/Clock.h"
#include "core/Conversions.h"
#include "core/Reporter.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "store/Engine.h"
#include "support/Database.h"

namespace norvane {

namespace {

class SystemClock : public Clock {
 public:
  Date Now() const override { return Date(static_cast<double>(std::time(nullptr)) / 86'400 + 25'569); }
};

class FailingReporter : public Reporter {
 public:
  void Report(const std::string& text) override { throw std::runtime_error(text); }
};

/// A database with that many clients and invoices, so many lines to each, and a payment for every second invoice.
struct Books {
  Books(int clients, int invoices, int lines) {
    const std::string count = "with recursive n(i) as (select 1 union all select i + 1 from n where i < ";
    database.Execute(
        count + std::to_string(clients) +
        ") insert into tb_Client (CustNum, Lname, Fname, HomePhone, Email, Discount) "
        "select i, 'Lastname' || i, 'First' || i, '555-0100', 'someone' || i || '@example.com', 0 from n;" +
        count + std::to_string(invoices) +
        ") insert into tb_Invoice (InvoiceNum, CustNum, Date, Description, Discount, Tax, ShippingCharge, "
        "Shippingdate, Interest) select i, i % " +
        std::to_string(clients) +
        " + 1, 40000 + i % 6000, 'Goods and services ' || i, i % 7 * 1.5, i, i * 3, 40000, 0 from n;" + count +
        std::to_string(invoices * lines) +
        ") insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, Notes) "
        "select i, i % " +
        std::to_string(invoices) + " + 1, 1, 2, i * 17 % 1000003, 'Line' from n;" + count +
        std::to_string(invoices / 2) + ") insert into tb_Receive (TransNum, CustNum, Date, Amount) select i, i % " +
        std::to_string(clients) + " + 1, 40000 + i % 6000, i * 13 from n");
    globals.oInvoice = Opened<Invoice>();
  }

  template <class T>
  std::shared_ptr<T> Opened() {
    auto object = std::make_shared<T>(workspace);
    object->InitAccess(database.File());
    object->OpenCn();
    return object;
  }

  test::Database database;
  SystemClock clock;
  FailingReporter reporter;
  Engine engine;
  Globals globals;
  Conversions convert{RegionalSettings{}, clock};
  Workspace workspace{globals, engine, reporter, clock, convert, database.Folder()};
};

constexpr const char* kInvoices =
    "SELECT tb_Client.CustNum, tb_Client.Lname, tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, "
    "tb_Invoice.Discount, tb_Invoice.ShippingCharge, tb_Invoice.Interest, tb_Invoice.Tax, Sum(tb_trans.amount), "
    "tb_Invoice.Description FROM (tb_Client INNER JOIN tb_Invoice ON tb_Client.CustNum = tb_Invoice.CustNum) "
    "LEFT JOIN tb_trans ON tb_Invoice.InvoiceNum = tb_trans.InvoiceNum GROUP BY tb_Client.CustNum, tb_Client.Lname, "
    "tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, tb_Invoice.Discount, tb_Invoice.ShippingCharge, "
    "tb_Invoice.Interest, tb_Invoice.Tax, tb_Invoice.Description ";

void BalanceByHand(const test::Database& database, int custNum, int day) {
  bench::ByHand connection(database.File());
  std::vector<std::pair<int, int>> invoices;
  connection.Each(std::string(kInvoices) +
                      "HAVING tb_Client.CustNum = ?1 AND tb_Invoice.Date > 29587 ORDER BY tb_Invoice.InvoiceNum DESC",
                  {custNum}, [&](sqlite3_stmt* row) {
                    invoices.emplace_back(sqlite3_column_int(row, 3), sqlite3_column_int(row, 4));
                  });
  double balance = 0;
  for (const auto& [date, number] : invoices) {
    if (date > day) continue;
    double lines = 0;
    connection.Each("select sum(amount) from tb_trans where InvoiceNum = ?1", {number},
                    [&](sqlite3_stmt* row) { lines = sqlite3_column_double(row, 0); });
    connection.Each("select discount, tax, shippingcharge, interest from tb_Invoice where InvoiceNum = ?1", {number},
                    [&](sqlite3_stmt* row) {
                      balance += lines - sqlite3_column_double(row, 0) / 100 * lines;
                      for (int column = 1; column < 4; ++column) balance += sqlite3_column_double(row, column);
                    });
  }
  connection.Each(
      "SELECT tb_Client.CustNum, Sum(tb_Receive.Amount) FROM tb_Receive INNER JOIN tb_Client ON tb_Receive.CustNum = "
      "tb_Client.CustNum WHERE tb_Receive.Date <= ?1 GROUP BY tb_Client.CustNum HAVING tb_Client.CustNum = ?2",
      {day, custNum}, [&](sqlite3_stmt* row) { balance -= sqlite3_column_double(row, 1); });
  benchmark::DoNotOptimize(balance);
}

void ClientBalOf2000Invoices(benchmark::State& state) {
  Books books(10, 20'000, 5);
  const auto client = books.Opened<Client>();
  const int tomorrow = books.clock.Today().Day() + 1;
  bench::Compare(
      state,
      [&] {
        Date date;
        benchmark::DoNotOptimize(client->ClientBal(3, date));
      },
      [&] { BalanceByHand(books.database, 3, tomorrow); }, 1.4);
}
BENCHMARK(ClientBalOf2000Invoices)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2);

void ClientBalsOver100000Invoices(benchmark::State& state) {
  Books books(5'000, 100'000, 5);
  const auto client = books.Opened<Client>();
  bench::Compare(
      state, [&] { benchmark::DoNotOptimize(client->ClientBals()->RecordCount()); },
      [&] {
        benchmark::DoNotOptimize(bench::ByHand(books.database.File())
                                     .Cells("SELECT ClientBals.CustNum, ClientBals.Fullname, ClientBals.Balance FROM "
                                            "ClientBals ORDER BY ClientBals.Fullname"));
      },
      1.2);
}
BENCHMARK(ClientBalsOver100000Invoices)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(4);

struct InvoiceRow {
  std::int32_t custNum;
  std::string lname, fname;
  std::int32_t date, invoiceNum;
  double discount;
  std::int64_t shipping, interest, tax, charge;
  std::string description;
};

void GetAllInvoicesOver50000(benchmark::State& state) {
  Books books(2'000, 50'000, 3);
  const auto invoice = books.Opened<Invoice>();
  bench::Compare(
      state, [&] { benchmark::DoNotOptimize(invoice->GetAllInvoices(Date(30'000))->RecordCount()); },
      [&] {
        bench::ByHand connection(books.database.File());
        std::vector<InvoiceRow> rows;
        const auto take = [&](sqlite3_stmt* row) {
          rows.push_back({sqlite3_column_int(row, 0), bench::ByHand::Text(row, 1), bench::ByHand::Text(row, 2),
                          sqlite3_column_int(row, 3), sqlite3_column_int(row, 4), sqlite3_column_double(row, 5),
                          sqlite3_column_int64(row, 6), sqlite3_column_int64(row, 7), sqlite3_column_int64(row, 8),
                          sqlite3_column_int64(row, 9), bench::ByHand::Text(row, 10)});
        };
        connection.Each(std::string(kInvoices) + "HAVING tb_Invoice.Date > 30000 ORDER BY tb_Invoice.InvoiceNum DESC",
                        {}, take);
        benchmark::DoNotOptimize(rows);
      },
      1.6);
}
BENCHMARK(GetAllInvoicesOver50000)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(4);

std::size_t TextOf(const Object<Recordset>& rows) {
  std::size_t size = 0;
  for (; !rows->Eof(); rows->MoveNext()) {
    for (int i = 0; i < rows->FieldCount(); ++i) size += rows->Text(rows->FieldName(i)).size();
  }
  return size;
}

/// `ratio` is what a list holds in memory, once its connection is closed, to the length of its fields' texts.
void Weigh(benchmark::State& state, auto& object, const auto& read) {
  benchmark::DoNotOptimize(read());
  object.CloseCn();
  std::size_t weight = 0;
  std::size_t text = 0;
  for (auto _ : state) {
    object.OpenCn();
    const Object<Recordset> before = read();
    object.CloseCn();
    const std::size_t start = bench::BytesInUse();
    object.OpenCn();
    const Object<Recordset> list = read();
    object.CloseCn();
    weight = bench::BytesInUse() - start;
    text = TextOf(list);
  }
  state.counters["ratio"] = static_cast<double>(weight) / static_cast<double>(text);
  state.counters["limit"] = 2;
}

void WeightOfAllInvoices(benchmark::State& state) {
  Books books(2'000, 50'000, 1);
  const auto invoice = books.Opened<Invoice>();
  Weigh(state, *invoice, [&] { return invoice->GetAllInvoices(Date(30'000)); });
}
BENCHMARK(WeightOfAllInvoices)->Iterations(1)->Unit(benchmark::kMillisecond);

void WeightOfAllClients(benchmark::State& state) {
  Books books(50'000, 1, 1);
  const auto client = books.Opened<Client>();
  Weigh(state, *client, [&] { return client->GetAllClients(); });
}
BENCHMARK(WeightOfAllClients)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace norvane

BENCHMARK_MAIN();
