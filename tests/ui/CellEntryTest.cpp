#include <gtest/gtest.h>

#include "ui/CellEntry.h"

namespace norvane::ui {
namespace {

struct Noon : Clock {
  Date Now() const override { return Date::FromYearMonthDay(2026, 11, 22) + 0.5; }
};

TEST(CellEntry, ComputesSumsAndLeavesWhatIsNone) {
  const Noon clock;
  const Conversions home({}, clock);
  RegionalSettings german;
  german.decimalPoint = ",";
  german.thousandsSeparator = ".";
  const Conversions abroad(german, clock);
  const auto sum = [&](const Conversions& convert, const char* text, const char* before = "") {
    return CellEntry(convert, clock).ValueOfSum(text, before).value_or("-").toStdString();
  };
  EXPECT_EQ(sum(home, "12*3.50"), "42");
  EXPECT_EQ(sum(home, "2 * (1,000 - -1) / 4"), "500.5");
  EXPECT_EQ(sum(home, "+10", "-8"), "2");
  EXPECT_EQ(sum(home, "+10"), "10");
  EXPECT_EQ(sum(abroad, "1.000,5*2"), "2001");
  for (const char* none : {"5", "-5", "5-", "(5)", "1/0", "2**3", "", "$5*2", "+", "3*", "11/5/26x"})
    EXPECT_EQ(sum(home, none), "-") << none;
  EXPECT_EQ(sum(home, "+10", "few"), "-");
}

}  // namespace
}  // namespace norvane::ui
