#include "core/LocaleFormats.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/Characters.h"

namespace norvane {
namespace {

constexpr std::string_view kDateMarks = "/-. ";

using Order = RegionalSettings::DateOrder;

// The places of the sign of money in `lconv`; 1 and all others put it first.
constexpr int kParentheses = 0;
constexpr int kSignLast = 2;
constexpr int kSignBeforeSymbol = 3;
constexpr int kSignBehindSymbol = 4;
/// The one kind of space between symbol and sign, where these are neighbours.
constexpr int kBlankAtSign = 2;

void SetIfTold(std::string& setting, const std::string& fact) {
  if (!fact.empty()) setting = fact;
}

/// The pattern of %s and %n for one layout, with `sign` in its place.
std::string MoneyPattern(const LocaleFacts::MoneyLayout& layout, const std::string& sign) {
  const bool blankAtSign = layout.blankBetween == kBlankAtSign && !sign.empty();
  const std::string inner = blankAtSign ? " " : "";
  std::string symbol = "%s";
  if (layout.signPlace == kSignBeforeSymbol) symbol = sign + inner + symbol;
  if (layout.signPlace == kSignBehindSymbol) symbol += inner + sign;
  const bool signAtSymbol = layout.signPlace == kSignBeforeSymbol || layout.signPlace == kSignBehindSymbol;
  const std::string blank = layout.blankBetween > 0 && !(blankAtSign && signAtSymbol) ? " " : "";
  const std::string amount = layout.symbolFirst != 0 ? symbol + blank + "%n" : "%n" + blank + symbol;
  if (signAtSymbol || sign.empty()) return amount;
  if (layout.signPlace == kParentheses) return '(' + amount + ')';
  return layout.signPlace == kSignLast ? amount + sign : sign + amount;
}

/// Adds the separator between two numbers. Characters that no date is typed with become one dash.
void AddMark(std::string& text, char mark) {
  if (kDateMarks.find(mark) != std::string_view::npos) {
    text += mark;
  } else if (!text.ends_with('-')) {
    text += '-';
  }
}

constexpr std::pair<std::string_view, std::string_view> kDateLetters[] = {
    {"%d", "dd"},   {"%e", "dd"},   {"%-d", "d"},         {"%m", "MM"},        {"%-m", "M"},
    {"%Y", "yyyy"}, {"%y", "yyyy"}, {"%F", "yyyy-MM-dd"}, {"%D", "MM/dd/yyyy"}};

/// Turns one field at the front into our letters; false if it is no plain number.
bool TakeDateField(std::string_view& format, std::string& text) {
  for (const auto& [field, letters] : kDateLetters) {
    if (!Take(format, field)) continue;
    text += letters;
    return true;
  }
  return false;
}

/// A short date in our letters: from %d.%m.%y comes dd.MM.yyyy. The year always has four digits, so that a date read
/// back is the same. Empty if day, month or year is not written as a number.
std::string ShortDateOf(std::string_view format) {
  std::string text;
  while (!format.empty()) {
    if (format.front() == '%') {
      if (!TakeDateField(format, text)) return {};
    } else {
      AddMark(text, format.front());
      format.remove_prefix(1);
    }
  }
  // Some end in a point, which no one types.
  text.erase(text.find_last_not_of(kDateMarks) + 1);
  return text;
}

Order OrderOf(std::string_view shortDate) {
  const std::size_t day = shortDate.find('d');
  const std::size_t month = shortDate.find('M');
  const std::size_t year = shortDate.find('y');
  if (year < month && year < day) return Order::YearMonthDay;
  return day < month ? Order::DayMonthYear : Order::MonthDayYear;
}

const char* LongDateOf(Order order) {
  switch (order) {
    case Order::DayMonthYear:
      return "dddd, d MMMM yyyy";
    case Order::YearMonthDay:
      return "dddd, yyyy MMMM d";
    case Order::MonthDayYear:
      break;
  }
  return "dddd, MMMM d, yyyy";
}

/// The place of the first conversion with one of these letters, %d or %-d; npos if there is none.
std::size_t FindField(std::string_view format, std::string_view letters) {
  for (std::size_t at = format.find('%'); at != std::string_view::npos; at = format.find('%', at + 2)) {
    std::string_view field = format.substr(at + 1);
    Take(field, "-");
    if (!field.empty() && letters.find(field.front()) != std::string_view::npos) return at;
  }
  return std::string_view::npos;
}

/// Where the month is written as a name the order may be another one than among numbers: a Swede writes 2026-11-22 and
/// "22 november 2026".
Order OrderWithNames(std::string_view dateAndTime, Order amongNumbers) {
  const std::size_t month = FindField(dateAndTime, "bBh");
  const std::size_t day = FindField(dateAndTime, "de");
  const std::size_t year = FindField(dateAndTime, "Yy");
  if (month == std::string_view::npos || day == std::string_view::npos) return amongNumbers;
  if (year < month && year < day) return Order::YearMonthDay;
  return day < month ? Order::DayMonthYear : Order::MonthDayYear;
}

bool HasTwelveHours(std::string_view timeFormat) {
  const auto has = [&](std::string_view part) { return timeFormat.find(part) != std::string_view::npos; };
  return has("%I") || has("%l") || has("%r");
}

template <std::size_t count>
void SetNames(std::array<std::string, count>& names, const std::vector<std::string>& facts) {
  const auto known = [](const std::string& name) { return !name.empty(); };
  if (facts.size() == count && std::all_of(facts.begin(), facts.end(), known)) {
    std::copy(facts.begin(), facts.end(), names.begin());
  }
}

}  // namespace

void ApplyNumbers(const LocaleFacts& facts, RegionalSettings& settings) {
  SetIfTold(settings.decimalPoint, facts.decimalPoint);
  // Here an empty one is a fact: such a locale separates nothing.
  settings.thousandsSeparator = facts.thousandsSeparator;
}

void ApplyMoney(const LocaleFacts& facts, RegionalSettings& settings) {
  SetIfTold(settings.currencySymbol, facts.currencySymbol);
  settings.currencyDecimalPoint = facts.moneyDecimalPoint.empty() ? facts.decimalPoint : facts.moneyDecimalPoint;
  settings.currencyThousandsSeparator = facts.moneyThousandsSeparator;
  settings.positiveCurrency = MoneyPattern(facts.positive, "");
  settings.negativeCurrency = MoneyPattern(facts.negative, "-");
}

void ApplyDates(const LocaleFacts& facts, RegionalSettings& settings) {
  if (const std::string shortDate = ShortDateOf(facts.dateFormat); !shortDate.empty()) {
    settings.shortDate = shortDate;
    settings.dateOrder = OrderOf(shortDate);
    settings.longDate = LongDateOf(OrderWithNames(facts.dateAndTimeFormat, settings.dateOrder));
    settings.dateSeparator = shortDate.substr(shortDate.find_first_of(kDateMarks), 1);
  }
  settings.time = HasTwelveHours(facts.timeFormat) ? "h:mm:ss AMPM" : "HH:mm:ss";
  SetIfTold(settings.am, facts.am);
  SetIfTold(settings.pm, facts.pm);
  SetNames(settings.monthNames, facts.monthNames);
  SetNames(settings.dayNames, facts.dayNames);
}

}  // namespace norvane
