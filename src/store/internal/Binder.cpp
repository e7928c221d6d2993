#include "store/internal/Binder.h"

#include <cmath>

#include "core/UnitedStates.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

void BindWhole(sqlite3_stmt* statement, int parameter, std::int64_t value) {
  sqlite3_bind_int64(statement, parameter, value);
}

void BindText(sqlite3_stmt* statement, int parameter, const std::string& text) {
  sqlite3_bind_text(statement, parameter, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// A number that is whole and small enough is bound as such, so that a key is looked up and not compared with.
void BindNumber(sqlite3_stmt* statement, int parameter, double value) {
  constexpr double kExactlyWhole = 9007199254740992.0;
  if (std::abs(value) <= kExactlyWhole && std::trunc(value) == value) {
    BindWhole(statement, parameter, static_cast<std::int64_t>(value));
  } else {
    sqlite3_bind_double(statement, parameter, value);
  }
}

/// Money is compared exactly: with a whole count of ten-thousandths where the digits give one, else with its fraction.
void BindMoneyOperand(sqlite3_stmt* statement, int parameter, const std::string& text) {
  const std::size_t point = text.find('.');
  const bool fourDecimals = point == std::string::npos || text.size() - point - 1 <= 4;
  if (fourDecimals && text.find_first_of("eE") == std::string::npos) {
    try {
      return BindWhole(statement, parameter, UnitedStates().ToCurrency(text).TenThousandths());
    } catch (const RuntimeError&) {  // more than any money
    }
  }
  BindNumber(statement, parameter, UnitedStates().ToDouble(text) * 10'000.0);
}

/// The literal as a text that the conversions read, or as a date.
Value ValueOf(const Literal& literal, bool negative) {
  if (literal.kind == TokenKind::Date) return literal.date;
  return negative ? "-" + literal.text : literal.text;
}

std::string TextOf(const Literal& literal, const Value& value) {
  if (literal.kind == TokenKind::Text) return literal.text;
  if (literal.kind == TokenKind::Date) return UnitedStates().ToText(value);
  return UnitedStates().ToText(UnitedStates().ToDouble(value));
}

/// A date column takes a date, a number of days, or a text that is a date.
std::int64_t DayOf(const Literal& literal, const Value& value) {
  const Conversions& convert = UnitedStates();
  if (literal.kind == TokenKind::Number) return Date(convert.ToDouble(value)).Day();
  return convert.ToDate(value).Day();
}

bool TruthOf(const Literal& literal, const Value& value) {
  const Conversions& convert = UnitedStates();
  return literal.kind == TokenKind::Text ? convert.ToBoolean(value) : convert.ToDouble(value) != 0;
}

void BindLiteral(sqlite3_stmt* statement, int parameter, const Literal& literal, const Binding& binding) {
  const Conversions& convert = UnitedStates();
  const Value value = ValueOf(literal, binding.negative);
  switch (binding.as) {
    case BindAs::Number:
      return BindNumber(statement, parameter, convert.ToDouble(value));
    case BindAs::Money:
      if (literal.kind == TokenKind::Number)
        return BindMoneyOperand(statement, parameter, std::get<std::string>(value));
      return BindNumber(statement, parameter, convert.ToDouble(value) * 10'000.0);
    case BindAs::Long:
      return BindWhole(statement, parameter, convert.ToLong(value));
    case BindAs::Double:
      sqlite3_bind_double(statement, parameter, convert.ToDouble(value));
      return;
    case BindAs::Currency:
      return BindWhole(statement, parameter, convert.ToCurrency(value).TenThousandths());
    case BindAs::Date:
      return BindWhole(statement, parameter, DayOf(literal, value));
    case BindAs::Boolean:
      return BindWhole(statement, parameter, TruthOf(literal, value) ? -1 : 0);
    case BindAs::Text:
      return BindText(statement, parameter, TextOf(literal, value));
  }
}

}  // namespace

void BindLiterals(sqlite3_stmt* statement, const std::vector<Binding>& bindings, const std::vector<Literal>& literals) {
  int parameter = 0;
  for (const Binding& binding : bindings) {
    try {
      BindLiteral(statement, ++parameter, literals[binding.literal], binding);
    } catch (const RuntimeError& error) {
      if (error.Number() != static_cast<std::int32_t>(ErrorNumber::TypeMismatch)) throw;
      throw error::TypeMismatchInCriteria();
    }
  }
}

void BindValue(sqlite3_stmt* statement, int parameter, const Value& value) {
  struct {
    sqlite3_stmt* to;
    int at;
    void operator()(Null) const { sqlite3_bind_null(to, at); }
    void operator()(std::int32_t number) const { BindWhole(to, at, number); }
    void operator()(double number) const { sqlite3_bind_double(to, at, number); }
    void operator()(Currency amount) const { BindWhole(to, at, amount.TenThousandths()); }
    void operator()(Date date) const { BindWhole(to, at, date.Day()); }
    void operator()(bool truth) const { BindWhole(to, at, truth ? -1 : 0); }
    void operator()(const std::string& text) const { BindText(to, at, text); }
  } bind{statement, parameter};
  std::visit(bind, value);
}

}  // namespace norvane::store
