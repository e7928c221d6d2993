#include "PageFixture.h"

namespace norvane::pages {
namespace {

class Heads : public PageFixture {
 protected:
  std::string With(const std::string& header) {
    report.SetHeader(header);
    return Text();
  }
};

TEST_F(Heads, StandOnEveryPageWithTheTextSetLast) {
  report.SetBold(true);
  report.SetFontSize(20);
  report.SetAlignment(Alignment::Right);
  report.SetHeader("first");
  report.NewPage();
  report.SetHeader("Title|Company|1/2/2026");
  report.SetFooter("|Thanks|");
  const std::string page =
      "text 0.50in 0.25in 14.25pt Courier New \"Title\"\n"
      "text 3.83in 0.25in 14.25pt Courier New \"Company\"\n"
      "text 7.05in 0.25in 14.25pt Courier New \"1/2/2026\"\n"
      "text 3.89in 10.53in 14.25pt Courier New \"Thanks\"\n";
  EXPECT_EQ(Text(), "page 1/2\n" + page + "page 2/2\n" + page);
}

TEST_F(Heads, LeaveEmptyPartsEmptyAndDropSurplusOnes) {
  EXPECT_EQ(With(""), "page 1/1\n");
  EXPECT_EQ(With("||Right"), "page 1/1\ntext 7.41in 0.25in 14.25pt Courier New \"Right\"\n");
  EXPECT_EQ(With("A|Smith | Co|today"), With("A|Smith | Co"));
  EXPECT_THAT(With("two\nlines"), HasSubstr("\"two lines\""));
}

// 540 points hold 63 characters at 14.25 points and 112 at 8.
TEST_F(Heads, ShrinkEvenlyUntilABlankPartsThem) {
  const std::string thirtyOne(31, 'x');
  EXPECT_THAT(With(thirtyOne + "||" + thirtyOne), HasSubstr("14.25pt"));
  const std::string tight = With(thirtyOne + "||" + thirtyOne + "y");
  EXPECT_THAT(tight, HasSubstr("13.75pt"));
  EXPECT_THAT(tight, Not(HasSubstr("14.25pt")));
  EXPECT_THAT(With("Client Balances|" + std::string(40, 'x') + "|11/22/2026"), HasSubstr("12.25pt"));
}

TEST_F(Heads, CutTheLongestWhereEightPointsAreNotEnough) {
  const std::string text = With("Title|" + std::string(300, 'x') + "|11/22/2026");
  EXPECT_THAT(text, HasSubstr("8pt Courier New \"Title\""));
  EXPECT_THAT(text, HasSubstr("8pt Courier New \"11/22/2026\""));
  EXPECT_THAT(text, HasSubstr("\"" + std::string(89, 'x') + "…\""));
  EXPECT_THAT(With(std::string(5000, 'x')), HasSubstr("\"" + std::string(111, 'x') + "…\""));
}

}  // namespace
}  // namespace norvane::pages
