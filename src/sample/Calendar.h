#pragma once

#include <chrono>

namespace norvane::sample {

/// A date as the store keeps it: days since 12/30/1899, a Saturday.
using Day = int;

inline constexpr std::chrono::sys_days kDayZero{std::chrono::year{1899} / 12 / 30};

inline Day ToDay(std::chrono::year_month_day date) {
  return static_cast<Day>((std::chrono::sys_days{date} - kDayZero).count());
}
inline std::chrono::year_month_day ToDate(Day day) {
  return kDayZero + std::chrono::days{day};
}
inline int DayOfMonth(Day day) {
  return static_cast<int>(static_cast<unsigned>(ToDate(day).day()));
}
inline int MonthOf(Day day) {
  return static_cast<int>(static_cast<unsigned>(ToDate(day).month()));
}
inline int YearOf(Day day) {
  return static_cast<int>(ToDate(day).year());
}
inline bool IsSunday(Day day) {
  return day % 7 == 1;
}
inline bool IsFriday(Day day) {
  return day % 7 == 6;
}
inline Day JanuaryFirst(Day day) {
  return ToDay(ToDate(day).year() / 1 / 1);
}

}  // namespace norvane::sample
