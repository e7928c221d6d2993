#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Clock.h"
#include "core/Currency.h"
#include "core/Date.h"
#include "core/RegionalSettings.h"
#include "core/Value.h"

namespace norvane {

/// What converts as a value rather than as a text.
template <class T>
concept NotText = std::convertible_to<const T&, Value> && !std::convertible_to<const T&, std::string_view>;

/// The conversions between text and values under the machine's regional settings.
///
/// "To..." takes the whole text and raises 13 if it is no number (or date) and 6 if it is out of range; from a Null it
/// raises 94.
class Conversions {
 public:
  /// `clock` gives a date without a year its year. It is kept by reference.
  Conversions(RegionalSettings settings, const Clock& clock);
  const RegionalSettings& Settings() const { return settings_; }

  std::int32_t ToLong(std::string_view text) const;
  std::int16_t ToInteger(std::string_view text) const;
  double ToDouble(std::string_view text) const;
  Currency ToCurrency(std::string_view text) const;
  Date ToDate(std::string_view text) const;
  bool ToBoolean(std::string_view text) const;
  bool IsDate(std::string_view text) const;
  bool IsNumeric(std::string_view text) const;

  /// The leading number of a box that may hold more: 0 if there is none. Regional signs are read where the decimal sign
  /// is no point, else as `Val` does.
  double LeadingNumber(std::string_view text) const;

  std::int32_t ToLong(const NotText auto& value) const { return LongOf(value); }
  std::int16_t ToInteger(const NotText auto& value) const { return IntegerOf(value); }
  double ToDouble(const NotText auto& value) const { return DoubleOf(value); }
  Currency ToCurrency(const NotText auto& value) const { return CurrencyOf(value); }
  Date ToDate(const NotText auto& value) const { return DateOf(value); }
  bool ToBoolean(const NotText auto& value) const { return BooleanOf(value); }

  /// The default text of a value; Null is the empty text.
  std::string ToText(std::int32_t value) const;
  std::string ToText(double value) const;
  std::string ToText(Currency value) const;
  std::string ToText(Date value) const;
  std::string ToText(bool value) const;
  std::string ToText(const Value& value) const;
  std::string ToText(const char*) const = delete;

  /// The currency format: symbol, thousands separators, two decimals, ties away from zero on the decimal digits. Null
  /// gives the empty text; a text is read as a number first and raises 13 if it is none.
  std::string CurrencyText(Currency value) const;
  std::string CurrencyText(double value) const;
  std::string CurrencyText(std::string_view text) const;
  std::string CurrencyText(const NotText auto& value) const { return CurrencyTextOf(value); }

  /// The format "0.00", ties away from zero.
  std::string TwoDecimals(double value) const;
  std::string LongDateText(Date date) const;
  /// The format "hh:mm AMPM".
  std::string ClockText(Date date) const;
  /// Reads a masked date box: month first on every machine. Raises 13 for a half-filled mask or no such day.
  Date ToDateFromMask(std::string_view text) const;

 private:
  std::int32_t LongOf(const Value& value) const;
  std::int16_t IntegerOf(const Value& value) const;
  double DoubleOf(const Value& value) const;
  Currency CurrencyOf(const Value& value) const;
  Date DateOf(const Value& value) const;
  bool BooleanOf(const Value& value) const;
  std::string CurrencyTextOf(const Value& value) const;

  RegionalSettings settings_;
  const Clock& clock_;
};

}  // namespace norvane
