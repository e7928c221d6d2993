#include "PageFixture.h"

namespace norvane::pages {
namespace {

constexpr double kLine = 1.117 * 11.25;

TEST_F(PageFixture, ParagraphsFollowOneAnotherWithoutSpace) {
  report.WriteParagraph("left");
  report.WriteParagraph("");
  report.SetAlignment(Alignment::Centre);
  report.SetBold(true);
  report.WriteParagraph("centred");
  report.SetAlignment(Alignment::Right);
  report.SetBold(false);
  report.SetFontSize("10");
  report.WriteParagraph("two\r\nlines");
  EXPECT_EQ(Text(),
            "page 1/1\n"
            "text 0.50in 0.50in 11.25pt \"left\"\n"
            "text 3.97in 0.85in 11.25pt bold \"centred\"\n"
            "text 7.78in 1.02in 10pt \"two\"\n"
            "text 7.71in 1.18in 10pt \"lines\"\n");
}

TEST_F(PageFixture, AParagraphGoesOnOverThePageAndBlankOnesKeepTheirHeight) {
  const int perPage = static_cast<int>(720 / kLine);
  for (int i = 0; i < perPage; ++i) report.WriteParagraph("x");
  EXPECT_EQ(Laid().pages.size(), 1u);
  report.WriteParagraph("\nafter the blank");
  const Pages pages = Laid();
  ASSERT_EQ(pages.pages.size(), 2u);
  EXPECT_NEAR(pages.pages[1].runs.at(0).baseline, 36 + kLine + 0.905 * 11.25, 0.01);
}

TEST_F(PageFixture, WrapsBetweenTheMarginsAndLosesNothing) {
  std::string description;
  while (description.size() < 4000) description += "word" + std::to_string(description.size()) + "  ";
  report.WriteParagraph("Description: " + description);
  report.WriteParagraph(std::string(400, 'W'));
  std::string expected = "Description:" + description + std::string(400, 'W');
  std::erase(expected, ' ');
  EXPECT_EQ(Letters(), expected);
  const Pages pages = Laid();
  for (const TextRun& run : pages.pages[0].runs) {
    EXPECT_LE(run.x + metrics.Advance(kBodyFont.face, pages.pages[0].TextOf(run)) * 11.25, 576.01);
  }
}

TEST_F(PageFixture, KeepsForeignAndDamagedTextWhole) {
  const std::string hebrew = "הזמנה של שולחן עץ אלון";
  report.WriteParagraph(hebrew);
  EXPECT_THAT(Text(), HasSubstr("\"" + hebrew + "\""));
  std::string letters;
  for (int i = 0; i < 200; ++i) letters += "é";
  report.WriteParagraph(letters);
  report.WriteParagraph("broken \xC3\x28 \xE2\x82 \xFF end\ttab");
  EXPECT_THAT(Letters(), HasSubstr(letters + "broken\xC3\x28\xE2\x82\xFF"
                                             "endtab"));
  const Pages pages = Laid();
  for (const TextRun& run : pages.pages[0].runs) {
    EXPECT_NE(pages.pages[0].TextOf(run).front(), '\xA9') << "no line starts in the middle of a character";
  }
}

TEST_F(PageFixture, TextBoxesAreWhereTheyAreSetAndTheTextBelowTheLowest) {
  report.SetAlignment(Alignment::Centre);
  report.WriteTextBox("WWWWWWWWWW\nW", "3in", "2in", "1in", ".25in");
  report.WriteTextBox(std::string(20, 'W'), "3in", "1.5in", "1in", ".25in");
  report.WriteTextBox("right of it", "5in", "1in", "1in", "0.5in");
  report.SetAlignment(Alignment::Left);
  report.WriteParagraph("below");
  report.WriteTextBox("", "1in", "1in", "1in", "0.1in");
  report.WriteParagraph("below again");
  report.NewPage();
  report.WriteTextBox("in the margin", "0in", "0in", "1in", "1in");
  report.WriteParagraph("only this page counts");
  EXPECT_EQ(Text(),
            "page 1/2\n"
            "text 3.02in 2.05in 7.25pt \"WWWWWWWWWW\"\n"
            "text 3.43in 2.17in 11.25pt \"W\"\n"
            "text 3.00in 1.57in 6pt \"WWWWWWWWWWWW…\"\n"
            "text 5.20in 1.00in 11.25pt \"right of it\"\n"
            "text 0.50in 2.25in 11.25pt \"below\"\n"
            "text 0.50in 2.25in 11.25pt \"below again\"\n"
            "page 2/2\n"
            "text 0.00in 0.00in 11.25pt \"in the margin\"\n"
            "text 0.50in 1.00in 11.25pt \"only this page counts\"\n");
}

TEST_F(PageFixture, FindsAPlaceInNarrowMarginsAndForALineHigherThanAPage) {
  report.SetMargins("0.5in", "0.25in", "0.25in", "0.5in");
  report.StartDocument();
  report.SetAlignment(Alignment::Right);
  report.WriteParagraph("x");
  EXPECT_EQ(Text(), "page 1/1\ntext 8.17in 0.49in 11.25pt \"x\"\n") << "the body begins below the header";
  report.SetFontSize(2000);
  report.WriteParagraph("AB");
  EXPECT_EQ(Letters(), "xAB");
  EXPECT_EQ(Laid().pages.size(), 3u);
}

TEST(Placing, KeepsItsSizeOnLetterAndA4AndShrinksOnSmallerPaper) {
  const auto placed = [](double width, double height) {
    const Placing placing = PlaceOn(width, height);
    return std::vector<double>{placing.left, placing.scale};
  };
  using ::testing::DoubleNear;
  using ::testing::ElementsAre;
  EXPECT_THAT(placed(612, 792), ElementsAre(0, 1));
  EXPECT_THAT(placed(210 / 25.4 * 72, 297 / 25.4 * 72), ElementsAre(DoubleNear(-8.36, 0.005), 1));
  EXPECT_THAT(placed(842, 1191), ElementsAre(115, 1));
  EXPECT_THAT(placed(792, 612), ElementsAre(DoubleNear(159.5, 0.1), DoubleNear(612.0 / 792, 1e-6)));
  EXPECT_THAT(placed(306, 792), ElementsAre(0, 0.5));
}

}  // namespace
}  // namespace norvane::pages
