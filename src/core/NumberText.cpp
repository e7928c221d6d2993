#include "core/NumberText.h"

#include "core/Characters.h"

namespace norvane {
namespace {

constexpr int kPlainUpTo = 15;
constexpr int kPlainDownTo = -3;

}  // namespace

std::string NumberText(double value, std::string_view decimalPoint) {
  const Decimal decimal = DecimalOf(value);
  const bool plain = decimal.point <= kPlainUpTo && decimal.point >= kPlainDownTo;
  return plain ? PlainText(decimal, decimalPoint) : ExponentText(decimal, decimalPoint);
}

std::string NumberText(Currency value, std::string_view decimalPoint) {
  return PlainText(DecimalOf(value), decimalPoint);
}

std::string MoneyText(Decimal amount, const RegionalSettings& settings) {
  RoundTies(amount, 2);
  std::string_view pattern = amount.negative ? settings.negativeCurrency : settings.positiveCurrency;
  std::string text;
  while (!pattern.empty()) {
    if (Take(pattern, "%s")) {
      text += settings.currencySymbol;
    } else if (Take(pattern, "%n")) {
      text += FixedText(amount, 2, {settings.currencyDecimalPoint, settings.currencyThousandsSeparator});
    } else {
      text += pattern.front();
      pattern.remove_prefix(1);
    }
  }
  return text;
}

}  // namespace norvane
