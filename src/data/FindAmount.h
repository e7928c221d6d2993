#pragma once

#include <cmath>
#include <cstdio>
#include <string>

namespace norvane {

/// An amount as it is searched: two decimals after a point, without sign, symbol and separators.
inline std::string FindAmount(double amount) {
  char text[400];
  std::snprintf(text, sizeof text, "%.2f", std::abs(amount));
  return text;
}

}  // namespace norvane
