#include "core/DateParser.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "core/Characters.h"
#include "core/Utf8.h"

namespace norvane {
namespace {

using Order = RegionalSettings::DateOrder;

/// A number from here on can only be a year, and needs no century.
constexpr int kWrittenOutYear = 100;
constexpr int kLastDayOfMonth = 31;

/// Full year of a year as written: two digits mean a year of the window.
int FullYear(int year, int lastTwoDigitYear) {
  if (year >= kWrittenOutYear) return year;
  const int candidate = lastTwoDigitYear - lastTwoDigitYear % 100 + year;
  return candidate > lastTwoDigitYear ? candidate - 100 : candidate;
}

std::optional<Date> DayIf(int year, int month, int day) {
  if (!Date::Exists(year, month, day)) return std::nullopt;
  return Date::FromYearMonthDay(year, month, day);
}

/// The place of the name in the list, by its full form or its first three letters. -1 if none, or more than one, fits.
template <std::size_t count>
int PlaceOfName(std::string_view word, const std::array<std::string, count>& names) {
  int place = -1;
  for (std::size_t i = 0; i < count; ++i) {
    if (EqualNoCase(word, names[i])) return static_cast<int>(i);
    if (!EqualNoCase(word, FirstCharacters(names[i], 3))) continue;
    if (place >= 0) return -1;
    place = static_cast<int>(i);
  }
  return place;
}

/// Reads one text from front to end, collecting what it finds, and puts the date together from that.
class DateReader {
 public:
  DateReader(std::string_view text, const RegionalSettings& settings, const Clock& clock)
      : rest_(text), settings_(settings), clock_(clock) {}

  std::optional<Date> Read() {
    SkipWhitespace(rest_);
    while (!rest_.empty()) {
      if (!ReadPart() || !SkipSeparator()) return std::nullopt;
    }
    return Assemble();
  }

 private:
  bool ReadPart() { return IsDigit(rest_.front()) ? ReadNumberOrTime() : ReadName(); }

  /// One mark between two parts, with whitespace around it. None may follow the last part.
  bool SkipSeparator() {
    SkipWhitespace(rest_);
    if (!TakeSeparator()) return true;
    SkipWhitespace(rest_);
    return !rest_.empty();
  }

  /// A comma is allowed beside names only: 1,234 is a number.
  bool TakeSeparator() {
    return Take(rest_, "/") || Take(rest_, "-") || Take(rest_, settings_.dateSeparator) || (named_ && Take(rest_, ","));
  }

  int ReadNumber() {
    int number = 0;
    for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1)) {
      number = std::min(number, 1'000'000) * 10 + (rest_.front() - '0');
    }
    return number;
  }

  bool ReadNumberOrTime() {
    const int number = ReadNumber();
    const std::string_view behind = rest_;
    SkipWhitespace(rest_);
    if (rest_.starts_with(':')) return ReadTime(number);
    if (ReadHalfOfDay()) return SetTime(number, 0, 0);
    rest_ = behind;
    if (numberCount_ == numbers_.size()) return false;
    numbers_[numberCount_++] = number;
    return true;
  }

  bool ReadTime(int hour) {
    int minute = 0;
    int second = 0;
    if (!ReadColonNumber(minute)) return false;
    if (rest_.starts_with(':') && !ReadColonNumber(second)) return false;
    SkipWhitespace(rest_);
    ReadHalfOfDay();
    return SetTime(hour, minute, second);
  }

  bool ReadColonNumber(int& number) {
    rest_.remove_prefix(1);
    if (rest_.empty() || !IsDigit(rest_.front())) return false;
    number = ReadNumber();
    return number < 60;
  }

  bool ReadHalfOfDay() {
    if (half_ != Half::None) return false;
    if (ReadDesignator(settings_.am) || ReadDesignator("AM"))
      half_ = Half::Morning;
    else if (ReadDesignator(settings_.pm) || ReadDesignator("PM"))
      half_ = Half::Afternoon;
    return half_ != Half::None;
  }

  bool ReadDesignator(std::string_view designator) {
    if (!StartsWithNoCase(rest_, designator)) return false;
    const std::string_view behind = rest_.substr(designator.size());
    if (!behind.empty() && IsLetter(behind.front())) return false;
    rest_ = behind;
    return true;
  }

  bool SetTime(int hour, int minute, int second) {
    const int hours = half_ == Half::None ? 24 : 13;
    if (time_ || hour >= hours) return false;
    if (half_ == Half::Morning && hour == 12) hour = 0;
    if (half_ == Half::Afternoon && hour < 12) hour += 12;
    time_ = (hour * 3600 + minute * 60 + second) / 86'400.0;
    return true;
  }

  /// The name of a month, or of a day, which says nothing new.
  bool ReadName() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsLetter);
    const std::string_view word = rest_.substr(0, end - rest_.begin());
    if (word.empty()) return false;
    rest_.remove_prefix(word.size());
    named_ = true;
    if (const int place = PlaceOfName(word, settings_.monthNames); place >= 0 && month_ == 0) {
      month_ = place + 1;
      return true;
    }
    return PlaceOfName(word, settings_.dayNames) >= 0;
  }

  std::optional<Date> Assemble() const {
    if (numberCount_ == 0 && month_ == 0) return time_ ? std::optional(Date(*time_)) : std::nullopt;
    const std::optional<Date> day = month_ > 0 ? DayWithName() : DayOfNumbers();
    if (!day || !time_) return day;
    return day->Serial() < 0 ? *day - *time_ : *day + *time_;
  }

  std::optional<Date> DayWithName() const {
    const auto [first, second, third] = numbers_;
    if (numberCount_ == 1) {
      return first >= kWrittenOutYear ? DayIf(first, month_, 1) : DayIf(ThisYear(), month_, first);
    }
    if (numberCount_ != 2) return std::nullopt;
    return first >= kWrittenOutYear ? DayIf(first, month_, second) : DayIf(Full(second), month_, first);
  }

  std::optional<Date> DayOfNumbers() const {
    if (numberCount_ == 2) return DayOfTwo();
    if (numberCount_ != 3) return std::nullopt;
    if (numbers_[0] > kLastDayOfMonth) return DayInOrder(Order::YearMonthDay);
    std::optional<Date> day = DayInOrder(settings_.dateOrder);
    if (!day && settings_.dateOrder != Order::MonthDayYear) day = DayInOrder(Order::MonthDayYear);
    if (!day && settings_.dateOrder != Order::DayMonthYear) day = DayInOrder(Order::DayMonthYear);
    return day;
  }

  std::optional<Date> DayInOrder(Order order) const {
    const auto [first, second, third] = numbers_;
    switch (order) {
      case Order::MonthDayYear:
        return DayIf(Full(third), first, second);
      case Order::DayMonthYear:
        return DayIf(Full(third), second, first);
      case Order::YearMonthDay:
        return DayIf(Full(first), second, third);
    }
    return std::nullopt;
  }

  /// Month and day of this year.
  std::optional<Date> DayOfTwo() const {
    const auto [first, second, third] = numbers_;
    const bool dayFirst = settings_.dateOrder == Order::DayMonthYear;
    const std::optional<Date> day = dayFirst ? DayIf(ThisYear(), second, first) : DayIf(ThisYear(), first, second);
    if (day) return day;
    return dayFirst ? DayIf(ThisYear(), first, second) : DayIf(ThisYear(), second, first);
  }

  int ThisYear() const { return clock_.Now().Year(); }
  int Full(int year) const { return FullYear(year, settings_.lastTwoDigitYear); }

  enum class Half { None, Morning, Afternoon };

  std::string_view rest_;
  const RegionalSettings& settings_;
  const Clock& clock_;
  std::array<int, 3> numbers_ = {};
  std::size_t numberCount_ = 0;
  int month_ = 0;
  bool named_ = false;
  Half half_ = Half::None;
  std::optional<double> time_;
};

}  // namespace

std::optional<Date> ParseDate(std::string_view text, const RegionalSettings& settings, const Clock& clock) {
  return DateReader(text, settings, clock).Read();
}

}  // namespace norvane
