#include "core/SystemRegion.h"

#include <clocale>
#include <cstdlib>
#include <iconv.h>
#include <langinfo.h>
#include <limits.h>
#include <locale.h>

#include "core/LocaleFormats.h"

namespace norvane {
namespace {

constexpr int kLastTwoDigitYear = 2049;

/// Makes a locale the current one of this thread while the guard lives: the C library describes no other. Nothing is in
/// force if there is no such locale.
class LocaleGuard {
 public:
  explicit LocaleGuard(const char* name) : locale_(newlocale(LC_ALL_MASK, name, locale_t{})) {
    if (locale_) previous_ = uselocale(locale_);
  }
  LocaleGuard(const LocaleGuard&) = delete;
  LocaleGuard& operator=(const LocaleGuard&) = delete;
  ~LocaleGuard() {
    if (!locale_) return;
    uselocale(previous_);
    freelocale(locale_);
  }
  explicit operator bool() const { return locale_ != locale_t{}; }

 private:
  locale_t locale_;
  locale_t previous_ = {};
};

/// Turns text of the locale's encoding into UTF-8; empty if it is not valid there.
std::string Utf8(const char* text) {
  std::string from(text);
  const iconv_t converter = iconv_open("UTF-8", nl_langinfo(CODESET));
  if (converter == reinterpret_cast<iconv_t>(-1)) return {};  // NOLINT(performance-no-int-to-ptr): its sign of failure
  std::string to(from.size() * 4, '\0');
  char* in = from.data();
  char* out = to.data();
  std::size_t inLeft = from.size();
  std::size_t outLeft = to.size();
  const bool converted = iconv(converter, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1);
  iconv_close(converter);
  to.resize(converted ? to.size() - outLeft : 0);
  return to;
}

LocaleFacts::MoneyLayout Layout(char symbolFirst, char blankBetween, char signPlace) {
  const auto known = [](char number) { return number == CHAR_MAX ? -1 : int{number}; };
  return {known(symbolFirst), known(blankBetween), known(signPlace)};
}

std::vector<std::string> Names(std::initializer_list<nl_item> items) {
  std::vector<std::string> names;
  for (const nl_item item : items) names.push_back(Utf8(nl_langinfo(item)));
  return names;
}

/// What the locale in force says.
LocaleFacts FactsInForce() {
  const lconv& numbers = *localeconv();
  LocaleFacts facts;
  facts.decimalPoint = Utf8(numbers.decimal_point);
  facts.thousandsSeparator = Utf8(numbers.thousands_sep);
  facts.moneyDecimalPoint = Utf8(numbers.mon_decimal_point);
  facts.moneyThousandsSeparator = Utf8(numbers.mon_thousands_sep);
  facts.currencySymbol = Utf8(numbers.currency_symbol);
  facts.positive = Layout(numbers.p_cs_precedes, numbers.p_sep_by_space, numbers.p_sign_posn);
  facts.negative = Layout(numbers.n_cs_precedes, numbers.n_sep_by_space, numbers.n_sign_posn);
  facts.dateFormat = Utf8(nl_langinfo(D_FMT));
  facts.timeFormat = Utf8(nl_langinfo(T_FMT));
  facts.dateAndTimeFormat = Utf8(nl_langinfo(D_T_FMT));
  facts.am = Utf8(nl_langinfo(AM_STR));
  facts.pm = Utf8(nl_langinfo(PM_STR));
  facts.monthNames = Names({MON_1, MON_2, MON_3, MON_4, MON_5, MON_6, MON_7, MON_8, MON_9, MON_10, MON_11, MON_12});
  facts.dayNames = Names({DAY_1, DAY_2, DAY_3, DAY_4, DAY_5, DAY_6, DAY_7});
  return facts;
}

/// The locale that the environment names for a category, by the platform's rule.
std::string NameFor(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"}) {
    const char* name = std::getenv(variable);
    if (name && *name) return name;
  }
  return "C";
}

bool IsUnitedStates(const std::string& name) {
  return name == "POSIX" || name == "C" || name.starts_with("C.") || name.starts_with("en_US");
}

using Apply = void(const LocaleFacts&, RegionalSettings&);

void ApplyCategory(const char* category, Apply* apply, RegionalSettings& settings) {
  const std::string name = NameFor(category);
  if (IsUnitedStates(name)) return;
  if (const LocaleGuard guard(name.c_str()); guard) apply(FactsInForce(), settings);
}

}  // namespace

RegionalSettings SystemRegionalSettings() {
  RegionalSettings settings;
  settings.lastTwoDigitYear = kLastTwoDigitYear;
  ApplyCategory("LC_NUMERIC", ApplyNumbers, settings);
  ApplyCategory("LC_MONETARY", ApplyMoney, settings);
  ApplyCategory("LC_TIME", ApplyDates, settings);
  return settings;
}

}  // namespace norvane
