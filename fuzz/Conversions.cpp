// Any text: every conversion gives a value or raises 6 or 13. Any value: its texts read back as what they show.

#include "core/Conversions.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>

#include "Check.h"
#include "core/RuntimeError.h"
#include "core/SqlText.h"
#include "core/Val.h"
#include "support/Machines.h"

namespace norvane {
namespace {

const Conversions* const kMachines[] = {&kUnitedStates, &kGermany};

template <class Conversion>
void ExpectValueOrError(Conversion conversion) {
  try {
    conversion();
  } catch (const RuntimeError& error) {
    Check(error.Number() == 6 || error.Number() == 13);
  }
}

void ReadText(const Conversions& convert, std::string_view text) {
  ExpectValueOrError([&] { convert.ToLong(text); });
  ExpectValueOrError([&] { convert.ToInteger(text); });
  ExpectValueOrError([&] { Check(std::isfinite(convert.ToDouble(text))); });
  ExpectValueOrError([&] { convert.ToText(convert.ToCurrency(text)); });
  ExpectValueOrError([&] { convert.ToText(convert.ToDate(text)); });
  ExpectValueOrError([&] { convert.ToDateFromMask(text); });
  ExpectValueOrError([&] { convert.ToBoolean(text); });
  ExpectValueOrError([&] { convert.CurrencyText(text); });
  ExpectValueOrError([&] { ValLong(text); });
  Check(std::isfinite(Val(text)));
  if (convert.IsDate(text)) convert.ToDate(text);
  if (convert.IsNumeric(text)) convert.ToDouble(text);
}

void WriteDouble(const Conversions& convert, double value) {
  // Above this 15 digits may round up past the largest Double.
  if (!(std::abs(value) < 1e308)) return;
  const std::string text = convert.ToText(value);
  Check(convert.ToText(convert.ToDouble(text)) == text);
  Check(Val(sql::Text(value)) == convert.ToDouble(text));
  const std::string money = convert.CurrencyText(value);
  Check(convert.CurrencyText(convert.ToDouble(money)) == money);
  ExpectValueOrError([&] { Check(std::abs(Currency::FromDouble(value).ToDouble() - value) <= 0.125); });
}

void WriteCurrency(const Conversions& convert, Currency value) {
  Check(convert.ToCurrency(convert.ToText(value)) == value);
  const std::string money = convert.CurrencyText(value);
  Check(convert.CurrencyText(convert.ToCurrency(money)) == money);
  ExpectValueOrError([&] { static_cast<void>(value * value); });
}

void WriteDate(const Conversions& convert, std::uint64_t number) {
  const int day = static_cast<int>(number % 3'615'900) - 657'434;
  const int second = static_cast<int>(number / 3'615'900 % 86'400);
  const Date date = day < 0 ? Date(day) - second / 86'400.0 : Date(day) + second / 86'400.0;
  Check(std::abs(convert.ToDate(convert.ToText(date)).Serial() - date.Serial()) * 86'400 < 0.5);
  convert.LongDateText(date);
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::uint64_t bits = 0;
  std::memcpy(&bits, data, std::min(size, sizeof bits));
  double number = 0;
  std::memcpy(&number, &bits, sizeof number);
  for (const Conversions* machine : kMachines) {
    const Conversions& convert = *machine;
    ReadText(convert, text);
    WriteDouble(convert, number);
    WriteCurrency(convert, Currency::FromTenThousandths(static_cast<std::int64_t>(bits)));
    WriteDate(convert, bits);
  }
  return 0;
}
