#include "core/Conversions.h"

#include <optional>
#include <utility>

#include "core/Characters.h"
#include "core/DateParser.h"
#include "core/DateText.h"
#include "core/Decimal.h"
#include "core/NumberParser.h"
#include "core/NumberText.h"
#include "core/Rounding.h"
#include "core/RuntimeError.h"

namespace norvane {
namespace {

template <class T>
T OrOverflow(const std::optional<T>& value) {
  if (!value) Raise(ErrorNumber::Overflow);
  return *value;
}

template <class T>
T OrMismatch(std::optional<T> value) {
  if (!value) Raise(ErrorNumber::TypeMismatch);
  return *std::move(value);
}

}  // namespace

Conversions::Conversions(RegionalSettings settings, const Clock& clock)
    : settings_(std::move(settings)), clock_(clock) {}

double Conversions::ToDouble(std::string_view text) const {
  return OrOverflow(norvane::DoubleOf(OrMismatch(ParseNumber(text, settings_))));
}

Currency Conversions::ToCurrency(std::string_view text) const {
  return OrOverflow(norvane::CurrencyOf(OrMismatch(ParseNumber(text, settings_))));
}

std::int32_t Conversions::ToLong(std::string_view text) const {
  return RoundToLong(ToDouble(text));
}
std::int16_t Conversions::ToInteger(std::string_view text) const {
  return RoundToInteger(ToDouble(text));
}

bool Conversions::ToBoolean(std::string_view text) const {
  if (EqualNoCase(text, "True")) return true;
  return !EqualNoCase(text, "False") && ToDouble(text) != 0;
}

bool Conversions::IsNumeric(std::string_view text) const {
  const std::optional<Decimal> number = ParseNumber(text, settings_);
  return number && norvane::DoubleOf(*number);
}

double Conversions::LeadingNumber(std::string_view text) const {
  return ParseLeadingNumber(text, settings_);
}

Date Conversions::ToDate(std::string_view text) const {
  return OrMismatch(ParseDate(text, settings_, clock_));
}

bool Conversions::IsDate(std::string_view text) const {
  return ParseDate(text, settings_, clock_).has_value();
}

Date Conversions::ToDateFromMask(std::string_view text) const {
  RegionalSettings masked;
  masked.lastTwoDigitYear = settings_.lastTwoDigitYear;
  return OrMismatch(ParseDate(text, masked, clock_));
}

std::string Conversions::ToText(std::int32_t value) const {
  return std::to_string(value);
}
std::string Conversions::ToText(double value) const {
  return NumberText(value, settings_.decimalPoint);
}
std::string Conversions::ToText(Currency value) const {
  return NumberText(value, settings_.decimalPoint);
}
std::string Conversions::ToText(Date value) const {
  return DateText(value, settings_);
}
std::string Conversions::ToText(bool value) const {
  return value ? "True" : "False";
}

std::string Conversions::CurrencyText(Currency value) const {
  return MoneyText(DecimalOf(value), settings_);
}
std::string Conversions::CurrencyText(double value) const {
  return MoneyText(DecimalOf(value), settings_);
}
std::string Conversions::CurrencyText(std::string_view text) const {
  return CurrencyText(ToDouble(text));
}

std::string Conversions::TwoDecimals(double value) const {
  Decimal decimal = DecimalOf(value);
  RoundTies(decimal, 2);
  return (decimal.negative ? "-" : "") + FixedText(decimal, 2, {settings_.decimalPoint, {}});
}

std::string Conversions::LongDateText(Date date) const {
  return FormatDate(date, settings_.longDate, settings_);
}
std::string Conversions::ClockText(Date date) const {
  return FormatDate(date, "hh:mm AMPM", settings_);
}

}  // namespace norvane
