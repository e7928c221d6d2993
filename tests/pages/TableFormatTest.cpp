#include <gtest/gtest.h>
#include <string>

#include "core/RuntimeError.h"
#include "pages/TableFormat.h"

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

TEST(TableFormat, TakesRowsApart) {
  std::string_view body = "a;;b";
  std::string rows;
  for (std::string_view cells; TakeRow(body, cells);) rows += "[" + std::string(cells) + "]";
  EXPECT_EQ(rows, "[a][][b]");
}

}  // namespace
}  // namespace norvane::pages
