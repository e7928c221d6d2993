// Tables of measured pairs, one row a line: what goes in, and what every conversion makes of it.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <limits>
#include <vector>

#include "core/Given.h"
#include "core/Rounding.h"

namespace norvane {
namespace {

using Row = std::vector<std::string>;

/// The rows of a table below the line of headings, which also says how many columns there are.
std::vector<Row> Table(const std::string& name) {
  std::ifstream file(std::string(NORVANES_VECTORS "/") + name);
  std::vector<Row> rows;
  for (std::string line; std::getline(file, line);) {
    Row row;
    for (std::size_t begin = 0; begin <= line.size();) {
      const std::size_t end = std::min(line.find('\t', begin), line.size());
      row.push_back(line.substr(begin, end - begin));
      begin = end + 1;
    }
    rows.push_back(row);
  }
  EXPECT_GT(rows.size(), 10u) << name;
  for (const Row& row : rows) EXPECT_EQ(row.size(), rows.front().size()) << name << ": " << row.front();
  if (!rows.empty()) rows.erase(rows.begin());
  return rows;
}

template <class Number>
Number Read(const std::string& text) {
  Number number{};
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  EXPECT_EQ(result.ptr, text.data() + text.size()) << text;
  return number;
}

/// The result as the tables write it: a Double to 17 digits, an error by its number.
std::string Outcome(const std::function<std::string()>& conversion) {
  try {
    return conversion();
  } catch (const RuntimeError& error) {
    return "error " + std::to_string(error.Number());
  }
}

std::string Written(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", value);
  return text;
}

std::string Written(Currency value) {
  return std::to_string(value.TenThousandths());
}

/// A text of more digits than a Double holds may have been measured one unit of the last place beside the nearest
/// Double, which is what we give.
void ExpectDouble(const std::string& text, const std::string& expected) {
  const std::string outcome = Outcome([&] { return Written(kUnitedStates.ToDouble(text)); });
  if (text.size() <= std::numeric_limits<double>::digits10 || expected.starts_with("error")) {
    EXPECT_EQ(outcome, expected);
  } else {
    EXPECT_EQ(std::nextafter(Read<double>(outcome), Read<double>(expected)), Read<double>(expected));
  }
}

TEST(Vectors, TextToNumber) {
  for (const Row& row : Table("text_to_number.tsv")) {
    SCOPED_TRACE('"' + row[0] + '"');
    EXPECT_EQ(Outcome([&] { return std::to_string(kUnitedStates.ToLong(row[0])); }), row[1]);
    EXPECT_EQ(Outcome([&] { return std::to_string(kUnitedStates.ToInteger(row[0])); }), row[2]);
    ExpectDouble(row[0], row[3]);
    EXPECT_EQ(Outcome([&] { return Written(kUnitedStates.ToCurrency(row[0])); }), row[4]);
    EXPECT_EQ(kUnitedStates.IsNumeric(row[0]), !row[3].starts_with("error"));
  }
}

TEST(Vectors, Double) {
  for (const Row& row : Table("double.tsv")) {
    SCOPED_TRACE(row[0]);
    const double value = Read<double>(row[0]);
    EXPECT_EQ(kUnitedStates.ToText(value), row[1]);
    EXPECT_EQ(Outcome([&] { return Written(Currency::FromDouble(value)); }), row[2]);
    EXPECT_EQ(Outcome([&] { return std::to_string(RoundToLong(value)); }), row[3]);
    EXPECT_EQ(Outcome([&] { return std::to_string(RoundToInteger(value)); }), row[4]);
    EXPECT_EQ(kUnitedStates.CurrencyText(value), row[5]);
  }
}

TEST(Vectors, DoubleToCurrency) {
  for (const Row& row : Table("double_to_currency.tsv")) {
    SCOPED_TRACE(row[0]);
    EXPECT_EQ(Outcome([&] { return Written(Currency::FromDouble(Read<double>(row[0]))); }), row[1]);
  }
}

TEST(Vectors, Currency) {
  for (const Row& row : Table("currency.tsv")) {
    SCOPED_TRACE(row[0]);
    const Currency value = Currency::FromTenThousandths(Read<std::int64_t>(row[0]));
    EXPECT_EQ(kUnitedStates.ToText(value), row[1]);
    EXPECT_EQ(Outcome([&] { return std::to_string(RoundToLong(value)); }), row[2]);
    EXPECT_EQ(Outcome([&] { return std::to_string(RoundToInteger(value)); }), row[3]);
    EXPECT_EQ(kUnitedStates.CurrencyText(value), row[4]);
  }
}

TEST(Vectors, TextToDate) {
  // The table was measured with the window of two-digit years that the program runs with.
  RegionalSettings settings;
  settings.lastTwoDigitYear = 2049;
  const Conversions convert(settings, kClock);
  for (const Row& row : Table("text_to_date.tsv")) {
    SCOPED_TRACE('"' + row[0] + '"');
    EXPECT_EQ(Outcome([&] { return Written(convert.ToDate(row[0]).Serial()); }), row[1]);
    EXPECT_EQ(convert.IsDate(row[0]), !row[1].starts_with("error"));
    if (row[1].starts_with("error")) continue;
    EXPECT_EQ(convert.ToText(convert.ToDate(row[0])), row[2]);
  }
}

}  // namespace
}  // namespace norvane
