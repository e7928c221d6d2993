#pragma once

#include "core/Conversions.h"

namespace norvane {

/// A clock stopped at one moment.
class FixedClock : public Clock {
 public:
  explicit FixedClock(Date now) : now_(now) {}
  Date Now() const override { return now_; }

 private:
  Date now_;
};

inline const FixedClock kClock(Date::FromYearMonthDay(2026, 11, 22));

/// A machine in Germany, as an example of the other way round in everything.
inline RegionalSettings Germany() {
  RegionalSettings settings;
  settings.decimalPoint = settings.currencyDecimalPoint = ",";
  settings.thousandsSeparator = settings.currencyThousandsSeparator = ".";
  settings.currencySymbol = "€";
  settings.positiveCurrency = "%n %s";
  settings.negativeCurrency = "-%n %s";
  settings.dateOrder = RegionalSettings::DateOrder::DayMonthYear;
  settings.dateSeparator = ".";
  settings.shortDate = "dd.MM.yyyy";
  settings.longDate = "dddd, d. MMMM yyyy";
  settings.time = "HH:mm:ss";
  settings.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                         "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  settings.dayNames = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
  return settings;
}

inline const Conversions kUnitedStates(RegionalSettings{}, kClock);
inline const Conversions kGermany(Germany(), kClock);

}  // namespace norvane
