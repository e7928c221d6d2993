#include "core/Value.h"

#include <cmath>
#include <limits>

#include "core/Conversions.h"
#include "core/RuntimeError.h"

namespace norvane {
namespace {

template <class T>
bool Is(const Value& value) {
  return std::holds_alternative<T>(value);
}

bool IsWhole(const Value& value) {
  return Is<std::int32_t>(value) || Is<bool>(value);
}

/// Narrows the result of whole numbers, computed wide enough.
Value Whole(std::int64_t result) {
  if (result < std::numeric_limits<std::int32_t>::min() || result > std::numeric_limits<std::int32_t>::max()) {
    Raise(ErrorNumber::Overflow);
  }
  return static_cast<std::int32_t>(result);
}

double Finite(double result) {
  if (!std::isfinite(result)) Raise(ErrorNumber::Overflow);
  return result;
}

Value CheckedDate(double serial) {
  const Date date(serial);
  date.Day();  // raises what is past the calendar's ends
  return date;
}

/// Sums and differences: `combine` works on whole numbers, Doubles and Currency alike.
template <class Combine>
Value Sum(const Value& a, const Value& b, const Conversions& convert, Combine combine) {
  if (IsWhole(a) && IsWhole(b)) {
    return Whole(combine(std::int64_t{convert.ToLong(a)}, std::int64_t{convert.ToLong(b)}));
  }
  const bool dated = Is<Date>(a) || Is<Date>(b);
  if (!dated && (Is<Currency>(a) || Is<Currency>(b))) return combine(convert.ToCurrency(a), convert.ToCurrency(b));
  const double result = Finite(combine(convert.ToDouble(a), convert.ToDouble(b)));
  return dated ? CheckedDate(result) : Value(result);
}

bool GivesCurrency(const Value& a, const Value& b) {
  return Is<Currency>(a) && (Is<Currency>(b) || IsWhole(b));
}

}  // namespace

Value Add(const Value& a, const Value& b, const Conversions& convert) {
  if (IsNull(a) || IsNull(b)) return Null{};
  if (Is<std::string>(a) && Is<std::string>(b)) return std::get<std::string>(a) + std::get<std::string>(b);
  return Sum(a, b, convert, [](auto x, auto y) { return x + y; });
}

Value Subtract(const Value& a, const Value& b, const Conversions& convert) {
  if (IsNull(a) || IsNull(b)) return Null{};
  if (Is<Date>(a) && Is<Date>(b)) return convert.ToDouble(a) - convert.ToDouble(b);
  return Sum(a, b, convert, [](auto x, auto y) { return x - y; });
}

Value Multiply(const Value& a, const Value& b, const Conversions& convert) {
  if (IsNull(a) || IsNull(b)) return Null{};
  if (IsWhole(a) && IsWhole(b)) return Whole(std::int64_t{convert.ToLong(a)} * convert.ToLong(b));
  if (GivesCurrency(a, b) || GivesCurrency(b, a)) return convert.ToCurrency(a) * convert.ToCurrency(b);
  return Finite(convert.ToDouble(a) * convert.ToDouble(b));
}

Value Divide(const Value& a, const Value& b, const Conversions& convert) {
  if (IsNull(a) || IsNull(b)) return Null{};
  const double divisor = convert.ToDouble(b);
  if (divisor == 0) Raise(ErrorNumber::DivisionByZero);
  return Finite(convert.ToDouble(a) / divisor);
}

}  // namespace norvane
