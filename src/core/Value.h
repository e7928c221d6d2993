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

/// Mixed arithmetic: anything with a Null is a Null; Currency with Currency is Currency; Currency times or over a
/// Double is a Double; any division is a Double; text plus a number is numeric, text plus text joins; a date plus a
/// number is a date. Out of range raises 6, division by zero 11, text that is no number 13.
Value Add(const Value& a, const Value& b);
Value Subtract(const Value& a, const Value& b);
Value Multiply(const Value& a, const Value& b);
Value Divide(const Value& a, const Value& b);

}  // namespace norvane
