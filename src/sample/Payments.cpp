#include <algorithm>

#include "sample/Sample.h"

namespace norvane::sample {
namespace {

struct Account {
  std::vector<const Invoice*> invoices;
  Money owed = 0;
};

/// A client pays what is owed some time after an invoice; now and then a part of it, or something in advance.
class Payer {
 public:
  Payer(Random& random, Day today) : random_(random), today_(today) {}

  void PayAfter(const Invoice& invoice, Account& account) {
    const Day day = invoice.day + (random_.Chance(45) ? 0 : random_.Between(3, 40));
    if (day > today_) return;
    const bool part = random_.Chance(5);
    const Money amount = part ? account.owed / 2 / kDollar * kDollar : account.owed;
    Pay(invoice.client, IsSunday(day) ? day - 1 : day, amount, account);
  }

  void PayInAdvance(const Invoice& invoice, Account& account) {
    const Day day = std::min(today_, invoice.day + random_.Between(1, 20));
    Pay(invoice.client, IsSunday(day) ? day - 1 : day, Money{random_.Between(1, 6)} * 50 * kDollar, account);
  }

  std::vector<Payment> payments;

 private:
  void Pay(int client, Day day, Money amount, Account& account) {
    if (amount <= 0) return;
    payments.push_back({day, client, amount});
    account.owed -= amount;
  }

  Random& random_;
  Day today_;
};

/// Nearly everyone settles the last invoice. How often the earlier ones are paid one by one makes up the count.
constexpr int kSettlePercent = 82;

int PayPercent(const Order& order, int payers) {
  const int settling = payers * kSettlePercent / 100;
  const int others = std::max(1, order.size.invoices - payers);
  return std::clamp((order.size.payments - settling) * 100 / others, 0, 100);
}

std::vector<Payment> PlanPayments(Random& random, const Order& order, std::size_t clientCount,
                                  const std::vector<Invoice>& invoices) {
  std::vector<Account> accounts(clientCount);
  for (const Invoice& invoice : invoices)
    accounts[static_cast<std::size_t>(invoice.client)].invoices.push_back(&invoice);
  const auto payers =
      std::count_if(accounts.begin(), accounts.end(), [](const Account& a) { return !a.invoices.empty(); });
  const int percent = PayPercent(order, static_cast<int>(payers));

  Payer payer(random, order.today);
  for (Account& account : accounts)
    for (const Invoice* invoice : account.invoices) {
      account.owed += invoice->total;
      const bool last = invoice == account.invoices.back();
      if (random.Chance(last ? kSettlePercent : percent)) payer.PayAfter(*invoice, account);
      if (last && account.owed == 0 && random.Chance(4)) payer.PayInAdvance(*invoice, account);
    }
  std::stable_sort(payer.payments.begin(), payer.payments.end(),
                   [](const Payment& a, const Payment& b) { return a.day < b.day; });
  return std::move(payer.payments);
}

struct Means {
  std::string type, number;
};

Means MeansOf(Random& random, const Client& client) {
  if (!client.card.empty() && random.Chance(60)) return {"Credit Card", client.card};
  if (random.Chance(client.trade ? 90 : 50)) return {"Check", std::to_string(random.Between(101, 4999))};
  return {random.Chance(85) ? "Cash" : "Money Order", ""};
}

}  // namespace

std::vector<Payment> WritePayments(Database& database, Random& random, const Order& order,
                                   const std::vector<Client>& clients, const std::vector<Invoice>& invoices) {
  std::vector<Payment> payments = PlanPayments(random, order, clients.size(), invoices);
  Inserter rows(database, "tb_Receive", "TransNum,CustNum,Type,CheckNum,Date,Amount,Notes");
  int number = kFirstKey;
  for (Payment& payment : payments) {
    const Client& client = clients[static_cast<std::size_t>(payment.client)];
    const Means means = MeansOf(random, client);
    payment.byCard = means.number == client.card && !client.card.empty();
    rows.Add({number++, client.number, means.type, means.number, payment.day, payment.amount,
              random.Chance(8) ? "Thank you" : ""});
  }
  return payments;
}

}  // namespace norvane::sample
