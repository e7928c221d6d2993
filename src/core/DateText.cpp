#include "core/DateText.h"

#include <algorithm>
#include <cmath>

#include "core/Characters.h"
#include "core/Utf8.h"

namespace norvane {
namespace {

constexpr int kSecondsOfDay = 86'400;

/// A date as its day and the second of that day.
struct Moment {
  Date day;
  int second = 0;

  /// The time of a day before day 0 counts forward too: -1.25 is a quarter past the day -1.
  explicit Moment(Date date) : day(date.Day()) {
    second = static_cast<int>(std::lround(std::abs(date.Serial() - day.Serial()) * kSecondsOfDay));
    if (second < kSecondsOfDay) return;
    second = 0;
    day = day + 1;
  }
  int Hour() const { return second / 3600; }
  int Minute() const { return second / 60 % 60; }
  int Second() const { return second % 60; }
  int HourOfTwelve() const { return Hour() % 12 == 0 ? 12 : Hour() % 12; }
};

std::string Padded(int number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

/// A run of one letter: of three the name's first characters, of four the whole name.
std::string NumberOrName(int number, std::size_t length, const std::string& name) {
  if (length <= 2) return Padded(number, length);
  return length == 3 ? std::string(FirstCharacters(name, 3)) : name;
}

std::string FieldText(char letter, std::size_t length, const Moment& moment, const RegionalSettings& settings) {
  const Date day = moment.day;
  switch (letter) {
    case 'd':
      return NumberOrName(day.DayOfMonth(), length, settings.dayNames[day.Weekday()]);
    case 'M':
      return NumberOrName(day.Month(), length, settings.monthNames[day.Month() - 1]);
    case 'y':
      return length <= 2 ? Padded(day.Year() % 100, 2) : std::to_string(day.Year());
    case 'h':
      return Padded(moment.HourOfTwelve(), length);
    case 'H':
      return Padded(moment.Hour(), length);
    case 'm':
      return Padded(moment.Minute(), length);
    case 's':
      return Padded(moment.Second(), length);
    default:
      return std::string(length, letter);
  }
}

/// Cuts the literal between apostrophes off the format; one that is not closed runs to the end.
std::string_view TakeLiteral(std::string_view& format) {
  const std::size_t end = std::min(format.find('\'', 1), format.size());
  const std::string_view literal = format.substr(1, end - 1);
  format.remove_prefix(std::min(end + 1, format.size()));
  return literal;
}

}  // namespace

std::string FormatDate(Date date, std::string_view format, const RegionalSettings& settings) {
  const Moment moment(date);
  std::string text;
  while (!format.empty()) {
    if (format.front() == '\'') {
      text += TakeLiteral(format);
    } else if (Take(format, "AMPM")) {
      text += moment.Hour() < 12 ? settings.am : settings.pm;
    } else {
      const std::size_t length = std::min(format.find_first_not_of(format.front()), format.size());
      text += FieldText(format.front(), length, moment, settings);
      format.remove_prefix(length);
    }
  }
  return text;
}

std::string DateText(Date date, const RegionalSettings& settings) {
  const Moment moment(date);
  const bool hasDay = moment.day != Date();
  if (moment.second == 0 && hasDay) return FormatDate(date, settings.shortDate, settings);
  const std::string time = FormatDate(date, settings.time, settings);
  return hasDay ? FormatDate(date, settings.shortDate, settings) + ' ' + time : time;
}

}  // namespace norvane
