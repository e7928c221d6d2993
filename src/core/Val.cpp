#include "core/Val.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>

#include "core/Characters.h"
#include "core/Decimal.h"
#include "core/Rounding.h"

namespace norvane {
namespace {

/// The text without whitespace, which counts nowhere.
std::string Condensed(std::string_view text) {
  std::string condensed;
  std::copy_if(text.begin(), text.end(), std::back_inserter(condensed),
               [](char c) { return c != ' ' && c != '\t' && c != '\n'; });
  return condensed;
}

int DigitOf(char c, int base) {
  const char lower = ToLower(c);
  const int digit = IsDigit(c) ? c - '0' : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : base;
  return digit < base ? digit : -1;
}

/// The number after &H or &O: the bits of a 16-bit number or, where they do not suffice or an & follows, of a 32-bit
/// one. So &HFFFF is -1 and &HFFFF& 65535.
double RadixNumber(std::string_view digits, int base) {
  std::uint64_t number = 0;
  for (; !digits.empty() && DigitOf(digits.front(), base) >= 0; digits.remove_prefix(1)) {
    number = number * base + DigitOf(digits.front(), base);
    if (number > std::numeric_limits<std::uint32_t>::max()) return 0;
  }
  const bool isLong = digits.starts_with('&') || number > std::numeric_limits<std::uint16_t>::max();
  return isLong ? static_cast<std::int32_t>(number) : static_cast<std::int16_t>(number);
}

}  // namespace

double Val(std::string_view text) {
  std::string condensed = Condensed(text);
  std::string_view rest = condensed;
  if (StartsWithNoCase(rest, "&H")) return RadixNumber(rest.substr(2), 16);
  if (StartsWithNoCase(rest, "&O")) return RadixNumber(rest.substr(2), 8);
  // An exponent may follow a d as well.
  std::replace_if(
      condensed.begin(), condensed.end(), [](char c) { return ToLower(c) == 'd'; }, 'e');
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  std::optional<Decimal> number = ScanDecimal(rest, {});
  if (!number) return 0;
  number->negative = negative && !number->digits.empty();
  const double largest = std::numeric_limits<double>::max();
  return DoubleOf(*number).value_or(negative ? -largest : largest);
}

std::int32_t ValLong(std::string_view text) {
  return RoundToLong(Val(text));
}

}  // namespace norvane
