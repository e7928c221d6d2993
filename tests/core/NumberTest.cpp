#include <limits>
#include <utility>

#include "core/Given.h"
#include "core/MaskText.h"
#include "core/Rounding.h"
#include "core/SqlText.h"
#include "core/Val.h"

namespace norvane {
namespace {

TEST(LeadingNumber, ReadsRegionalSignsWhereTheDecimalSignIsNoPoint) {
  const std::pair<const char*, double> cases[] = {{"7,50 €", 7.5}, {"1.234,56 €", 1234.56}, {"-0,99", -0.99},
                                                  {"8,25%", 8.25}, {"€ 7,50", 0},           {"12", 12}};
  for (const auto& [text, number] : cases) EXPECT_EQ(kGermany.LeadingNumber(text), number) << text;
  EXPECT_EQ(kUnitedStates.LeadingNumber("1,234.5"), 1);
  RegionalSettings french = Germany();
  french.thousandsSeparator = french.currencyThousandsSeparator = "\u202F";
  EXPECT_EQ(Conversions(french, kClock).LeadingNumber("1\u202F234,5 €"), 1234.5);
}

TEST(Val, TakesTheLeadingNumberAndNeverFails) {
  const std::pair<const char*, double> cases[] = {{"", 0},
                                                  {"abc", 0},
                                                  {"$5", 0},
                                                  {"1,234", 1},
                                                  {"8.25%", 8.25},
                                                  {"1 615 198th", 1615198},
                                                  {"\t-\n5", -5},
                                                  {"--5", 0},
                                                  {"+5", 5},
                                                  {"5-", 5},
                                                  {".5", 0.5},
                                                  {".", 0},
                                                  {"-", 0},
                                                  {"5.5.5", 5.5},
                                                  {"1e3", 1000},
                                                  {"1E-2x", 0.01},
                                                  {"1d3", 1000},
                                                  {"1D+3", 1000},
                                                  {"1e", 1},
                                                  {"1e+", 1},
                                                  {"1 e 3", 1000},
                                                  {"&H1F", 31},
                                                  {"&hffff", -1},
                                                  {"&HFFFF&", 65535},
                                                  {"&H10000", 65536},
                                                  {"&HFFFFFFFF", -1},
                                                  {"&O17", 15},
                                                  {"&O8", 0},
                                                  {"&H", 0},
                                                  {"&HFFFFFFFFFF", 0},
                                                  {"inf", 0},
                                                  {"nan", 0},
                                                  {"1\r2", 1},
                                                  {"-0", 0},
                                                  {"1e-999999999999", 0},
                                                  {"-1e999999999999", -std::numeric_limits<double>::max()},
                                                  {"__/__/__", 0}};
  for (const auto& [text, number] : cases) EXPECT_EQ(Val(text), number) << text;
}

TEST(Val, AsWholeNumberRoundsHalfToEven) {
  EXPECT_EQ(ValLong("2.5 boxes"), 2);
  EXPECT_EQ(ValLong("3.5"), 4);
  EXPECT_EQ(ValLong("Item"), 0);
  EXPECT_EQ(ErrorOf([] { ValLong("2147483647.5"); }), 6);
}

TEST(Rounding, TurnsHalvesToEvenUpToTheEndsOfTheRange) {
  EXPECT_EQ(RoundToLong(-3.5), -4);
  EXPECT_EQ(RoundToLong(2147483647.4999), 2147483647);
  EXPECT_EQ(RoundToLong(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(ErrorOf([] { RoundToLong(2147483647.5); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToLong(std::numeric_limits<double>::quiet_NaN()); }), 6);
  EXPECT_EQ(RoundToInteger(Currency::FromTenThousandths(-327'685'000)), -32768);
  EXPECT_EQ(ErrorOf([] { RoundToInteger(Currency::FromTenThousandths(-327'685'001)); }), 6);
}

TEST(TextToNumber, TakesSignSymbolAndParenthesesOnceEach) {
  for (const char* text :
       {"--5", "-5-", "$5$", "((5))", "(5", "5)", "(5))", ")5(", "()", "$", "$-", "1,", "1e5.5", "5 %"}) {
    const bool numeric = std::string_view(text) == "1,";
    EXPECT_EQ(kUnitedStates.IsNumeric(text), numeric) << text;
  }
  for (const char* text : {"- 5", "$ -5", "5 -", "5$-", "(5 $)", " ( 5 ) ", "(-5)"}) {
    EXPECT_EQ(kUnitedStates.ToDouble(text), -5) << text;
  }
}

TEST(TextToNumber, ReadsMoneyByItsDecimalDigits) {
  // As a Double each of these lies on the other side of the half.
  EXPECT_EQ(kUnitedStates.ToCurrency("0.00015"), Currency::FromTenThousandths(2));
  EXPECT_EQ(kUnitedStates.ToCurrency("0.00025"), Currency::FromTenThousandths(2));
  EXPECT_EQ(kUnitedStates.ToCurrency("0.000250001"), Currency::FromTenThousandths(3));
  EXPECT_EQ(kUnitedStates.ToCurrency("-922337203685477.5808"), Currency::FromTenThousandths(INT64_MIN));
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToCurrency("922337203685477.58075"); }), 6);
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToCurrency("1e99999999999"); }), 6);
}

TEST(TextToNumber, FollowsTheMachine) {
  EXPECT_EQ(kGermany.ToDouble("1.234,5"), 1234.5);
  EXPECT_EQ(kGermany.ToDouble("1.5"), 15);
  EXPECT_EQ(kGermany.ToCurrency("-1.234,50 €"), Currency::FromTenThousandths(-12'345'000));
  EXPECT_FALSE(kGermany.IsNumeric("$5"));
  RegionalSettings france = Germany();
  france.thousandsSeparator = "\u202F";
  EXPECT_EQ(Conversions(france, kClock).ToDouble("1 234 567,5"), 1234567.5);
}

TEST(NumberText, SwitchesToTheExponentFormAtItsBounds) {
  const std::pair<double, const char*> cases[] = {{999999999999999, "999999999999999"},
                                                  {9999999999999999, "1E+16"},
                                                  {-1.5e20, "-1.5E+20"},
                                                  {0.0001, "0.0001"},
                                                  {0.00001, "1E-05"},
                                                  {-1.25e-7, "-1.25E-07"},
                                                  {5e-324, "4.94065645841247E-324"},
                                                  {-0.0, "0"},
                                                  {1.0 / 30, "0.0333333333333333"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(kUnitedStates.ToText(value), text);
  EXPECT_EQ(kGermany.ToText(-0.5), "-0,5");
  EXPECT_EQ(sql::Text(-0.5), "-0.5");
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToText(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(CurrencyText, IsWrittenTheMachinesWayAndReadsBack) {
  const Currency owed = Currency::FromTenThousandths(-12'345'678'900);
  EXPECT_EQ(kUnitedStates.CurrencyText(owed), "($1,234,567.89)");
  EXPECT_EQ(kGermany.CurrencyText(owed), "-1.234.567,89 €");
  EXPECT_EQ(kUnitedStates.ToCurrency(kUnitedStates.CurrencyText(owed)), owed);
  EXPECT_EQ(kGermany.ToCurrency(kGermany.CurrencyText(owed)), owed);
  EXPECT_EQ(Val(kUnitedStates.CurrencyText(owed)), 0);
}

TEST(CurrencyText, RoundsOnTheDigitsAndHasNoNegativeZero) {
  EXPECT_EQ(kUnitedStates.CurrencyText(2.675), "$2.68");
  EXPECT_EQ(kUnitedStates.CurrencyText(-0.005), "($0.01)");
  EXPECT_EQ(kUnitedStates.CurrencyText(-0.0049), "$0.00");
  EXPECT_EQ(kUnitedStates.CurrencyText(99.995), "$100.00");
  EXPECT_EQ(kUnitedStates.CurrencyText(0.00099), "$0.00");
  EXPECT_EQ(kUnitedStates.TwoDecimals(1.005), "1.01");
  EXPECT_EQ(kUnitedStates.TwoDecimals(-1234.5), "-1234.50");
  EXPECT_EQ(kGermany.TwoDecimals(0.125), "0,13");
}

TEST(CurrencyText, OfATextIsTheNumbersAndOfNullEmpty) {
  EXPECT_EQ(kUnitedStates.CurrencyText("(1234.5)"), "($1,234.50)");
  EXPECT_EQ(kUnitedStates.CurrencyText(Value(std::string("2.345"))), "$2.35");
  EXPECT_EQ(kUnitedStates.CurrencyText(Value(Null{})), "");
  EXPECT_EQ(ErrorOf([] { kUnitedStates.CurrencyText(""); }), 13);
}

TEST(PaddedText, FillsWithZerosAndNeverCuts) {
  EXPECT_EQ(PaddedText(7, 3), "007");
  EXPECT_EQ(PaddedText(1234, 3), "1234");
  EXPECT_EQ(PaddedText(-7, 3), "-007");
}

}  // namespace
}  // namespace norvane
