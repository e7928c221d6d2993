#include "sample/Stock.h"

#include <algorithm>
#include <utility>

#include "sample/Words.h"

namespace norvane::sample {
namespace {

constexpr int kDeliveryEvery = 14;  // days
constexpr int kLateDays = 45;
constexpr Day kSomeMonday = 2;

/// Units of an item that go in one delivery period, on average, from the size alone.
int Demand(const Size& size) {
  return size.lines * 2 / std::max(1, size.items) * kDeliveryEvery / kDaysOfBusiness;
}

}  // namespace

Stock::Stock(Random& random, const Order& order)
    : day_(order.today - kDaysOfBusiness), lateSince_(order.today - kLateDays) {
  const auto articles = Articles();
  const int demand = Demand(order.size);
  for (int place = 0; place < order.size.items; ++place) {
    // More items than there are articles: the same ones again, in other makes.
    const Article& article = articles[static_cast<std::size_t>(place) % articles.size()];
    const int make = place / static_cast<int>(articles.size());
    Item item{.number = kFirstKey + place, .category = article.category, .name = article.name};
    if (make > 0) item.name += ", make " + std::to_string(make + 1);
    item.charge = Money{article.price} * 10 * kCent;
    item.par = article.par > 0 ? std::max(article.par, demand) : 0;
    item.inStock = item.par * 2;
    item.warranty = article.warranty;
    item.late = item.par > 0 && random.Chance(12);
    items_.push_back(item);
  }
}

void Stock::Advance(Day day) {
  while (day_ < day) {
    ++day_;
    if (day_ == lateSince_)
      for (Item& item : items_)
        if (item.late) item.inStock = std::min(item.inStock, 2);
    if ((day_ - kSomeMonday) % kDeliveryEvery == 0) Deliver();
  }
}

void Stock::Deliver() {
  for (Item& item : items_) {
    const bool low = item.inStock <= item.par / 2;
    if (item.par == 0 || !low || (item.late && day_ >= lateSince_)) continue;
    item.inStock = item.par * 2;
    item.shortages.clear();
  }
}

void Stock::Take(Item& item, int units, std::int64_t line) {
  if (item.par == 0) return;
  const int before = std::max(item.inStock, 0);
  item.inStock -= units;
  if (item.inStock < 0) item.shortages.push_back({line, day_, before - units});
}

Stock::Item& Stock::PickItem(Random& random) {
  return items_[static_cast<std::size_t>(random.Below(static_cast<int>(items_.size())))];
}

void Stock::Write(Database& database) const {
  Inserter rows(database, "tb_Inventory", "ItemNum,CatNum,Description,Charge,Par,InStock,Warranty");
  bool arrived = false;  // this morning, for the oldest line of one item, which nobody has been told of
  for (const Item& item : items_) {
    const bool fills = !item.shortages.empty() && !std::exchange(arrived, true);
    const int inStock = item.inStock - (fills ? item.shortages.front().units : 0);
    rows.Add({item.number, item.category, item.name, item.charge, item.par, inStock, item.warranty});
  }
}

}  // namespace norvane::sample
