#include <cmath>
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

__extension__ typedef __int128 Wide;

/// The exact binary value times 10,000, to the nearest, true halves to even; in whole numbers, unlike the program.
std::int64_t ModelOfCurrency(double value) {
  int exponent = 0;
  const double fraction = std::frexp(value, &exponent);
  const Wide scaled = static_cast<Wide>(std::llround(std::ldexp(fraction, 53))) * 10'000;
  const int shift = 53 - exponent;
  if (shift <= 0) return static_cast<std::int64_t>(scaled << -shift);
  if (shift > 100) return 0;
  const Wide unit = Wide{1} << shift;
  Wide floor = scaled / unit;
  Wide rest = scaled % unit;
  if (rest < 0) rest += unit, --floor;
  const bool up = rest * 2 > unit || (rest * 2 == unit && floor % 2 != 0);
  return static_cast<std::int64_t>(floor + up);
}

/// Money is in ten-thousandths; the discount in ten-millionths of a percent, so that its decimal value is exact.
struct ModelInvoice {
  int day = 0;
  std::int64_t discount = 0;
  std::int64_t lines = 0, shipping = 0, interest = 0, tax = 0;
  bool nullCharge = false;

  std::int64_t Total() const {
    if (nullCharge) return lines;
    const double sum = Units(lines);
    const double rate = static_cast<double>(discount) / 1e7 / 100;
    double total = sum - rate * sum;
    for (const std::int64_t charge : {shipping, interest, tax}) total += Units(charge);
    return ModelOfCurrency(total);
  }

  /// Whether the total is within a rounding of that in exact decimals.
  bool IsNearDecimals() const {
    if (nullCharge) return true;
    constexpr Wide kWhole = 1'000'000'000;
    const Wide exact = Wide{lines} * (kWhole - discount) + Wide{shipping + interest + tax} * kWhole;
    const Wide distance = Wide{Total()} * kWhole - exact;
    return (distance < 0 ? -distance : distance) <= kWhole / 2 + kWhole / 100;
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

  std::int64_t RandomDiscount() {
    constexpr std::int64_t kPercent = 10'000'000;
    const std::int64_t awkward[] = {0,           5 * kPercent,   333'330'000,    125'000'000, 50 * kPercent,
                                    666'666'667, 100 * kPercent, -10 * kPercent, 1,           82'500'000};
    const int pick = Below(12);
    return pick < 10 ? awkward[pick] : std::uniform_int_distribution<std::int64_t>(0, 120 * kPercent)(random_);
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
    EXPECT_TRUE(invoice.IsNearDecimals()) << number_;
    inserts_ << "insert into tb_Invoice (InvoiceNum, CustNum, Date, Discount, ShippingCharge, Interest, Tax) values ("
             << number_ << "," << client << "," << invoice.day << "," << static_cast<double>(invoice.discount) / 1e7
             << "," << invoice.shipping << "," << (invoice.nullCharge ? "null" : std::to_string(invoice.interest))
             << "," << invoice.tax << ");";
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
