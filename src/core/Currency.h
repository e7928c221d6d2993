#pragma once

#include <compare>
#include <cstdint>

namespace norvane {

/// Money: a whole count of ten-thousandths. Sums, differences and products are exact or raise 6; nothing wraps.
class Currency {
 public:
  constexpr Currency() = default;
  static constexpr Currency FromTenThousandths(std::int64_t count) { return Currency(count); }
  /// Whole units, as in FromWhole(5) for 5.00.
  static constexpr Currency FromWhole(std::int32_t units) { return Currency(std::int64_t{units} * 10'000); }
  /// The exact binary value times 10,000, rounded to the nearest, true halves to even. Raises 6 out of range.
  static Currency FromDouble(double value);

  constexpr std::int64_t TenThousandths() const { return count_; }
  double ToDouble() const { return static_cast<double>(count_) / 10'000.0; }

  Currency operator-() const;
  Currency& operator+=(Currency other);
  Currency& operator-=(Currency other);
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  friend Currency operator-(Currency a, Currency b) { return a -= b; }
  /// Currency with Currency is Currency: the product rounded half to even to four decimals.
  friend Currency operator*(Currency a, Currency b);
  constexpr auto operator<=>(const Currency&) const = default;  // NOLINT(modernize-use-nullptr): clang-tidy 14 errs

 private:
  constexpr explicit Currency(std::int64_t count) : count_(count) {}
  std::int64_t count_ = 0;
};

}  // namespace norvane
