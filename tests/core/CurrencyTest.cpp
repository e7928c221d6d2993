#include <cmath>
#include <limits>

#include "core/Given.h"

namespace norvane {
namespace {

constexpr Currency kLargest = Currency::FromTenThousandths(INT64_MAX);
constexpr Currency kLowest = Currency::FromTenThousandths(INT64_MIN);
constexpr Currency kSmallest = Currency::FromTenThousandths(1);

std::int64_t CountOf(double value) {
  return Currency::FromDouble(value).TenThousandths();
}

TEST(Currency, FromDoubleIsExactAtEveryMagnitude) {
  // Sums of powers of two whose ten-thousandfold is known exactly: n/32 units are 312.5 n ten-thousandths.
  EXPECT_EQ(CountOf(1.0 / 32), 312);
  EXPECT_EQ(CountOf(3.0 / 32), 938);
  EXPECT_EQ(CountOf(std::nextafter(1.0 / 32, 1)), 313);
  EXPECT_EQ(CountOf(1e11 + 1.0 / 32), 1'000'000'000'000'312);
  EXPECT_EQ(CountOf(-1e11 - 3.0 / 32), -1'000'000'000'000'938);
  EXPECT_EQ(CountOf(922337203685477.5), 9'223'372'036'854'775'000);
  EXPECT_EQ(CountOf(5e-324), 0);
  EXPECT_EQ(CountOf(-1e-300), 0);
  for (const double value : {922337203685477.625, -922337203685477.625, 1e300, std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(ErrorOf([&] { Currency::FromDouble(value); }), 6) << value;
  }
}

TEST(Currency, SumsAreExactOrRaiseAndLeaveTheirOperand) {
  Currency sum = kLargest;
  EXPECT_EQ(ErrorOf([&] { sum += kSmallest; }), 6);
  EXPECT_EQ(sum, kLargest);
  EXPECT_EQ(ErrorOf([] { kLowest - kSmallest; }), 6);
  EXPECT_EQ(ErrorOf([] { -kLowest; }), 6);
  EXPECT_EQ(kLargest + kLowest, -kSmallest);
}

TEST(Currency, ProductsRoundHalfToEven) {
  const Currency half = Currency::FromTenThousandths(5000);
  EXPECT_EQ(half * Currency::FromTenThousandths(3), Currency::FromTenThousandths(2));
  EXPECT_EQ(half * Currency::FromTenThousandths(5), Currency::FromTenThousandths(2));
  EXPECT_EQ(half * Currency::FromTenThousandths(-7), Currency::FromTenThousandths(-4));
  EXPECT_EQ(kLargest * Currency::FromWhole(-1), -kLargest);
  EXPECT_EQ(kLowest * half, Currency::FromTenThousandths(INT64_MIN / 2));
  EXPECT_EQ(ErrorOf([] { kLowest* Currency::FromWhole(-1); }), 6);
  EXPECT_EQ(ErrorOf([] { kLargest* kLargest; }), 6);
}

}  // namespace
}  // namespace norvane
