#include "core/Currency.h"

#include <cmath>

#include "core/RuntimeError.h"

namespace norvane {
namespace {

__extension__ using Wide = __int128;

/// The whole part of count / 2^shift, halves to even.
std::uint64_t ShiftedToEven(std::uint64_t count, int shift) {
  if (shift >= 64) return 0;
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const std::uint64_t rest = count & (half * 2 - 1);
  const std::uint64_t whole = count >> shift;
  return whole + (rest > half || (rest == half && whole % 2 == 1) ? 1 : 0);
}

}  // namespace

Currency Currency::FromDouble(double value) {
  if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
  int exponent = 0;
  const double fraction = std::frexp(std::abs(value), &exponent);
  // The value is mantissa times 2^(exponent - 53). Ten thousand is 625 times 2^4, and 53 bits times 625 fit into 63.
  const auto count = static_cast<std::uint64_t>(std::ldexp(fraction, 53)) * 625;
  const int shift = exponent - 53 + 4;
  if (shift > 63 || (shift > 0 && count > (std::uint64_t{INT64_MAX} >> shift))) Raise(ErrorNumber::Overflow);
  const auto scaled = static_cast<std::int64_t>(shift >= 0 ? count << shift : ShiftedToEven(count, -shift));
  return Currency(value < 0 ? -scaled : scaled);
}

Currency Currency::operator-() const {
  return Currency() - *this;
}

Currency& Currency::operator+=(Currency other) {
  std::int64_t count = 0;
  if (__builtin_add_overflow(count_, other.count_, &count)) Raise(ErrorNumber::Overflow);
  count_ = count;
  return *this;
}

Currency& Currency::operator-=(Currency other) {
  std::int64_t count = 0;
  if (__builtin_sub_overflow(count_, other.count_, &count)) Raise(ErrorNumber::Overflow);
  count_ = count;
  return *this;
}

Currency operator*(Currency a, Currency b) {
  constexpr Wide kScale = 10'000;
  const Wide product = Wide{a.count_} * b.count_;
  Wide count = product / kScale;
  const Wide rest = product < 0 ? -(product % kScale) : product % kScale;
  if (rest > kScale / 2 || (rest == kScale / 2 && count % 2 != 0)) count += product < 0 ? -1 : 1;
  if (count < INT64_MIN || count > INT64_MAX) Raise(ErrorNumber::Overflow);
  return Currency(static_cast<std::int64_t>(count));
}

}  // namespace norvane
