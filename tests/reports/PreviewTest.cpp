#include "ReportOffice.h"
#include "forms/Form.h"

namespace norvane::test {
namespace {

class Window : public Form {
 public:
  explicit Window(Program& host) : Form(host, "Window", {.caption = "Print Something"}) { SetLayout(Viewer); }
  Preview Viewer{*this, "VSInvoice"};
};

class PreviewTest : public ReportOffice {
 protected:
  PreviewTest() {
    preview.observer = [this](Aspect aspect) { seen.push_back(aspect); };
  }

  void Record(int pageCount) {
    preview.StartDocument();
    for (int page = 1; page < pageCount; ++page) preview.NewPage();
    preview.EndDocument();
  }

  Window window{program};
  Preview& preview = window.Viewer;
  std::vector<Aspect> seen;
};

TEST_F(PreviewTest, LaysOutWhatStandsNowAndTellsOfPagesWhenTheDocumentEnds) {
  EXPECT_EQ(preview.Title(), "Print Something") << "the window's until it has one of its own";
  EXPECT_EQ(PagesOf(preview).pages.size(), 0u);
  preview.SetFontMetrics(nullptr);
  preview.StartDocument();
  preview.WriteParagraph("first");
  EXPECT_EQ(preview.PageCount(), 0) << "without metrics there is nothing to lay out by";
  EXPECT_THAT(WordsOf(preview), ElementsAre("first"));
  preview.StartTable();
  preview.AddTable("1in;", "Heading;", "cell;");
  EXPECT_THAT(WordsOf(preview), ElementsAre("first"));
  preview.EndTable();
  preview.SetFooter("foot");
  EXPECT_THAT(WordsOf(preview), ElementsAre("first", "Heading", "cell", "foot"));
  EXPECT_EQ(&preview.Pages(), &preview.Pages());
  seen.clear();
  preview.EndDocument();
  EXPECT_THAT(seen, ElementsAre(Aspect::Pages));
  preview.Clear();
  EXPECT_EQ(preview.PageCount(), 0);
}

TEST_F(PreviewTest, TurnsItsPages) {
  preview.SetFontMetrics(&metrics);
  EXPECT_EQ(preview.CurrentPage(), 0);
  Record(3);
  EXPECT_EQ(preview.CurrentPage(), 1);
  preview.SetCurrentPage(9);
  EXPECT_EQ(preview.CurrentPage(), 3);
  preview.SetCurrentPage(-1);
  EXPECT_EQ(preview.CurrentPage(), 1);
  preview.SetCurrentPage(2);
  Record(5);
  EXPECT_EQ(preview.CurrentPage(), 1) << "a new document is shown from its first page";
  preview.SetCurrentPage(4);
  preview.StartDocument();
  EXPECT_EQ(preview.CurrentPage(), 1) << "the page looked at is gone";
}

TEST_F(PreviewTest, IsZoomedByPercentOrByChoice) {
  preview.SetChoice(ZoomChoice::TwoPages);
  preview.SetZoom(1000);
  EXPECT_EQ(preview.Choice(), ZoomChoice::Percent);
  EXPECT_EQ(preview.Zoom(), Preview::kLargestZoom);
  preview.SetZoom(0);
  EXPECT_EQ(preview.Zoom(), Preview::kSmallestZoom);
  EXPECT_THAT(seen, ElementsAre(Aspect::State, Aspect::State, Aspect::State));
}

}  // namespace
}  // namespace norvane::test
