#include "core/Given.h"

namespace norvane {
namespace {

Value Text(const char* text) {
  return std::string(text);
}
Value Money(int cents) {
  return Currency::FromTenThousandths(cents * std::int64_t{100});
}

Value Sum(const Value& a, const Value& b) {
  return Add(a, b, kUnitedStates);
}
Value Difference(const Value& a, const Value& b) {
  return Subtract(a, b, kUnitedStates);
}
Value Product(const Value& a, const Value& b) {
  return Multiply(a, b, kUnitedStates);
}
Value Quotient(const Value& a, const Value& b) {
  return Divide(a, b, kUnitedStates);
}

TEST(Arithmetic, WithANullIsNull) {
  EXPECT_EQ(Sum(Null{}, Text("no number")), Value(Null{}));
  EXPECT_EQ(Difference(5, Null{}), Value(Null{}));
  EXPECT_EQ(Product(Null{}, 5), Value(Null{}));
  EXPECT_EQ(Quotient(Null{}, 0), Value(Null{}));
}

TEST(Arithmetic, TakesItsTypeFromTheOperands) {
  EXPECT_EQ(Sum(2, true), Value(1));
  EXPECT_EQ(Sum(0.5, Money(10)), Money(60));
  EXPECT_EQ(Product(Money(150), Money(200)), Money(300));
  EXPECT_EQ(Product(3, Money(150)), Money(450));
  EXPECT_EQ(Product(Money(150), 0.5), Value(0.75));
  EXPECT_EQ(Quotient(Money(300), Money(200)), Value(1.5));
  EXPECT_EQ(Quotient(6, 3), Value(2.0));
}

TEST(Arithmetic, OfTextsJoinsAndOfATextWithANumberCalculates) {
  EXPECT_EQ(Sum(Text("1"), Text("2")), Text("12"));
  EXPECT_EQ(Sum(Text("$1.50"), 2), Value(3.5));
  EXPECT_EQ(Sum(Text("0"), Money(150)), Money(150));
  EXPECT_EQ(Difference(Text("3"), Text("2")), Value(1.0));
  EXPECT_EQ(Add(Text("1,5"), 1, kGermany), Value(2.5));
  EXPECT_EQ(ErrorOf([] { Sum(Text(""), 1); }), 13);
}

TEST(Arithmetic, OfDatesCountsDays) {
  const Value date = Date(45296);
  EXPECT_EQ(Sum(date, 30), Value(Date(45326)));
  EXPECT_EQ(Difference(date, 30), Value(Date(45266)));
  EXPECT_EQ(Difference(date, Date(45290)), Value(6.0));
  EXPECT_EQ(ErrorOf([&] { Sum(date, 1e9); }), 6);
}

TEST(Arithmetic, PastARangeRaises) {
  EXPECT_EQ(ErrorOf([] { Sum(2147483647, 1); }), 6);
  EXPECT_EQ(ErrorOf([] { Product(65536, 65536); }), 6);
  EXPECT_EQ(ErrorOf([] { Product(1e200, 1e200); }), 6);
  EXPECT_EQ(ErrorOf([] { Quotient(1, 0); }), 11);
  EXPECT_EQ(ErrorOf([] { Quotient(1, Text("0.00")); }), 11);
}

TEST(Conversions, OfValuesTakeEveryTypeButNull) {
  EXPECT_EQ(kUnitedStates.ToLong(Value(true)), -1);
  EXPECT_EQ(kUnitedStates.ToInteger(Money(250)), 2);
  EXPECT_EQ(kUnitedStates.ToCurrency(Value(Text("(1.00)"))), Currency::FromWhole(-1));
  EXPECT_EQ(kUnitedStates.ToDate(Value(45296)), Date(45296));
  EXPECT_TRUE(kUnitedStates.ToBoolean(Text("true")));
  EXPECT_FALSE(kUnitedStates.ToBoolean("0"));
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToBoolean("yes"); }), 13);
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToLong(Value()); }), 94);
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToDate(Value()); }), 94);
  EXPECT_EQ(kUnitedStates.ToText(Value()), "");
  EXPECT_EQ(kUnitedStates.ToText(Value(false)), "False");
}

}  // namespace
}  // namespace norvane
