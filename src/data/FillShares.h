#pragma once

#include <cstdint>
#include <map>

#include "core/Conversions.h"

namespace norvane {

class Recordset;

/// Shares the stock out among the lines on back order in the order in which they come.
///
/// What there is of an item is its count, from which the lines have been taken already, plus all of its units on back
/// order.
class FillShares {
 public:
  /// `lines` as GetCountedBackOrders reads them.
  FillShares(Recordset& lines, const Conversions& convert);
  /// Gives the current line what is left, up to its units. True if it gets all of them.
  bool Fills(const Recordset& lines);
  /// The units on back order of the current line.
  static double UnitsOf(const Recordset& lines, const Conversions& convert);

 private:
  const Conversions& convert_;
  std::map<std::int32_t, double> left_;  ///< by item
};

}  // namespace norvane
