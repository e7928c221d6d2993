#pragma once

#include <compare>
#include <cstdint>

namespace norvane {

/// A day, held as a count of days since 12/30/1899; a fraction is the time of day. 0 is the empty date, which precedes
/// every real date that the program meets.
class Date {
 public:
  constexpr Date() = default;
  constexpr explicit Date(double serial) : serial_(serial) {}
  /// Raises 13 if there is no such day (proleptic Gregorian, years 100 to 9999).
  static Date FromYearMonthDay(int year, int month, int day);
  static bool Exists(int year, int month, int day);

  constexpr double Serial() const { return serial_; }
  /// The whole day, the time of day cut off.
  std::int32_t Day() const;
  int Year() const;
  int Month() const;
  int DayOfMonth() const;
  /// 0 Sunday to 6 Saturday.
  int Weekday() const;

  friend constexpr Date operator+(Date date, double days) { return Date(date.serial_ + days); }
  friend constexpr Date operator-(Date date, double days) { return Date(date.serial_ - days); }
  constexpr auto operator<=>(const Date&) const = default;  // NOLINT(modernize-use-nullptr): clang-tidy 14 errs

 private:
  double serial_ = 0;
};

}  // namespace norvane
