#include "core/Date.h"

#include <chrono>
#include <cmath>

#include "core/RuntimeError.h"

namespace norvane {
namespace {

using namespace std::chrono;

constexpr sys_days kDayZero = 1899y / December / 30;
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

constexpr std::int32_t SerialOf(year_month_day date) {
  return static_cast<std::int32_t>((sys_days(date) - kDayZero).count());
}

constexpr std::int32_t kFirstDay = SerialOf(year(kFirstYear) / January / 1);
constexpr std::int32_t kLastDay = SerialOf(year(kLastYear) / December / 31);

year_month_day Calendar(Date date) {
  return kDayZero + days(date.Day());
}

}  // namespace

bool Date::Exists(int year, int month, int day) {
  if (year < kFirstYear || year > kLastYear || month < 1 || month > 12 || day < 1 || day > 31) return false;
  return (std::chrono::year(year) / month / day).ok();
}

Date Date::FromYearMonthDay(int year, int month, int day) {
  if (!Exists(year, month, day)) Raise(ErrorNumber::TypeMismatch);
  return Date(SerialOf(std::chrono::year(year) / month / day));
}

std::int32_t Date::Day() const {
  const double day = std::trunc(serial_);
  if (!(day >= kFirstDay && day <= kLastDay)) Raise(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(day);
}

int Date::Year() const {
  return static_cast<int>(Calendar(*this).year());
}
int Date::Month() const {
  return static_cast<int>(static_cast<unsigned>(Calendar(*this).month()));
}
int Date::DayOfMonth() const {
  return static_cast<int>(static_cast<unsigned>(Calendar(*this).day()));
}
int Date::Weekday() const {
  return static_cast<int>(weekday(kDayZero + days(Day())).c_encoding());
}

}  // namespace norvane
