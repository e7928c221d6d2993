#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Currency.h"

namespace norvane {

/// A number as its decimal digits: 0.d1d2d3... times ten to the `point`. Zero has no digits.
///
/// Conversions between text and values go through this form, so that text is rounded on the digits that the user sees.
struct Decimal {
  bool negative = false;
  std::string digits;  ///< without zeros at either end
  int point = 0;
};

/// The marks within a number. An empty one never matches.
struct NumberMarks {
  std::string_view decimalPoint = ".";
  std::string_view thousandsSeparator;
};

/// The value to 15 significant digits. Raises 6 for what is no finite number.
Decimal DecimalOf(double value);
/// The value exactly.
Decimal DecimalOf(Currency value);

/// The nearest Double; nothing if it is out of range. Too small a number is 0.
std::optional<double> DoubleOf(const Decimal& decimal);
/// The nearest Currency, halves to even; nothing if it is out of range.
std::optional<Currency> CurrencyOf(const Decimal& decimal);

/// Rounds to that many decimals, ties away from zero. What rounds to zero has no sign.
void RoundTies(Decimal& decimal, int decimals);

/// Plain digits without a sign, with exactly that many decimals; `decimal` is already rounded to them.
std::string FixedText(const Decimal& decimal, int decimals, const NumberMarks& marks);
/// The shortest plain form with its sign: 0.5, -1234.5, 0.
std::string PlainText(const Decimal& decimal, std::string_view decimalPoint);
/// The exponent form with its sign: 1.5E+15, 1E-05.
std::string ExponentText(const Decimal& decimal, std::string_view decimalPoint);

/// Reads digits, marks and an exponent with e or E from the front of the text and cuts them off; no sign. Nothing, and
/// the text unchanged, if there is no digit.
std::optional<Decimal> ScanDecimal(std::string_view& text, const NumberMarks& marks);

}  // namespace norvane
