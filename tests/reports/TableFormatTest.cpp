#include <gtest/gtest.h>
#include <string>

#include "core/RuntimeError.h"
#include "reports/TableFormat.h"

namespace norvane::pages {
namespace {

// As in "^72 <18": alignment and width in points of every column.
std::string Columns(std::string_view format) {
  std::string text;
  for (const Column& column : ReadTableFormat(format)) {
    text += std::string(text.empty() ? "" : " ") + "<^>"[static_cast<int>(column.alignment)];
    text += std::to_string(static_cast<int>(column.width));
  }
  return text;
}

TEST(TableFormat, ReadsColumns) {
  EXPECT_EQ(Columns("^1in|2.5in|>1.125in|<.25in;"), "^72 <180 >81 <18");
  EXPECT_EQ(Columns("1in"), "<72") << "the closing sign may be missing";
  EXPECT_EQ(Columns("1in|2in|;"), "<72 <144") << "a surplus separator opens no column";
  EXPECT_EQ(Columns("1in;2in;"), "<72");
  EXPECT_EQ(Columns(";"), "");
}

TEST(TableFormat, RefusesColumnsWithoutAWidth) {
  for (const char* format : {"1in||2in;", "^;", "0in;", "1;", ">^1in;", "wide;"}) {
    EXPECT_THROW(ReadTableFormat(format), RuntimeError) << format;
  }
}

std::string Rows(std::string_view body) {
  std::string text;
  for (std::string_view cells; TakeRow(body, cells);) text += "[" + std::string(cells) + "]";
  return text;
}

TEST(TableFormat, TakesRowsApart) {
  EXPECT_EQ(Rows("a|b;c|d;"), "[a|b][c|d]");
  EXPECT_EQ(Rows("a;;b"), "[a][][b]");
  EXPECT_EQ(Rows("||||;"), "[||||]");
  EXPECT_EQ(Rows(""), "");
  EXPECT_EQ(ReadTableHeading("Date|;"), "Date|");
  std::string_view cells = "a||b";
  for (const char* cell : {"a", "", "b", "", ""}) EXPECT_EQ(TakeCell(cells), cell);
}

}  // namespace
}  // namespace norvane::pages
