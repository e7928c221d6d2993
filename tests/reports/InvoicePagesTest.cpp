#include <algorithm>
#include <gmock/gmock.h>

#include "Golden.h"
#include "PageFixture.h"
#include "support/SampleInvoice.h"

namespace norvane::pages {
namespace {

class InvoicePages : public testing::Test {
 protected:
  Pages Lay(const SampleInvoice& invoice) {
    WriteInvoice(report_, invoice);
    return LayOut(report_.Recorded().value(), metrics);
  }

  static double LowestLine(const Page& page) {
    double lowest = 0;
    for (const Line& line : page.lines) lowest = std::max<double>(lowest, line.y2);
    return lowest / kPointsPerInch;
  }

  PinnedFontMetrics metrics;

 private:
  DocumentBuilder report_;
};

TEST_F(InvoicePages, StandsOnOneLetterPage) {
  const Pages pages = Lay({});
  ASSERT_EQ(pages.pages.size(), 1u);
  EXPECT_NEAR(LowestLine(pages.pages[0]), 10.39, 0.005);
  ExpectGolden("invoice.txt", PagesText(pages, metrics));
}

TEST_F(InvoicePages, KeepsItsTwentyRowsWhateverItsLines) {
  const auto linesOf = [&](int count) {
    const Pages pages = Lay({.lines = count, .notes = "One of them"});
    EXPECT_EQ(pages.pages.size(), 1u);
    EXPECT_NEAR(LowestLine(pages.pages[0]), 10.39, 0.005);
    return std::count_if(pages.pages[0].runs.begin(), pages.pages[0].runs.end(),
                         [&](const TextRun& run) { return pages.pages[0].TextOf(run) == "One of them"; });
  };
  EXPECT_EQ(linesOf(0), 0);
  EXPECT_EQ(linesOf(20), 20);
  EXPECT_EQ(linesOf(21), 20);
}

TEST_F(InvoicePages, MovesTheWholeTotalsBlockBelowALongDescription) {
  const Pages pages = Lay({.description = "first line\nsecond line"});
  ASSERT_EQ(pages.pages.size(), 2u);
  const std::string text = PagesText(pages, metrics);
  const std::string second = text.substr(text.find("page 2/2"));
  EXPECT_THAT(second, testing::HasSubstr("text 6.20in 0.51in 11.25pt \"SubTotal\""));
  EXPECT_THAT(second, testing::HasSubstr("\"Total:\""));
  EXPECT_THAT(second, testing::HasSubstr("\"Invoice #1042\""));
  EXPECT_THAT(second, testing::HasSubstr("\"We appreciate your business!\""));
}

TEST_F(InvoicePages, SetsNotesThatWrapSmallerRatherThanGrowing) {
  const Pages pages = Lay({.notes = "Oak table with two leaves, six chairs,\nand a lamp"});
  ASSERT_EQ(pages.pages.size(), 1u);
  EXPECT_THAT(PagesText(pages, metrics), testing::HasSubstr("7.25pt \"and a lamp\""));
}

}  // namespace
}  // namespace norvane::pages
