#include "PageFixture.h"
#include "support/Golden.h"

namespace norvane::pages {
namespace {

constexpr auto kFormat = "^1in|2in|>1.125in;";
constexpr auto kHeading = "Date|Description|Balance;";

class Tables : public PageFixture {
 protected:
  void Start(TableBorder border) {
    report.StartTable();
    report.SetTableBorder(border);
    report.AddTable(kFormat, kHeading, "");
  }

  /// A document of one list or grid, which may have a line above.
  Pages LaidTable(TableBorder border, int rows, const char* above = nullptr) {
    report.StartDocument();
    if (above) report.WriteParagraph(above);
    Start(border);
    AddRows(rows);
    report.EndTable();
    return Laid();
  }

  void Add(const std::string& body) { report.AddTable(kFormat, kHeading, body); }

  void AddRows(int count) {
    for (int i = 1; i <= count; ++i) Add("1/2/2026|row " + std::to_string(i) + "|$1.00;");
  }

  std::string TextOfTable(TableBorder border, const std::string& body) {
    report.StartDocument();
    Start(border);
    Add(body);
    report.EndTable();
    return Text();
  }

  static std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
  }
};

TEST_F(Tables, BordersAreRuledByTheirStyleAndAnEmptyOneShowsItsHeading) {
  std::string text;
  for (const auto border : {TableBorder::None, TableBorder::Totals, TableBorder::Grid, TableBorder::List}) {
    text += TextOfTable(border, "1/2/2026|one|$1.00;1/3/2026|two|($2.00);");
  }
  ExpectGolden("borders.txt", text);

  report.StartDocument();
  report.SetAlignment(Alignment::Centre);
  Start(TableBorder::List);
  report.EndTable();
  report.WriteParagraph("below");
  ExpectGolden("empty_table.txt", Text());
}

// A heading and 51 rows of 13.57 points make 705 points of 720; the paragraph above takes the rest.
TEST_F(Tables, BreaksBetweenRowsAndRepeatsItsHeading) {
  EXPECT_EQ(LaidTable(TableBorder::List, 51, "above").pages.size(), 1u);
  LaidTable(TableBorder::Grid, 52, "above");
  report.WriteParagraph("below");
  const std::string text = Text();
  const std::string second = text.substr(text.find("page 2/2"));
  ExpectGolden("one_row_too_many.txt", second);
  EXPECT_EQ(Count(text, "\"Date\""), 2u);
}

TEST_F(Tables, FitsExactlyAndKeepsItsHeadingWithTheFirstRow) {
  // 40 rows of 18 points, the heading among them.
  Start(TableBorder::Grid);
  AddRows(39);
  for (int row = 0; row <= 39; ++row) report.SetTableRowHeight(row, "0.25in");
  report.EndTable();
  EXPECT_EQ(Laid().pages.size(), 1u);

  report.StartDocument();
  report.WriteTextBox("", "1in", "0in", "1in", "10.2in");
  Start(TableBorder::List);
  AddRows(1);
  report.EndTable();
  EXPECT_TRUE(Laid().pages[0].runs.empty());
  EXPECT_EQ(Laid().pages.size(), 2u);
}

TEST_F(Tables, OneOfTotalsIsNeverSplit) {
  for (int i = 0; i < 53; ++i) report.WriteParagraph("x");
  Start(TableBorder::Totals);
  AddRows(4);
  report.EndTable();
  EXPECT_EQ(Laid().pages[0].runs.size(), 53u);
  EXPECT_TRUE(Laid().pages[0].lines.empty());
}

TEST_F(Tables, SplitsARowThatIsTallerThanAPage) {
  std::string notes;
  while (notes.size() < 4000) notes += "note" + std::to_string(notes.size()) + " ";
  Start(TableBorder::Grid);
  Add("1/2/2026|" + notes + "|$1.00;1/3/2026|next|$2.00;");
  report.EndTable();
  const Pages pages = Laid();
  ASSERT_GE(pages.pages.size(), 2u);
  for (const Page& page : pages.pages) {
    for (const TextRun& run : page.runs) EXPECT_LE(run.baseline, 756);
    for (const Line& line : page.lines) EXPECT_LE(line.y2, 756.01);
  }
  std::string once = Letters();
  const std::string heading = "DateDescriptionBalance";
  for (std::size_t at; (at = once.find(heading)) != std::string::npos;) once.erase(at, heading.size());
  // The short cells are beside the first piece of the long one.
  once.erase(once.find("$1.00"), 5);
  std::erase(notes, ' ');
  EXPECT_EQ(once, "1/2/2026" + notes + "1/3/2026next$2.00");
}

TEST_F(Tables, AWordTooWideIsSetSmallerAndBrokenOnlyThen) {
  const std::string text = TextOfTable(TableBorder::None, "1|W|$100,000,000.00;2|" + std::string(40, 'W') + "|;");
  EXPECT_THAT(text, HasSubstr("9.75pt \"$100,000,000.00\""));
  EXPECT_THAT(text, HasSubstr("7.875pt \"" + std::string(18, 'W') + "\""));
  EXPECT_THAT(text, HasSubstr("7.875pt \"WWWW\""));
  EXPECT_THAT(text, HasSubstr("11.25pt \"W\""));
}

TEST_F(Tables, ASetHeightIsKeptWhileTextFitsOrCanShrinkToTwoLines) {
  const auto nextRowAt = [&](const std::string& notes) {
    report.StartDocument();
    Start(TableBorder::None);
    Add("1/2/2026|" + notes + "|;next;");
    report.SetTableRowHeight(1, "0.25in");
    report.EndTable();
    const Pages pages = Laid();
    return pages.pages[0].runs.back().baseline - 0.905 * 11.25 - 0.5 - 36 - (kBodyFont.size * 1.117 + 1);
  };
  EXPECT_NEAR(nextRowAt(""), 18, 0.01);
  EXPECT_NEAR(nextRowAt("one line"), 18, 0.01);
  EXPECT_NEAR(nextRowAt("two\nlines"), 18, 0.01);
  EXPECT_THAT(Text(), HasSubstr("7.25pt \"lines\""));
  EXPECT_THAT(Text(), HasSubstr("11.25pt \"1/2/2026\"")) << "only the cell that does not fit";
  EXPECT_NEAR(nextRowAt("and\nthree\nlines"), 3 * 7 * 1.117 + 1, 0.01);
  EXPECT_THAT(Text(), HasSubstr("7pt \"three\""));
}

TEST_F(Tables, ReadsCellsAsTheyStand) {
  // Missing cells stay empty, surplus ones are dropped, signs of alignment are text, separators in data split.
  const std::string text = TextOfTable(TableBorder::None, "||<b|c|d;>a;Smith|;Jones;");
  EXPECT_EQ(Count(text, "text"), 3u + 4u);
  for (const char* cell : {"\"<b\"", "\">a\"", "\"Smith\"", "\"Jones\""}) EXPECT_THAT(text, HasSubstr(cell));
}

TEST_F(Tables, ForcesItsRowsAndPassesOverCellsThatDoNotExist) {
  Start(TableBorder::Grid);
  AddRows(3);
  report.SetTableRows(2);
  report.SetTableBold(2, 2, 2, 99);
  report.SetTableBold(3, 1, 9, 9);
  report.SetTableRowHeight(3, "5in");
  report.SetTableRowHeight(-1, "5in");
  report.SetTableRows(4);
  report.EndTable();
  const Pages pages = Laid();
  const std::string text = PagesText(pages, metrics);
  EXPECT_THAT(text, HasSubstr("11.25pt \"row 1\""));
  EXPECT_THAT(text, HasSubstr("bold \"row 2\""));
  EXPECT_THAT(text, HasSubstr("11.25pt \"1/2/2026\""));
  EXPECT_THAT(text, Not(HasSubstr("row 3")));
  EXPECT_EQ(Count(text, "bold"), 2u);
  EXPECT_NEAR(pages.pages[0].lines[1].y1, 36 + 5 * (11.25 * 1.117 + 1), 0.01);
}

// 4.9 inches, the form and the totals are 38.2 points more than the page holds; an empty row can spare 4.43.
TEST_F(Tables, EmptyRowsOfAFormMakeRoomForTheTotalsBelow) {
  const auto laidWith = [&](int rows) {
    report.StartDocument();
    report.WriteTextBox("", "1in", "0in", "1in", "4.9in");
    Start(TableBorder::Grid);
    AddRows(rows);
    report.SetTableRows(20);
    for (int row = 1; row <= 20; ++row) report.SetTableRowHeight(row, "0.25in");
    report.EndTable();
    Start(TableBorder::Totals);
    AddRows(4);
    report.EndTable();
    return Laid();
  };
  const Pages pages = laidWith(5);
  ASSERT_EQ(pages.pages.size(), 1u);
  const std::vector<Line>& lines = pages.pages[0].lines;
  EXPECT_NEAR(lines[9].y1, 456.37, 0.01) << "below the last row with text";
  EXPECT_NEAR(lines[10].y1, 471.82, 0.01) << "below the first empty one";
  EXPECT_NEAR(std::max_element(lines.begin(), lines.end(), [](auto& a, auto& b) { return a.y2 < b.y2; })->y2, 756,
              0.01);
  const Pages full = laidWith(23);
  ASSERT_EQ(full.pages.size(), 2u);
  EXPECT_EQ(full.pages[0].surplusRows, 3);
}

// After the empty line 41.4 points are left. The title would find room, but not with the beginning of its table.
TEST_F(Tables, ABoldTitleStaysWithTheBeginningOfItsTable) {
  for (const bool bold : {true, false}) {
    report.StartDocument();
    for (int i = 0; i < 53; ++i) report.WriteParagraph("x");
    report.SetBold(bold);
    for (const char* text : {"", "Title", ""}) report.WriteParagraph(text);
    report.SetBold(false);
    Start(TableBorder::List);
    AddRows(1);
    report.EndTable();
    const Pages pages = Laid();
    ASSERT_EQ(pages.pages.size(), 2u);
    EXPECT_EQ(pages.pages[0].TextOf(pages.pages[0].runs.back()), bold ? "x" : "Title");
    EXPECT_EQ(pages.pages[1].TextOf(pages.pages[1].runs.front()), bold ? "Title" : "Date");
  }
}

TEST_F(Tables, TheFirstCallFixesFormatAndHeadingAndTheEndThePlace) {
  report.StartTable();
  report.AddTable("1in|1in;", "A|B|;", "1|2;");
  report.AddTable("3in;", "other;", "3|4|5;");
  report.SetAlignment(Alignment::Right);
  report.EndTable();
  report.WriteParagraph("right");
  EXPECT_EQ(Text(),
            "page 1/1\n"
            "text 6.05in 0.51in 11.25pt \"A\"\n"
            "text 7.05in 0.51in 11.25pt \"B\"\n"
            "text 6.05in 0.70in 11.25pt \"1\"\n"
            "text 7.05in 0.70in 11.25pt \"2\"\n"
            "text 6.05in 0.88in 11.25pt \"3\"\n"
            "text 7.05in 0.88in 11.25pt \"4\"\n"
            "text 7.70in 1.07in 11.25pt \"right\"\n");

  report.StartDocument();
  report.StartTable();
  report.SetTableBorder(TableBorder::Totals);
  report.AddTable("4in|4in;", "A|B;", "");
  report.EndTable();
  EXPECT_THAT(Text(), HasSubstr("line 0.25in 0.50in 8.25in 0.50in 0.75pt")) << "one wider than the body hangs over";
}

TEST_F(Tables, ThousandsOfRowsKeepTheirOrder) {
  const Pages pages = LaidTable(TableBorder::List, 5000);
  EXPECT_EQ(pages.pages.size(), 97u) << "52 on each";
  int row = 0;
  for (const Page& page : pages.pages) {
    EXPECT_EQ(page.TextOf(page.runs.front()), "Date");
    for (const TextRun& run : page.runs) {
      if (!page.TextOf(run).starts_with("row ")) continue;
      EXPECT_EQ(page.TextOf(run), "row " + std::to_string(++row));
    }
  }
  EXPECT_EQ(row, 5000);
}

TEST_F(Tables, AHeadingThatFillsThePageIsSetOnce) {
  std::string heading;
  while (heading.size() < 2000) heading += "word" + std::to_string(heading.size()) + " ";
  report.StartTable();
  report.AddTable("2in;", heading + ";", "a;b;");
  report.EndTable();
  std::erase(heading, ' ');
  EXPECT_EQ(Letters(), heading + "ab");
}

}  // namespace
}  // namespace norvane::pages
