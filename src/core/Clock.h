#pragma once

#include "core/Date.h"

namespace norvane {

/// The machine's clock, by local time.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Today and the time of day as the fraction.
  virtual Date Now() const = 0;
  /// Today without time.
  Date Today() const { return Date(Now().Day()); }
};

}  // namespace norvane
