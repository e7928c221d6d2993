#include <ctime>
#include <map>
#include <optional>
#include <random>
#include <sstream>

#include "data/Client.h"
#include "data/DataTest.h"
#include "data/Invoice.h"

namespace norvane::test {

namespace {

/// Money is in ten-thousandths.
struct ModelInvoice {
  int day = 0;
  double discount = 0;  ///< percent
  std::int64_t lines = 0, shipping = 0, interest = 0, tax = 0;
  bool nullCharge = false;

  std::int64_t Total() const {
    if (nullCharge) return lines;
    double total = Units(lines) - discount / 100 * Units(lines);
    for (const std::int64_t charge : {shipping, interest, tax}) total += Units(charge);
    return Currency::FromDouble(total).TenThousandths();
  }

 private:
  static double Units(std::int64_t count) { return static_cast<double>(count) / 10'000.0; }
};

/// Books of a few thousand clients with what is awkward in money, discounts and dates, the same in every run.
class RandomBooks {
 public:
  static constexpr int kClients = 2'500;
  static constexpr int kFirstDay = 29'587;  // 1/1/1981

  explicit RandomBooks(int today) : today_(today) {
    inserts_.precision(17);
    for (int client = 1; client <= kClients; ++client) AddClient(client);
    AddInvoice(kClients + 1);  // nobody's
  }

  std::string Inserts() const { return inserts_.str(); }

  std::int64_t Balance(int custNum, int day) const {
    std::int64_t balance = 0;
    for (auto [at, end] = entries_.equal_range(custNum); at != end; ++at) {
      if (at->second.day <= day) balance += at->second.owed;
    }
    return balance;
  }

 private:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  std::int64_t Amount() {
    std::int64_t limit = 1;
    for (int digits = Below(12); digits > 0; --digits) limit *= 10;
    return std::uniform_int_distribution<std::int64_t>(-limit / 4, limit)(random_);
  }

  int RandomDay() {
    const int edges[] = {kFirstDay - 1, kFirstDay, kFirstDay + 1, today_ - 1, today_, today_ + 1, today_ + 2};
    const int pick = Below(14);
    return pick < 7 ? edges[pick] : kFirstDay + Below(today_ - kFirstDay);
  }

  double RandomDiscount() {
    const double awkward[] = {0, 5, 33.333, 12.5, 50, 66.6666667, 100, -10, 0.0000001, 8.25};
    const int pick = Below(12);
    return pick < 10 ? awkward[pick] : Below(12'000) / 100.0;
  }

  void AddClient(int client) {
    inserts_ << "insert into tb_Client (CustNum, Lname, Fname) values (" << client << ", 'Client', "
             << (Below(5) ? "'A'" : "null") << ");";
    for (int count = Below(6); count > 0; --count) AddInvoice(client);
    for (int count = Below(4); count > 0; --count) AddPayment(client);
  }

  void AddInvoice(int client) {
    ModelInvoice invoice{RandomDay(), RandomDiscount()};
    ++number_;
    for (int count = Below(4); count > 0; --count) AddLine(invoice);
    if (Below(2)) invoice.shipping = Amount();
    if (Below(3) == 0) invoice.interest = Amount();
    if (Below(2)) invoice.tax = Amount();
    invoice.nullCharge = Below(200) == 0;
    inserts_ << "insert into tb_Invoice (InvoiceNum, CustNum, Date, Discount, ShippingCharge, Interest, Tax) values ("
             << number_ << "," << client << "," << invoice.day << "," << invoice.discount << "," << invoice.shipping
             << "," << (invoice.nullCharge ? "null" : std::to_string(invoice.interest)) << "," << invoice.tax << ");";
    if (invoice.day > kFirstDay) entries_.emplace(client, Entry{invoice.day, invoice.Total()});
  }

  void AddLine(ModelInvoice& invoice) {
    const std::optional<std::int64_t> amount = Below(50) ? std::optional(Amount()) : std::nullopt;
    invoice.lines += amount.value_or(0);
    inserts_ << "insert into tb_trans (InvoiceNum, Amount) values (" << number_ << ","
             << (amount ? std::to_string(*amount) : "null") << ");";
  }

  void AddPayment(int client) {
    const Entry payment{RandomDay(), -Amount()};
    inserts_ << "insert into tb_Receive (CustNum, Date, Amount) values (" << client << "," << payment.day << ","
             << -payment.owed << ");";
    entries_.emplace(client, payment);
  }

  struct Entry {
    int day;
    std::int64_t owed;
  };

  std::mt19937 random_{20261122};
  int today_;
  int number_ = 0;
  std::ostringstream inserts_;
  std::multimap<int, Entry> entries_;  ///< by client; without the invoices that are in no balance
};

Date LocalToday() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return Date::FromYearMonthDay(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday);
}

}  // namespace

class BalancePropertyTest : public DataTest {};

TEST_F(BalancePropertyTest, TheSavedBalancesAreThoseOfEachClientAtAnyDay) {
  clock.now = LocalToday();  // the saved query knows no other clock than the machine's
  const RandomBooks books(clock.Today().Day());
  database.Execute(books.Inserts());
  globals.oInvoice = std::make_shared<Invoice>(workspace);
  globals.oInvoice->InitAccess(database.File());
  const auto client = Opened<Client>();
  std::map<int, std::int64_t> saved;
  do {
    clock.now = LocalToday();
    saved.clear();
    for (const auto list = client->ClientBals(); !list->Eof(); list->MoveNext()) {
      const std::int64_t balance = list->Currency("Bal").TenThousandths();
      EXPECT_NE(balance, 0) << "who owes nothing has no row";
      EXPECT_TRUE(saved.emplace(list->Long("CustNum"), balance).second);
    }
  } while (clock.now != LocalToday());
  EXPECT_LE(saved.rbegin()->first, RandomBooks::kClients);

  const int today = clock.Today().Day();
  for (int custNum = 1; custNum <= RandomBooks::kClients; ++custNum) {
    Date now;
    ASSERT_EQ(client->ClientBal(custNum, now).TenThousandths(), saved[custNum]) << custNum;
    ASSERT_EQ(saved[custNum], books.Balance(custNum, today + 1)) << custNum;
    if (custNum % 5 != 0) continue;
    Date then(RandomBooks::kFirstDay + custNum % (today - RandomBooks::kFirstDay));
    ASSERT_EQ(client->ClientBal(custNum, then).TenThousandths(), books.Balance(custNum, then.Day())) << custNum;
  }
  // A Null among an invoice's charges is reported every time it is met, and nothing else is.
  EXPECT_THAT(reporter.reports, ::testing::Each(::testing::StartsWith("Invoice.InvoiceTotal -94 ")));
  reporter.reports.clear();
}

}  // namespace norvane::test
