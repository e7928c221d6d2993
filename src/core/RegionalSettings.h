#pragma once

#include <array>
#include <string>

namespace norvane {

/// How the machine writes numbers, money and dates. The default is the United States.
struct RegionalSettings {
  std::string decimalPoint = ".";
  std::string thousandsSeparator = ",";
  std::string currencySymbol = "$";
  std::string currencyDecimalPoint = ".";
  std::string currencyThousandsSeparator = ",";

  /// The places of symbol and sign: %s the symbol, %n the amount, as in "%s%n" and "(%s%n)".
  std::string positiveCurrency = "%s%n";
  std::string negativeCurrency = "(%s%n)";

  enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };
  DateOrder dateOrder = DateOrder::MonthDayYear;
  std::string dateSeparator = "/";
  /// The short date, of d dd M MM yy yyyy and literals.
  std::string shortDate = "M/d/yyyy";
  /// The long date, of d dd ddd dddd M MM MMM MMMM yy yyyy and literals between apostrophes.
  std::string longDate = "dddd, MMMM d, yyyy";
  /// The time after a date, of h hh H HH mm ss AMPM.
  std::string time = "h:mm:ss AMPM";
  std::string am = "AM";
  std::string pm = "PM";
  std::array<std::string, 12> monthNames = {"January", "February", "March",     "April",   "May",      "June",
                                            "July",    "August",   "September", "October", "November", "December"};
  std::array<std::string, 7> dayNames = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

  /// The last year that a two-digit year can mean; the window is the hundred years up to it.
  int lastTwoDigitYear = 2029;
};

}  // namespace norvane
