#include <cstdlib>

#include "core/Given.h"
#include "core/LocaleFormats.h"
#include "core/SystemRegion.h"

namespace norvane {
namespace {

std::string Pattern(int symbolFirst, int blankBetween, int signPlace) {
  LocaleFacts facts;
  facts.negative = {symbolFirst, blankBetween, signPlace};
  RegionalSettings settings;
  ApplyMoney(facts, settings);
  return settings.negativeCurrency;
}

RegionalSettings WithDates(const std::string& dateFormat, const std::string& timeFormat = "%T",
                           const std::string& dateAndTimeFormat = "") {
  LocaleFacts facts;
  facts.dateFormat = dateFormat;
  facts.timeFormat = timeFormat;
  facts.dateAndTimeFormat = dateAndTimeFormat;
  RegionalSettings settings;
  ApplyDates(facts, settings);
  return settings;
}

TEST(LocaleFormats, PutSymbolAndSignInTheirPlaces) {
  EXPECT_EQ(Pattern(1, 0, 0), "(%s%n)");
  EXPECT_EQ(Pattern(1, 0, 1), "-%s%n");
  EXPECT_EQ(Pattern(0, 1, 1), "-%n %s");
  EXPECT_EQ(Pattern(0, 1, 2), "%n %s-");
  EXPECT_EQ(Pattern(0, 1, 3), "%n -%s");
  EXPECT_EQ(Pattern(1, 1, 4), "%s- %n");
  EXPECT_EQ(Pattern(1, 2, 4), "%s -%n");
  EXPECT_EQ(Pattern(-1, -1, -1), "-%s%n");
}

TEST(LocaleFormats, GiveDatesTheirOrderAndFourDigitsOfYear) {
  const RegionalSettings germany = WithDates("%d.%m.%y");
  EXPECT_EQ(germany.shortDate, "dd.MM.yyyy");
  EXPECT_EQ(germany.dateSeparator, ".");
  EXPECT_EQ(germany.dateOrder, RegionalSettings::DateOrder::DayMonthYear);
  EXPECT_EQ(WithDates("%Y年%m月%d日").shortDate, "yyyy-MM-dd");
  EXPECT_EQ(WithDates("%Y. %m. %d.").shortDate, "yyyy. MM. dd");
  EXPECT_EQ(WithDates("%F").dateOrder, RegionalSettings::DateOrder::YearMonthDay);
  EXPECT_EQ(WithDates("%d %b %Y").shortDate, RegionalSettings().shortDate);
  EXPECT_EQ(WithDates("", "%H:%M:%S").time, "HH:mm:ss");
  EXPECT_EQ(WithDates("", "%I:%M:%S %p").time, "h:mm:ss AMPM");
}

TEST(LocaleFormats, OrderDatesWithNamesAsTheLocaleDoes) {
  EXPECT_EQ(WithDates("%F", "%T", "den %a %e %b %Y %T").longDate, "dddd, d MMMM yyyy");
  EXPECT_EQ(WithDates("%F", "%T", "%Y. %b. %-e., %A").longDate, "dddd, yyyy MMMM d");
  EXPECT_EQ(WithDates("%d.%m.%Y", "%T", "%x (%a) %r").longDate, "dddd, d MMMM yyyy");
}

TEST(LocaleFormats, MakeDatesThatReadBack) {
  for (const char* format : {"%d.%m.%Y", "%d. %m. %Y", "%d-%m-%y", "%Y-%m-%d", "%Y. %m. %d.", "%-d/%-m/%Y", "%D"}) {
    const Conversions convert(WithDates(format), kClock);
    const Date date = Date::FromYearMonthDay(2024, 3, 4) + 0.75;
    EXPECT_EQ(convert.ToDate(convert.ToText(date)), date) << format;
  }
}

/// Gives the environment's locale another name for the length of a test.
class LocaleName {
 public:
  explicit LocaleName(const char* name) {
    if (const char* old = std::getenv("LC_ALL")) old_ = old;
    setenv("LC_ALL", name, 1);
  }
  ~LocaleName() { old_.empty() ? unsetenv("LC_ALL") : setenv("LC_ALL", old_.c_str(), 1); }

 private:
  std::string old_;
};

TEST(SystemRegion, WithoutALocaleIsTheUnitedStates) {
  for (const char* name : {"C", "POSIX", "C.UTF-8", "en_US.UTF-8", "xx_XX.UTF-8"}) {
    const LocaleName environment(name);
    const RegionalSettings settings = SystemRegionalSettings();
    EXPECT_EQ(Conversions(settings, kClock).CurrencyText(-1234.5), "($1,234.50)") << name;
    EXPECT_EQ(settings.shortDate, "M/d/yyyy") << name;
    EXPECT_EQ(settings.lastTwoDigitYear, 2049) << name;
  }
}

}  // namespace
}  // namespace norvane
