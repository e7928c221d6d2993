#include <algorithm>
#include <map>

#include "sample/Sample.h"
#include "sample/Words.h"

namespace norvane::sample {
namespace {

struct Entry {
  Day day = 0;
  const Supplier* supplier = nullptr;  ///< none: a deposit
  Money amount = 0;
  bool check = false;  ///< paid by a numbered check, or deposited at the counter; otherwise by transfer
  std::string note;
};

/// A bill that comes each month on a day, as a share of a month's takings in thousandths.
struct Bill {
  int supplier;  ///< index into the suppliers
  int day;
  int share;
  bool check;
};
constexpr Bill kBills[] = {{8, 1, 80, true},   {9, 12, 14, false}, {10, 15, 5, false},  {11, 20, 8, false},
                           {12, 5, 20, false}, {13, 9, 12, true},  {14, 23, 15, false}, {15, 17, 7, true},
                           {16, 27, 5, true},  {19, 28, 9, false}, {20, 14, 50, false}, {20, 28, 50, false}};
constexpr int kRevenueOffice = 17;
constexpr int kTravelAgency = 18;
constexpr int kTravelShare = 60;
constexpr int kGoodsSuppliers = 8;  // the first ones
constexpr int kGoodsPercent = 50;   // of the takings
constexpr int kOpeningMonths = 3;

Money WholeDollars(Money amount) {
  return std::max<Money>(1, amount / kDollar) * kDollar;
}
Money WholeCents(Money amount) {
  return amount / kCent * kCent;
}

/// About so much: a quarter more or less.
Money About(Random& random, Money amount) {
  return WholeCents(amount * random.Between(75, 125) / 100);
}

class Ledger {
 public:
  Ledger(Random& random, const Order& order, const std::vector<Invoice>& invoices, const std::vector<Payment>& payments)
      : random_(random), order_(order), first_(order.today - kDaysOfBusiness) {
    for (const Payment& payment : payments) {
      takings_[payment.day] += payment.amount;
      if (payment.byCard) cards_[payment.day] += payment.amount;
    }
    for (const Invoice& invoice : invoices) taxes_[invoice.day] += invoice.tax;
    Money total = 0;
    for (const auto& [day, amount] : takings_) total += amount;
    month_ = total / (kDaysOfBusiness / 30);
    Add({first_, nullptr, WholeDollars(month_ * kOpeningMonths), true, "Opening balance"});
  }

  std::vector<Entry> Plan() {
    for (Day day = first_ + 1; day <= order_.today; ++day) {
      if (IsFriday(day)) Deposit(day);
      PayBills(day);
    }
    BuyGoods();
    std::stable_sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) { return a.day < b.day; });
    return std::move(entries_);
  }

 private:
  void Add(Entry entry) {
    if (entry.amount > 0) entries_.push_back(std::move(entry));
  }

  static Money Sum(const std::map<Day, Money>& amounts, Day from, Day to) {
    Money sum = 0;
    for (auto at = amounts.lower_bound(from); at != amounts.end() && at->first <= to; ++at) sum += at->second;
    return sum;
  }

  void Deposit(Day day) {
    const Money cards = Sum(cards_, day - 6, day);
    Add({day, nullptr, cards, false, "Card payments of the week"});
    Add({day, nullptr, Sum(takings_, day - 6, day) - cards, true, "Checks and cash of the week"});
  }

  void PayBills(Day day) {
    for (const Bill& bill : kBills)
      if (DayOfMonth(day) == bill.day) {
        const Supplier& supplier = Suppliers()[static_cast<std::size_t>(bill.supplier)];
        const Money amount = month_ * bill.share / 1000;
        const bool fixed = bill.supplier == kBills[0].supplier || bill.supplier == kBills[4].supplier;
        Add({day, &supplier, fixed ? WholeDollars(amount) : About(random_, amount), bill.check, supplier.note});
      }
    const bool quarter = MonthOf(day) % 3 == 1;
    if (quarter && DayOfMonth(day) == 25) {
      const Supplier& office = Suppliers()[kRevenueOffice];
      Add({day, &office, Sum(taxes_, day - 25 - 90, day - 25), false, "Sales tax of the quarter"});
    }
    if (MonthOf(day) % 3 == 2 && DayOfMonth(day) == 14) {
      const Supplier& agency = Suppliers()[kTravelAgency];
      Add({day, &agency, About(random_, month_ * kTravelShare / 1000), false, agency.note});
    }
  }

  /// What is left of the entries asked for, spread over the weekdays; each worth a share of the takings of the four
  /// weeks before, so that the account is never overdrawn.
  void BuyGoods() {
    const int count = std::max(0, order_.size.entries - static_cast<int>(entries_.size()));
    for (int place = 0; place < count; ++place) {
      Day day = first_ + 2 + static_cast<Day>(std::int64_t{place} * (kDaysOfBusiness - 2) / count);
      if (IsSunday(day)) --day;
      const Money recent = Sum(takings_, day - 28, day - 1);
      const Money each = recent * kGoodsPercent / 100 * kDaysOfBusiness / 28 / count;
      const Supplier& supplier = Suppliers()[static_cast<std::size_t>(random_.Below(kGoodsSuppliers))];
      Add({day, &supplier, About(random_, std::max(each, 20 * kDollar)), random_.Chance(75), supplier.note});
    }
  }

  Random& random_;
  const Order& order_;
  Day first_;
  Money month_ = 0;  ///< takings of an average month
  std::map<Day, Money> takings_;
  std::map<Day, Money> cards_;  ///< of the takings, those by card
  std::map<Day, Money> taxes_;
  std::vector<Entry> entries_;
};

/// The bank has seen nearly everything but the last weeks; deposits it sees sooner.
bool Cleared(Random& random, const Entry& entry, Day today) {
  const int age = today - entry.day;
  if (entry.supplier == nullptr) return age > 3;
  return age > 30 || (age > 7 && random.Chance(70));
}

void WriteVendors(Database& database, Random& random, Phones& phones) {
  Inserter rows(database, "tb_Vendor",
                "VendorNum,Company,Address1,Address2,City,State,ZipCode,Phone,CelPhone,Fax,Email,WebPage,Notes,POnum,"
                "Discount");
  int number = kFirstKey;
  for (const Supplier& supplier : Suppliers()) {
    const Town& town = random.Pick(Towns());
    const bool goods = std::string(supplier.expenseType) == "Inventory";
    const std::string house = std::to_string(random.Between(100, 9900));
    const std::string domain = DomainOf(supplier.company);
    rows.Add({number, supplier.company, house + " " + random.Pick(Streets()), "", town.city, town.state, town.zipCode,
              phones.Next(town), "", phones.Next(town), (goods ? "orders@" : "billing@") + domain, "www." + domain,
              supplier.note, goods ? "ASC-" + std::to_string(number) : "", goods ? 2.5 * random.Below(5) : 0.0});
    ++number;
  }
}

}  // namespace

void WriteLedger(Database& database, Random& random, Phones& phones, const Order& order,
                 const std::vector<Invoice>& invoices, const std::vector<Payment>& payments) {
  WriteVendors(database, random, phones);
  Inserter rows(database, "tb_GL", "TransNum,Date,CheckNum,Vendor,Payment,Cleared,Category,Deposit,Notes");
  int number = kFirstKey;
  int check = 2001;
  for (const Entry& entry : Ledger(random, order, invoices, payments).Plan()) {
    const bool cleared = Cleared(random, entry, order.today);
    const bool deposit = entry.supplier == nullptr;
    const std::string means = !entry.check ? "EFT" : deposit ? "DEP" : std::to_string(check++);
    rows.Add({number++, entry.day, means, deposit ? "" : entry.supplier->company, deposit ? 0 : entry.amount,
              cleared ? -1 : 0, deposit ? "" : entry.supplier->expenseType, deposit ? entry.amount : 0, entry.note});
  }
}

}  // namespace norvane::sample
