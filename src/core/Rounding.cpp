#include "core/Rounding.h"

#include <cmath>
#include <limits>

#include "core/RuntimeError.h"

namespace norvane {
namespace {

template <class Whole>
Whole RoundTo(double value) {
  const double rounded = std::nearbyint(value);
  // Asked this way round, so that what is no number fails too.
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    Raise(ErrorNumber::Overflow);
  }
  return static_cast<Whole>(rounded);
}

template <class Whole>
Whole RoundTo(Currency value) {
  constexpr std::int64_t kUnit = 10'000;
  std::int64_t whole = value.TenThousandths() / kUnit;
  const std::int64_t rest = std::abs(value.TenThousandths() % kUnit);
  if (rest > kUnit / 2 || (rest == kUnit / 2 && whole % 2 != 0)) whole += value.TenThousandths() < 0 ? -1 : 1;
  if (whole < std::numeric_limits<Whole>::min() || whole > std::numeric_limits<Whole>::max()) {
    Raise(ErrorNumber::Overflow);
  }
  return static_cast<Whole>(whole);
}

}  // namespace

std::int32_t RoundToLong(double value) {
  return RoundTo<std::int32_t>(value);
}
std::int32_t RoundToLong(Currency value) {
  return RoundTo<std::int32_t>(value);
}
std::int16_t RoundToInteger(double value) {
  return RoundTo<std::int16_t>(value);
}
std::int16_t RoundToInteger(Currency value) {
  return RoundTo<std::int16_t>(value);
}

}  // namespace norvane
