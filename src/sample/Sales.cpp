#include <algorithm>

#include "sample/Occasions.h"
#include "sample/Sample.h"
#include "sample/Stock.h"
#include "sample/Words.h"

namespace norvane::sample {
namespace {

constexpr int kBicycles = 1;
constexpr int kWorkshop = 6;

Day OpenDay(Day day) {
  return IsSunday(day) ? day - 1 : day;
}

Day AnyDay(Random& random, Day today) {
  return OpenDay(today - random.Below(kDaysOfBusiness));
}

/// Where this year's sales begin, so that nearly every client has one to be seen; in the first weeks of a year there is
/// too little of it, and the twelve months before must do.
Day YearStart(Day today) {
  return today - JanuaryFirst(today) > 30 ? JanuaryFirst(today) + 1 : today - 365;
}

std::vector<Invoice> PlanInvoices(Random& random, const Order& order, const std::vector<Client>& clients) {
  std::vector<int> shoppers;  // companies are in it more often
  for (int client = 0; client < static_cast<int>(clients.size()); ++client)
    shoppers.insert(shoppers.end(), clients[static_cast<std::size_t>(client)].trade ? 6 : 1, client);
  const Day yearStart = YearStart(order.today);

  std::vector<Invoice> invoices;
  for (int place = 0; place < order.size.invoices; ++place) {
    const bool first = place < static_cast<int>(clients.size());
    if (first && random.Chance(90))
      invoices.push_back({OpenDay(random.Between(yearStart + 1, order.today)), place, 0, 0});
    else
      invoices.push_back({AnyDay(random, order.today), random.Pick(shoppers), 0, 0});
  }
  std::stable_sort(invoices.begin(), invoices.end(), [](const Invoice& a, const Invoice& b) { return a.day < b.day; });
  return invoices;
}

int Quantity(Random& random, const Stock::Item& item, const Client& client) {
  if (item.category == kBicycles) return client.trade ? random.Between(1, 2) : 1;
  if (item.category == kWorkshop) return random.Chance(80) ? 1 : 2;
  return client.trade ? random.Between(1, 6) : random.Between(1, 3);
}

/// Bicycles are sold less often than what keeps them rolling.
Stock::Item& PickItem(Random& random, Stock& stock) {
  Stock::Item& item = stock.PickItem(random);
  return item.category == kBicycles && random.Chance(70) ? stock.PickItem(random) : item;
}

/// So many lines for the next invoice that all come out at the count asked for.
int LineCount(Random& random, int linesLeft, int invoicesLeft) {
  if (invoicesLeft == 1) return linesLeft;
  const int mean = std::max(1, linesLeft / invoicesLeft);
  const int count = random.Between(1, 2 * mean - 1) + (random.Below(invoicesLeft) < linesLeft % invoicesLeft ? 1 : 0);
  return std::clamp(count, 1, std::max(1, linesLeft - (invoicesLeft - 1)));
}

/// A half cent goes up, as in the tax box of the invoice screen.
Money Tax(Money taxed) {
  const auto perMille = static_cast<Money>(kTaxPercent * 10);
  return (taxed * perMille + 500 * kCent) / (1000 * kCent) * kCent;
}

std::string TrackingNumber(Random& random) {
  return "TRK" + std::to_string(random.Between(100'000'000, 999'999'999));
}

class SalesWriter {
 public:
  SalesWriter(Database& database, Random& random, const Order& order)
      : random_(random),
        order_(order),
        stock_(random, order),
        headers_(database, "tb_Invoice",
                 "InvoiceNum,CustNum,Date,Description,Discount,Tax,ShippingCharge,Shippingdate,ShippingType,"
                 "TrackingNum,Interest,SalesRep,Terms"),
        lines_(database, "tb_trans", "TransNum,InvoiceNum,ItemNum,Qty,Amount,Notes,BackOrder") {}

  void Write(Invoice& invoice, const Client& client, int number, int lineCount) {
    stock_.Advance(invoice.day);
    Money sum = 0;
    const Stock::Item* dearest = nullptr;
    for (int line = 0; line < lineCount; ++line) {
      Stock::Item& item = PickItem(random_, stock_);
      if (dearest == nullptr || item.charge > dearest->charge) dearest = &item;
      sum += WriteLine(item, Quantity(random_, item, client), number);
    }
    WriteHeader(invoice, client, number, sum, DescribeSale(random_, *dearest, lineCount, client.trade, invoice.day));
  }

  /// Writes what is known only at the end: the stock, and which lines wait for it.
  void Finish(Database& database) {
    stock_.Advance(order_.today);
    stock_.Write(database);
    for (const Stock::Item& item : stock_.Items())
      for (const Shortage& shortage : item.shortages) WriteShortage(database, shortage);
  }

 private:
  Money WriteLine(Stock::Item& item, int quantity, int invoice) {
    const Money amount = item.charge * quantity;
    const std::int64_t line = nextLine_++;
    stock_.Take(item, quantity, line);
    lines_.Add({line, invoice, item.number, double(quantity), amount, item.name, "0"});
    return amount;
  }

  void WriteHeader(Invoice& invoice, const Client& client, int number, Money sum, const std::string& description) {
    const Money charged = sum - sum * client.discount / 100;
    const bool shipped = random_.Chance(client.trade ? 40 : 15);
    const Shipping& shipping = shipped ? random_.Pick(Shippings().subspan(1)) : Shippings().front();
    const Day shippingDay = shipped ? std::min(order_.today, invoice.day + random_.Between(1, 3)) : invoice.day;
    const Money interest = random_.Chance(2) ? random_.Between(2, 20) * kDollar : 0;
    invoice.tax = client.taxed ? Tax(charged) : 0;
    invoice.total = charged + shipping.charge + interest + invoice.tax;
    headers_.Add({number, client.number, invoice.day, description, double(client.discount), invoice.tax,
                  shipping.charge, shippingDay, std::string(shipping.service) + " " + shipping.option,
                  shipped ? TrackingNumber(random_) : "", interest, random_.Pick(SalesReps()),
                  client.trade ? "Net 30" : "Due on receipt"});
  }

  void WriteShortage(Database& database, const Shortage& shortage) {
    const bool ordered = order_.today - shortage.day > 6 && random_.Chance(60);
    const std::string day = ordered ? std::to_string(shortage.day + random_.Between(1, 5)) : "NULL";
    database.Run("UPDATE tb_trans SET BackOrder = '" + std::to_string(shortage.units) + "', Ordered = " + day +
                 " WHERE TransNum = " + std::to_string(shortage.line));
  }

  Random& random_;
  const Order& order_;
  Stock stock_;
  Inserter headers_;
  Inserter lines_;
  std::int64_t nextLine_ = kFirstKey;
};

}  // namespace

std::vector<Invoice> WriteSales(Database& database, Random& random, const Order& order,
                                const std::vector<Client>& clients) {
  std::vector<Invoice> invoices = PlanInvoices(random, order, clients);
  SalesWriter writer(database, random, order);
  int linesLeft = order.size.lines;
  int left = static_cast<int>(invoices.size());
  int number = kFirstKey;
  for (Invoice& invoice : invoices) {
    const int count = LineCount(random, linesLeft, left--);
    linesLeft -= count;
    writer.Write(invoice, clients[static_cast<std::size_t>(invoice.client)], number++, count);
  }
  writer.Finish(database);
  return invoices;
}

}  // namespace norvane::sample
