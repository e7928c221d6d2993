#include <utility>

#include "core/Given.h"
#include "core/MaskText.h"
#include "core/SqlText.h"

namespace norvane {
namespace {

Date Day(int year, int month, int day) {
  return Date::FromYearMonthDay(year, month, day);
}

TEST(Date, KnowsItsPartsOverTheWholeCalendar) {
  for (std::int32_t day = -657434; day <= 2958465; day += 37) {
    const Date date(day + 0.0);
    ASSERT_EQ(Day(date.Year(), date.Month(), date.DayOfMonth()), date);
    // Day 0 is a Saturday.
    ASSERT_EQ(date.Weekday(), ((day % 7) + 7 + 6) % 7) << day;
  }
  EXPECT_EQ(Day(1899, 12, 30), Date());
  EXPECT_FALSE(Date::Exists(1900, 2, 29));
  EXPECT_TRUE(Date::Exists(2000, 2, 29));
  EXPECT_FALSE(Date::Exists(99, 12, 31));
}

TEST(Date, PastTheCalendarsEndsRaises) {
  EXPECT_EQ(ErrorOf([] { Day(2023, 2, 29); }), 13);
  EXPECT_EQ(ErrorOf([] { (Day(9999, 12, 31) + 1).Year(); }), 6);
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToText(Date(1e300)); }), 6);
  EXPECT_EQ(ErrorOf([] { kUnitedStates.ToDate(2958466.0); }), 6);
}

TEST(DateText, ShowsTheTimeOnlyIfThereIsOne) {
  EXPECT_EQ(kUnitedStates.ToText(Date(-1.25)), "12/29/1899 6:00:00 AM");
  // A moment that rounds to midnight belongs to the next day.
  EXPECT_EQ(kUnitedStates.ToText(Day(2024, 1, 5) + 0.9999999), "1/6/2024");
  EXPECT_EQ(kGermany.ToText(Day(2024, 1, 5) + 0.65625), "05.01.2024 15:45:00");
}

TEST(DateText, HasItsFixedForms) {
  const Date date = Day(2026, 11, 22);
  EXPECT_EQ(kUnitedStates.LongDateText(date), "Sunday, November 22, 2026");
  EXPECT_EQ(kGermany.LongDateText(date), "Sonntag, 22. November 2026");
  EXPECT_EQ(kUnitedStates.ClockText(date + 14.5 / 24), "02:30 PM");
  EXPECT_EQ(kUnitedStates.ClockText(date), "12:00 AM");
  EXPECT_EQ(MaskedDateText(Day(2005, 3, 4)), "03/04/05");
  EXPECT_EQ(sql::Text(date), "#11/22/2026#");
  EXPECT_EQ(sql::Text(Date()), "#12:00:00 AM#");
}

TEST(DateText, KeepsLiteralsBetweenApostrophes) {
  RegionalSettings settings;
  settings.longDate = "'d de' MMM ddd yy 'open";
  EXPECT_EQ(Conversions(settings, kClock).LongDateText(Day(2026, 11, 22)), "d de Nov Sun 26 open");
}

TEST(TextToDate, RefusesWhatIsNoDate) {
  for (const char* text : {"1//5/2024",  "/1/5/2024",
                           "1/5/",       "-1/5/2024",
                           "1/5/2024/",  "1/5/2024 6",
                           "Sunday",     "January",
                           "Smarch 5",   "Jan Feb 5",
                           "Jan 32",     "1.5.2024",
                           "25:00",      "12:60",
                           "13:00 PM",   "3:4:",
                           "3:",         "1/5/2024 3:45 XM",
                           "3 PM 4 PM",  "31/2/5",
                           "2024-13-01", "1/5/99999999999",
                           "2/30",       "1,234",
                           "1 234",      "1/2024",
                           "1_/05/24"}) {
    EXPECT_FALSE(kUnitedStates.IsDate(text)) << text;
  }
}

TEST(TextToDate, ReadsNamesAndTimes) {
  const Date january5 = Day(2024, 1, 5);
  for (const char* text : {"jan 5 24", "5-JAN-2024", "5Jan2024", "2024 January 5", "Fri, Jan 5, 2024", "1/ 5 - 2024"}) {
    EXPECT_EQ(kUnitedStates.ToDate(text), january5) << text;
  }
  EXPECT_EQ(kUnitedStates.ToDate("3 pm 1/5/2024"), january5 + 15 / 24.0);
  EXPECT_EQ(kUnitedStates.ToDate("12:30AM"), Date(30 / 1440.0));
  EXPECT_EQ(kUnitedStates.ToDate("1/1/1800 18:00"), Day(1800, 1, 1) - 0.75);
}

TEST(TextToDate, TakesDayAndMonthInTheMachinesOrder) {
  EXPECT_EQ(kGermany.ToDate("5.1.2024"), Day(2024, 1, 5));
  EXPECT_EQ(kGermany.ToDate("1/13/24"), Day(2024, 1, 13));
  EXPECT_EQ(kGermany.ToDate("13.1"), Day(2026, 1, 13));
  EXPECT_EQ(kGermany.ToDate("2024-01-05"), Day(2024, 1, 5));
  EXPECT_EQ(kGermany.ToDate("5. März 2024"), Day(2024, 3, 5));
  EXPECT_EQ(kGermany.ToDate("5 mär 24"), Day(2024, 3, 5));
  EXPECT_EQ(ErrorOf([] { kGermany.ToDate("31.4.2024"); }), 13);
  RegionalSettings sweden;
  sweden.dateOrder = RegionalSettings::DateOrder::YearMonthDay;
  const Conversions convert(sweden, kClock);
  EXPECT_EQ(convert.ToDate("24-01-05"), Day(2024, 1, 5));
  EXPECT_EQ(convert.ToDate("1/5/2024"), Day(2024, 1, 5));
  EXPECT_EQ(convert.ToDate("31/5/2024"), Day(2024, 5, 31));
}

TEST(TextToDate, ATwoDigitYearFallsIntoTheWindow) {
  EXPECT_EQ(kUnitedStates.ToDate("1/5/29"), Day(2029, 1, 5));
  EXPECT_EQ(kUnitedStates.ToDate("1/5/30"), Day(1930, 1, 5));
  RegionalSettings later;
  later.lastTwoDigitYear = 2049;
  EXPECT_EQ(Conversions(later, kClock).ToDate("1/5/49"), Day(2049, 1, 5));
  EXPECT_EQ(Conversions(later, kClock).ToDate("1/5/50"), Day(1950, 1, 5));
}

TEST(TextToDate, OfAMaskIsMonthFirstOnEveryMachine) {
  EXPECT_EQ(kGermany.ToDateFromMask("02/03/24"), Day(2024, 2, 3));
  EXPECT_EQ(kGermany.ToDateFromMask(MaskedDateText(Day(2024, 2, 3))), Day(2024, 2, 3));
  for (const char* text : {"__/__/__", "02/__/__", "02/31/24", ""}) {
    EXPECT_EQ(ErrorOf([&] { kUnitedStates.ToDateFromMask(text); }), 13) << text;
  }
}

}  // namespace
}  // namespace norvane
