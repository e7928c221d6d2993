#include "core/Conversions.h"
#include "core/Rounding.h"
#include "core/RuntimeError.h"

namespace norvane {
namespace {

template <class... Cases>
struct Overloads : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloads(Cases...) -> Overloads<Cases...>;

}  // namespace

double Conversions::DoubleOf(const Value& value) const {
  return std::visit(Overloads{[](Null) -> double { Raise(ErrorNumber::InvalidUseOfNull); },
                              [](std::int32_t number) -> double { return number; },
                              [](double number) { return number; }, [](Currency money) { return money.ToDouble(); },
                              [](Date date) { return date.Serial(); }, [](bool flag) { return flag ? -1.0 : 0.0; },
                              [this](const std::string& text) { return ToDouble(text); }},
                    value);
}

std::int32_t Conversions::LongOf(const Value& value) const {
  const auto* money = std::get_if<Currency>(&value);
  return money ? RoundToLong(*money) : RoundToLong(DoubleOf(value));
}

std::int16_t Conversions::IntegerOf(const Value& value) const {
  const auto* money = std::get_if<Currency>(&value);
  return money ? RoundToInteger(*money) : RoundToInteger(DoubleOf(value));
}

Currency Conversions::CurrencyOf(const Value& value) const {
  if (const auto* money = std::get_if<Currency>(&value)) return *money;
  if (const auto* text = std::get_if<std::string>(&value)) return ToCurrency(*text);
  return Currency::FromDouble(DoubleOf(value));
}

Date Conversions::DateOf(const Value& value) const {
  if (const auto* text = std::get_if<std::string>(&value)) return ToDate(*text);
  const Date date(DoubleOf(value));
  date.Day();  // raises what is past the calendar's ends
  return date;
}

bool Conversions::BooleanOf(const Value& value) const {
  if (const auto* text = std::get_if<std::string>(&value)) return ToBoolean(*text);
  return DoubleOf(value) != 0;
}

std::string Conversions::ToText(const Value& value) const {
  return std::visit(Overloads{[](Null) { return std::string(); }, [](const std::string& text) { return text; },
                              [this](const auto& other) { return ToText(other); }},
                    value);
}

std::string Conversions::CurrencyTextOf(const Value& value) const {
  if (IsNull(value)) return {};
  if (const auto* money = std::get_if<Currency>(&value)) return CurrencyText(*money);
  return CurrencyText(DoubleOf(value));
}

}  // namespace norvane
