#include "core/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core/Characters.h"
#include "core/RuntimeError.h"

namespace norvane {
namespace {

constexpr int kSignificantDigits = 15;
/// Far beyond every Double; keeps the sums of exponents small whatever a text says.
constexpr int kExponentLimit = 10'000'000;

/// Restores the form: no zeros at either end, and zero without digits, sign and point.
void Normalize(Decimal& decimal) {
  const std::size_t first = decimal.digits.find_first_not_of('0');
  if (first == std::string::npos) {
    decimal = {};
    return;
  }
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  decimal.digits.erase(0, first);
  decimal.point -= static_cast<int>(first);
}

char DigitAt(const Decimal& decimal, int place) {
  return place >= 0 && place < static_cast<int>(decimal.digits.size()) ? decimal.digits[place] : '0';
}

/// Adds one to the last digit.
void Increment(Decimal& decimal) {
  auto digit = decimal.digits.rbegin();
  for (; digit != decimal.digits.rend() && *digit == '9'; ++digit) *digit = '0';
  if (digit != decimal.digits.rend()) {
    ++*digit;
    return;
  }
  decimal.digits.insert(decimal.digits.begin(), '1');
  ++decimal.point;
}

/// The digits before the point, "0" if there are none.
std::string WholeDigits(const Decimal& decimal, std::string_view separator) {
  if (decimal.point <= 0) return "0";
  std::string text;
  for (int place = 0; place < decimal.point; ++place) {
    if (place > 0 && (decimal.point - place) % 3 == 0) text += separator;
    text += DigitAt(decimal, place);
  }
  return text;
}

bool TakeThousandsSeparator(std::string_view& text, std::string_view separator) {
  // People type an ordinary space where the locale writes a fixed one.
  if (WhitespaceLength(separator) == 0) return Take(text, separator);
  const std::size_t length = WhitespaceLength(text);
  text.remove_prefix(length);
  return length > 0;
}

/// Reads the exponent after the digits; 0, and the text unchanged, if there is none.
int ScanExponent(std::string_view& text) {
  std::string_view rest = text;
  if (rest.empty() || ToLower(rest.front()) != 'e') return 0;
  rest.remove_prefix(1);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  if (rest.empty() || !IsDigit(rest.front())) return 0;
  int exponent = 0;
  for (; !rest.empty() && IsDigit(rest.front()); rest.remove_prefix(1)) {
    exponent = std::min(exponent, kExponentLimit) * 10 + (rest.front() - '0');
  }
  text = rest;
  return negative ? -exponent : exponent;
}

}  // namespace

Decimal DecimalOf(double value) {
  if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
  char text[32];
  const auto end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, kSignificantDigits - 1).ptr;
  std::string_view rest(text, end - text);
  const bool negative = Take(rest, "-");
  Decimal decimal = *ScanDecimal(rest, {});
  decimal.negative = negative && !decimal.digits.empty();
  return decimal;
}

Decimal DecimalOf(Currency value) {
  char text[24];
  const auto end = std::to_chars(text, text + sizeof text, value.TenThousandths()).ptr;
  const bool negative = text[0] == '-';
  Decimal decimal{negative, std::string(text + negative, end), 0};
  decimal.point = static_cast<int>(decimal.digits.size()) - 4;
  Normalize(decimal);
  return decimal;
}

std::optional<double> DoubleOf(const Decimal& decimal) {
  if (decimal.digits.empty() || decimal.point < -400) return 0.0;
  if (decimal.point > 400) return std::nullopt;
  const std::string text = (decimal.negative ? "-." : ".") + decimal.digits + 'e' + std::to_string(decimal.point);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) return decimal.point > 0 ? std::nullopt : std::optional(0.0);
  return value;
}

std::optional<Currency> CurrencyOf(const Decimal& decimal) {
  const int places = decimal.point + 4;
  if (places < 0) return Currency();
  if (places > 19) return std::nullopt;
  std::uint64_t count = 0;
  for (int place = 0; place < places; ++place) count = count * 10 + (DigitAt(decimal, place) - '0');
  const char next = DigitAt(decimal, places);
  const bool more = places + 1 < static_cast<int>(decimal.digits.size());
  if (next > '5' || (next == '5' && (more || count % 2 == 1))) ++count;
  const std::uint64_t limit = std::uint64_t{INT64_MAX} + (decimal.negative ? 1 : 0);
  if (count > limit) return std::nullopt;
  // Negated while unsigned: the lowest Currency has no positive counterpart.
  return Currency::FromTenThousandths(static_cast<std::int64_t>(decimal.negative ? -count : count));
}

void RoundTies(Decimal& decimal, int decimals) {
  const int kept = decimal.point + decimals;
  if (kept >= static_cast<int>(decimal.digits.size())) return;
  const bool up = DigitAt(decimal, kept) >= '5';
  if (kept <= 0) {
    decimal = up && kept == 0 ? Decimal{decimal.negative, "1", 1 - decimals} : Decimal{};
    return;
  }
  decimal.digits.resize(kept);
  if (up) Increment(decimal);
  Normalize(decimal);
}

std::string FixedText(const Decimal& decimal, int decimals, const NumberMarks& marks) {
  std::string text = WholeDigits(decimal, marks.thousandsSeparator);
  if (decimals > 0) text += marks.decimalPoint;
  for (int place = 0; place < decimals; ++place) text += DigitAt(decimal, decimal.point + place);
  return text;
}

std::string PlainText(const Decimal& decimal, std::string_view decimalPoint) {
  const int decimals = std::max(0, static_cast<int>(decimal.digits.size()) - decimal.point);
  return (decimal.negative ? "-" : "") + FixedText(decimal, decimals, {decimalPoint, {}});
}

std::string ExponentText(const Decimal& decimal, std::string_view decimalPoint) {
  const int exponent = decimal.point - 1;
  const std::string power = std::to_string(std::abs(exponent));
  return PlainText({decimal.negative, decimal.digits, 1}, decimalPoint) + (exponent < 0 ? "E-" : "E+") +
         (power.size() < 2 ? "0" : "") + power;
}

std::optional<Decimal> ScanDecimal(std::string_view& text, const NumberMarks& marks) {
  std::string_view rest = text;
  Decimal decimal;
  bool digitSeen = false;
  bool pointSeen = false;
  while (!rest.empty()) {
    if (IsDigit(rest.front())) {
      digitSeen = true;
      // Zeros ahead of the first digit that counts only move the point.
      const bool leading = decimal.digits.empty() && rest.front() == '0';
      if (!leading) decimal.digits += rest.front();
      if (!leading && !pointSeen) ++decimal.point;
      if (leading && pointSeen) --decimal.point;
      rest.remove_prefix(1);
    } else if (!pointSeen && Take(rest, marks.decimalPoint)) {
      pointSeen = true;
    } else if (pointSeen || !TakeThousandsSeparator(rest, marks.thousandsSeparator)) {
      break;
    }
  }
  if (!digitSeen) return std::nullopt;
  decimal.point += ScanExponent(rest);
  Normalize(decimal);
  text = rest;
  return decimal;
}

}  // namespace norvane
