#include <gtest/gtest.h>

#include "PageFixture.h"
#include "core/Given.h"

namespace norvane::pages {
namespace {

TEST(DocumentBuilder, WritesOnlyIntoAnOpenDocument) {
  DocumentBuilder report;
  EXPECT_EQ(ErrorOf([&] { report.WriteParagraph("early"); }), 5);
  report.StartDocument();
  EXPECT_EQ(ErrorOf([&] { report.AddTable("1in;", "A;", "a;"); }), 5);
  report.EndDocument();
  EXPECT_EQ(ErrorOf([&] { report.WriteTextBox("late", "1in", "1in", "1in", "1in"); }), 5);
  EXPECT_EQ(ErrorOf([&] { report.SetHeader("late"); }), 5);
  EXPECT_TRUE(report.Recorded()->elements.empty());
  report.Clear();
  EXPECT_FALSE(report.Recorded().has_value());
}

TEST(DocumentBuilder, RefusesMeasuresThatAreNone) {
  DocumentBuilder report;
  for (const char* measure : {"", "in", "0.5", "0.5cm", "-1in", "1 in", "0.5inin", "infin", "nanin", "1e1in"}) {
    EXPECT_EQ(ErrorOf([&] { report.SetMargins(measure, "0.5in", "0.5in", "0.5in"); }), 5) << measure;
  }
  for (const char* size : {"", "0", "-10", "ten"}) EXPECT_EQ(ErrorOf([&] { report.SetFontSize(size); }), 5) << size;
}

TEST_F(PageFixture, AnUnfinishedDocumentShowsWhatStoodBeforeTheErrorAndANewOneStartsFromTheDefaults) {
  report.SetHeader("old|header");
  report.SetBold(true);
  report.SetFontSize("10");
  report.SetAlignment(Alignment::Right);
  report.WriteParagraph("before");
  report.StartTable();
  report.AddTable("1in;", "Heading;", "lost;");
  EXPECT_EQ(Letters(), "oldheaderbefore");
  report.StartDocument();
  EXPECT_EQ(Text(), "page 1/1\n");
  report.WriteParagraph("new");
  EXPECT_EQ(Text(), "page 1/1\ntext 0.50in 0.50in 11.25pt \"new\"\n") << "but in the same margins";
}

}  // namespace
}  // namespace norvane::pages
