#pragma once

#include <string>
#include <vector>

#include "core/RegionalSettings.h"

namespace norvane {

/// What a locale of the platform says, in UTF-8.
struct LocaleFacts {
  std::string decimalPoint;
  std::string thousandsSeparator;
  std::string moneyDecimalPoint;
  std::string moneyThousandsSeparator;
  std::string currencySymbol;

  /// How one sign of money is laid out; the numbers are those of the platform's `lconv`, -1 for not given.
  struct MoneyLayout {
    int symbolFirst = -1;
    int blankBetween = -1;
    int signPlace = -1;
  };
  MoneyLayout positive;
  MoneyLayout negative;

  std::string dateFormat;  ///< in the conversions of `strftime`, as is the time's
  std::string timeFormat;
  std::string dateAndTimeFormat;  ///< often with the month's name
  std::string am;
  std::string pm;
  std::vector<std::string> monthNames;
  std::vector<std::string> dayNames;  ///< Sunday first
};

/// Takes the numbers' and money's part of the facts over into the settings; what they leave out stays.
void ApplyNumbers(const LocaleFacts& facts, RegionalSettings& settings);
void ApplyMoney(const LocaleFacts& facts, RegionalSettings& settings);
void ApplyDates(const LocaleFacts& facts, RegionalSettings& settings);

}  // namespace norvane
