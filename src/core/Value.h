#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "core/Currency.h"
#include "core/Date.h"

namespace norvane {

struct Null {
  bool operator==(const Null&) const = default;
};

/// What a field holds and what mixed arithmetic works on.
using Value = std::variant<Null, std::int32_t, double, Currency, Date, bool, std::string>;

inline bool IsNull(const Value& value) {
  return std::holds_alternative<Null>(value);
}

class Conversions;

/// Mixed arithmetic: anything with a Null is a Null. A text is read as a number under the machine's settings, except
/// that text plus text joins; text that is no number raises 13. Whole numbers and Booleans (-1 and 0) give a Long. A
/// date plus or minus a number is a date, the difference of dates a Double. A sum with a Currency in it is Currency;
/// Currency times Currency or Long is Currency, times a Double it is a Double. Any division is a Double. Out of the
/// result's range raises 6, division by zero 11.
Value Add(const Value& a, const Value& b, const Conversions& convert);
Value Subtract(const Value& a, const Value& b, const Conversions& convert);
Value Multiply(const Value& a, const Value& b, const Conversions& convert);
Value Divide(const Value& a, const Value& b, const Conversions& convert);

}  // namespace norvane
