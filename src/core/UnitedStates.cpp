#include "core/UnitedStates.h"

namespace norvane {
namespace {

/// Only a date without a year asks for the clock, and the program writes none.
class StoppedClock final : public Clock {
 public:
  Date Now() const override { return Date(); }
};

}  // namespace

const Conversions& UnitedStates() {
  static const StoppedClock clock;
  static const Conversions conversions(RegionalSettings{}, clock);
  return conversions;
}

}  // namespace norvane
