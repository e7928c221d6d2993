#pragma once

#include <string>

#include "sample/Calendar.h"
#include "sample/Random.h"
#include "sample/Stock.h"

namespace norvane::sample {

/// What someone at the counter types for a sale: what the `dearest` of its lines is for.
std::string DescribeSale(Random& random, const Stock::Item& dearest, int lines, bool trade, Day day);

}  // namespace norvane::sample
