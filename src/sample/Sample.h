#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "sample/Calendar.h"
#include "sample/Contacts.h"
#include "sample/Database.h"
#include "sample/Random.h"

namespace norvane::sample {

/// How much of everything. Payments and entries come out near their figure, the others exactly.
struct Size {
  int clients = 250;
  int invoices = 1'500;
  int lines = 4'500;
  int items = 80;
  int payments = 700;
  int entries = 900;
};

/// A bicycle shop's three years of business, up to and including `today`.
struct Order {
  Size size{};
  std::uint64_t seed = 1;
  Day today = 0;
};

/// Copies the delivered database `delivered` to `target`, which must not exist, and fills it. Same order and same
/// delivered file: same bytes. The file appears only when it is complete, with mode 0600. Throws std::runtime_error.
void WriteSample(const std::filesystem::path& delivered, const std::filesystem::path& target, const Order& order);

// What the parts of the business know of one another.

inline constexpr int kFirstKey = 1001;  ///< of every numbered table but the categories
inline constexpr int kDaysOfBusiness = 1095;
inline constexpr double kTaxPercent = 6.5;  ///< the business's state's, in percent

struct Client {
  int number = 0;
  bool trade = false;  ///< a company, which buys more and more often
  bool taxed = true;   ///< in the business's own state, and not exempt
  int discount = 0;    ///< percent
  std::string card{};  ///< empty if none is known
};

struct Invoice {
  Day day = 0;
  int client = 0;  ///< index into the clients
  Money total = 0;
  Money tax = 0;
};

struct Payment {
  Day day = 0;
  int client = 0;  ///< index into the clients
  Money amount = 0;
  bool byCard = false;
};

std::vector<Client> WriteClients(Database& database, Random& random, Phones& phones, const Order& order);
/// Company, categories and lookup rows that every sample has.
void WriteSettings(Database& database);
/// Invoices with their lines, in the order of their dates, and the items with the stock that these leave.
std::vector<Invoice> WriteSales(Database& database, Random& random, const Order& order,
                                const std::vector<Client>& clients);
/// What the clients have paid, in the order of the dates.
std::vector<Payment> WritePayments(Database& database, Random& random, const Order& order,
                                   const std::vector<Client>& clients, const std::vector<Invoice>& invoices);
/// Vendors, and the registry: deposits each Friday of what clients paid in the week, by card and otherwise, and
/// payments to vendors.
void WriteLedger(Database& database, Random& random, Phones& phones, const Order& order,
                 const std::vector<Invoice>& invoices, const std::vector<Payment>& payments);

}  // namespace norvane::sample
