#pragma once

#include <vector>

#include "sample/Sample.h"

namespace norvane::sample {

/// A line whose units are short; its figure is negative.
struct Shortage {
  std::int64_t line = 0;  ///< `TransNum`
  Day day = 0;
  int units = 0;
};

/// The items, and their stock as the lines take from it day by day.
class Stock {
 public:
  Stock(Random& random, const Order& order);

  struct Item {
    int number = 0;
    int category = 0;
    std::string name{};
    Money charge = 0;
    int par = 0;
    int inStock = 0;
    std::string warranty{};
    bool late = false;  ///< the supplier has not delivered for weeks
    std::vector<Shortage> shortages{};
  };

  /// The day has come: every second Monday what runs short is delivered, and its shortages are settled.
  void Advance(Day day);
  /// Takes the units of a line; what is short is remembered until the next delivery.
  void Take(Item& item, int units, std::int64_t line);
  Item& PickItem(Random& random);
  const std::vector<Item>& Items() const { return items_; }
  void Write(Database& database) const;

 private:
  void Deliver();

  Day day_;
  Day lateSince_;
  std::vector<Item> items_;
};

}  // namespace norvane::sample
