#include "core/NumberParser.h"

#include "core/Characters.h"
#include "core/Val.h"

namespace norvane {
namespace {

/// What may surround the digits: each once, in any order.
struct Surroundings {
  bool sign = false;
  bool minus = false;
  bool symbol = false;
  bool opened = false;
  bool closed = false;

  bool TakeSign(std::string_view& text) {
    if (sign || text.empty() || (text.front() != '-' && text.front() != '+')) return false;
    sign = true;
    minus = text.front() == '-';
    text.remove_prefix(1);
    return true;
  }
  bool TakeSymbol(std::string_view& text, std::string_view currencySymbol) {
    return !symbol && (symbol = Take(text, currencySymbol));
  }
  bool Open(std::string_view& text) { return !opened && (opened = Take(text, "(")); }
  bool Close(std::string_view& text) { return opened && !closed && (closed = Take(text, ")")); }
};

NumberMarks MarksIn(std::string_view text, const RegionalSettings& settings) {
  const std::string& symbol = settings.currencySymbol;
  if (!symbol.empty() && text.find(symbol) != std::string_view::npos) {
    return {settings.currencyDecimalPoint, settings.currencyThousandsSeparator};
  }
  return {settings.decimalPoint, settings.thousandsSeparator};
}

}  // namespace

std::optional<Decimal> ParseNumber(std::string_view text, const RegionalSettings& settings) {
  const NumberMarks marks = MarksIn(text, settings);
  const std::string_view symbol = settings.currencySymbol;
  Surroundings around;
  do {
    SkipWhitespace(text);
  } while (around.TakeSymbol(text, symbol) || around.TakeSign(text) || around.Open(text));
  std::optional<Decimal> number = ScanDecimal(text, marks);
  if (!number) return std::nullopt;
  do {
    SkipWhitespace(text);
  } while (around.TakeSymbol(text, symbol) || around.TakeSign(text) || around.Close(text));
  if (!text.empty() || around.opened != around.closed) return std::nullopt;
  number->negative = (around.minus || around.opened) && !number->digits.empty();
  return number;
}

double ParseLeadingNumber(std::string_view text, const RegionalSettings& settings) {
  const NumberMarks marks = MarksIn(text, settings);
  if (marks.decimalPoint == ".") return Val(text);
  std::string plain;
  bool hasDecimals = false;
  bool hasDigits = false;
  while (!text.empty()) {
    SkipWhitespace(text);
    if (hasDigits && !hasDecimals && Take(text, marks.thousandsSeparator)) continue;
    if (!hasDecimals && Take(text, marks.decimalPoint)) {
      hasDecimals = true;
      plain += '.';
    } else if (!text.empty()) {
      hasDigits |= IsDigit(text.front());
      plain += text.front();
      text.remove_prefix(1);
    }
  }
  return Val(plain);
}

}  // namespace norvane
