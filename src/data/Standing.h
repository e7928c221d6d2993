#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/DataObject.h"

namespace norvane {

/// How the business stands today, by the rules of the reports that show the same: balances as in ClientBals, sales and
/// receipts of a month as in its income statement, a client's sales as in the sales list of the year.
class Standing : public DataObject {
 public:
  static constexpr int kMonths = 24;
  static constexpr std::size_t kBest = 5;

  struct Month {
    Date first;
    Currency sales, received;
    bool hasReceipts = false;
  };
  struct Best {
    std::int32_t number = 0;
    std::string name;
    Currency sales;
  };

  explicit Standing(Workspace& workspace) : DataObject(workspace) {}

  Currency owed;                 ///< by all clients, credits taken off
  std::array<Currency, 4> aged;  ///< of invoices up to 30, 60 and 90 days old, and older; payments pay the oldest first
  Currency credits;              ///< of clients who have paid too much, negative
  std::vector<Month> months;     ///< the current one last
  Currency salesThisYear, receivedThisYear;
  bool hasReceiptsThisYear = false;
  std::vector<Best> clients, items;  ///< the best first; items of all years
  std::int32_t itemsAtPar = 0;       ///< that are counted and not above their par
  std::int32_t toOrder = 0, onOrder = 0;
  Currency registryCurrent, registryEnding;

  /// Reads all of it. Errors go to the caller.
  void Read();

 private:
  struct Sale {
    std::int32_t client;
    Date date;
    Currency total;
  };
  std::vector<Sale> ReadSales();
  void AddUpMonths(const std::vector<Sale>& sales);
  void AddReceipts();
  void AgeBalances(std::vector<Sale> sales);
  void FindBestClients();
  void FindBestItems();
  void CountStock();
};

}  // namespace norvane
