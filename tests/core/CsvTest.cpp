#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "core/Csv.h"
#include "core/RuntimeError.h"
#include "support/OwnPath.h"

namespace norvane {
namespace {

using ::testing::ElementsAre;

class CsvFile : public ::testing::Test {
 protected:
  ~CsvFile() override { std::filesystem::remove(path_); }
  csv::Reader Read(const std::string& bytes) {
    std::ofstream(path_, std::ios::binary) << bytes;
    return csv::Reader(path_);
  }
  /// The rows read, cells joined with "|" and an empty cell as "~", and then what stopped the reading.
  std::vector<std::string> RowsOf(const std::string& bytes) {
    csv::Reader reader = Read(bytes);
    std::vector<std::string> rows;
    for (std::vector<csv::Cell> row; reader.Next(row);) {
      std::string text = std::to_string(reader.Row());
      for (const csv::Cell& cell : row) text += "|" + (cell.isEmpty ? "~" : cell.text);
      rows.push_back(text);
    }
    if (!reader.Problem().empty()) rows.push_back(reader.Problem());
    return rows;
  }

 private:
  std::filesystem::path path_ = test::OwnPath("cells.csv");
};

TEST_F(CsvFile, ComesBackAsItWasWritten) {
  const std::vector<std::string> texts = {
      "plain",  "a,b",  "say \"no\"", "two\r\nlines", "",         " edge ",  "=1+1", "'=1+1", "''=x",  "-3",
      "+1 555", "@SUM", "-x",         "'tis",         "\tindent", "Müller€", "'-3",  "'",     "-1.5e", "\n"};
  csv::Writer writer;
  for (const std::string& text : texts) writer.Text(text);
  writer.Empty();
  writer.Value("-3");
  writer.EndRow();
  const std::string written = writer.Take();
  // What a spreadsheet would compute has an apostrophe in front; a number has none.
  EXPECT_NE(written.find(",'=1+1,''=1+1,"), std::string::npos);
  EXPECT_NE(written.find(",-3,'+1 555,'@SUM,'-x,"), std::string::npos);
  csv::Reader reader = Read(written);
  std::vector<csv::Cell> row;
  ASSERT_TRUE(reader.Next(row));
  ASSERT_EQ(row.size(), texts.size() + 2);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(row[i].text, texts[i]);
    EXPECT_FALSE(row[i].isEmpty) << texts[i];
  }
  EXPECT_TRUE(row[texts.size()].isEmpty);
  EXPECT_FALSE(reader.Next(row));
}

TEST_F(CsvFile, IsReadInTheEncodingAndWithTheSeparatorItHas) {
  EXPECT_THAT(RowsOf("\xEF\xBB\xBFName;\"Town; State\"\n\n\"Zo\xC3\xAB\";\n"),
              ElementsAre("1|Name|Town; State", "3|Zoë|~"));
  EXPECT_THAT(RowsOf("Name\tPrice\r\rZo\xEB\t\x80 5,50"), ElementsAre("1|Name|Price", "3|Zoë|€ 5,50"));
  EXPECT_EQ(Read("Zo\xEB").Encoding(), csv::Encoding::Windows1252);
  const std::string wide("\xFF\xFEN\0,\0\x3D\xD8\x00\xDE\n\0", 12);
  EXPECT_THAT(RowsOf(wide), ElementsAre("1|N|\xF0\x9F\x98\x80"));
  const std::string swapped("\xFE\xFF\0N\0,\0O", 8);
  EXPECT_THAT(RowsOf(swapped), ElementsAre("1|N|O"));
  // A long character across the border of two blocks, and far behind the first one.
  EXPECT_EQ(Read(std::string(65'535, 'x') + "ë" + std::string(70'000, 'y')).Encoding(), csv::Encoding::Utf8);
}

TEST_F(CsvFile, SaysWhereItCannotBeReadAnyFurther) {
  EXPECT_THAT(RowsOf("a,b\nc,\"d\ne,f\n"), ElementsAre("1|a|b", "A quotation mark in row 2 is never closed."));
  EXPECT_THAT(RowsOf(std::string("a,b\nc\0d\n", 8)), ElementsAre("1|a|b", "Row 2 holds what is no text."));
  EXPECT_THAT(RowsOf(""), ElementsAre());
  EXPECT_THROW(csv::Reader("/no/such/file"), RuntimeError);
}

TEST(CsvValues, AreTheSameInEveryRegion) {
  EXPECT_EQ(csv::NumberText(Currency::FromTenThousandths(-12'345'600)), "-1234.56");
  EXPECT_EQ(csv::NumberText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(csv::DateText(Date(0)), "1899-12-30");
  EXPECT_EQ(csv::DateOf("2024-02-29"), Date::FromYearMonthDay(2024, 2, 29));
  for (const char* wrong : {"2023-02-29", "2/29/2024", "2024-2-9", ""}) EXPECT_FALSE(csv::DateOf(wrong)) << wrong;
}

}  // namespace
}  // namespace norvane
