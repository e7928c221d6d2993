#include <functional>
#include <gtest/gtest.h>

#include "PageFixture.h"
#include "core/RuntimeError.h"

namespace norvane::pages {
namespace {

void ExpectInvalidCall(const std::function<void()>& call) {
  try {
    call();
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 5);
  }
}

TEST(DocumentBuilder, WritesOnlyIntoAnOpenDocument) {
  DocumentBuilder report;
  ExpectInvalidCall([&] { report.WriteParagraph("early"); });
  report.StartDocument();
  ExpectInvalidCall([&] { report.AddTable("1in;", "A;", "a;"); });
  report.EndDocument();
  ExpectInvalidCall([&] { report.WriteTextBox("late", "1in", "1in", "1in", "1in"); });
  ExpectInvalidCall([&] { report.SetHeader("late"); });
  EXPECT_TRUE(report.Recorded()->elements.empty());
  report.Clear();
  EXPECT_FALSE(report.Recorded().has_value());
}

TEST(DocumentBuilder, RefusesMeasuresThatAreNone) {
  DocumentBuilder report;
  for (const char* measure : {"", "in", "0.5", "0.5cm", "-1in", "1 in", "0.5inin", "infin", "nanin", "1e1in"}) {
    SCOPED_TRACE(measure);
    ExpectInvalidCall([&] { report.SetMargins(measure, "0.5in", "0.5in", "0.5in"); });
  }
  for (const char* size : {"", "0", "-10", "ten"}) {
    ExpectInvalidCall([&] { report.SetFontSize(size); });
  }
}

TEST_F(PageFixture, AnUnfinishedDocumentShowsWhatStoodBeforeTheError) {
  report.WriteParagraph("before");
  report.StartTable();
  report.AddTable("1in;", "Heading;", "lost;");
  EXPECT_EQ(Letters(), "before");
  report.StartDocument();
  EXPECT_EQ(Letters(), "");
  EXPECT_EQ(Laid().pages.size(), 1u);
}

TEST_F(PageFixture, ANewDocumentStartsFromTheDefaultsInTheSameMargins) {
  report.SetHeader("old|header");
  report.SetBold(true);
  report.SetFontSize("10");
  report.SetAlignment(Alignment::Right);
  report.EndDocument();
  report.StartDocument();
  report.WriteParagraph("new");
  EXPECT_EQ(Text(), "page 1/1\ntext 0.50in 0.50in 11.25pt \"new\"\n");
}

}  // namespace
}  // namespace norvane::pages
