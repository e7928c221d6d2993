#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>

#include "ui/PageFonts.h"
#include "ui/PagePainter.h"
#include "ui/PagesInWindow.h"

namespace norvane::ui {
namespace {

TEST_F(PagesInWindow, TheBarTurnsThePages) {
  EXPECT_EQ(Shown().PageCount(), 3);
  EXPECT_FALSE(Tool("Previous Page").isEnabled());
  Tool("Next Page").click();
  EXPECT_EQ(Shown().CurrentPage(), 2);
  EXPECT_EQ(View().Canvas().CurrentPage(), 2);
  EXPECT_GT(View().Canvas().verticalScrollBar()->value(), 0);
  Tool("Last Page").click();
  EXPECT_EQ(Shown().CurrentPage(), 3);
  EXPECT_FALSE(Tool("Next Page").isEnabled());
  View().Canvas().verticalScrollBar()->setValue(0);
  EXPECT_EQ(Shown().CurrentPage(), 1) << "scrolling turns pages too";
}

TEST_F(PagesInWindow, TheZoomMenuOffersTheChoicesAndPercentages) {
  const auto entries = Tool("Zoom").menu()->actions();
  EXPECT_EQ(entries.front()->text(), "Whole &Page");
  entries.front()->trigger();
  EXPECT_EQ(Shown().Choice(), ZoomChoice::WholePage);
  EXPECT_EQ(Tool("Zoom").text(), "Whole Page");
  EXPECT_LT(View().Canvas().Percent(), 100);
  EXPECT_EQ(View().Canvas().horizontalScrollBar()->maximum(), 0);
  Shown().SetZoom(150);
  EXPECT_NEAR(View().Canvas().Percent(), 150, 0.01);
  EXPECT_EQ(Tool("Zoom").text(), "150 %");
}

TEST_F(PagesInWindow, ADocumentBuiltAnewIsShownFromItsFirstPage) {
  Shown().SetCurrentPage(3);
  Report().Build(1);
  Settle();
  EXPECT_EQ(View().Canvas().PageCount(), 1);
  EXPECT_EQ(Shown().CurrentPage(), 1);
  Shown().Clear();
  Shown().StartDocument();
  View().grab();  // half built, what is on the screen stays the old document
  EXPECT_EQ(View().Canvas().PageCount(), 1);
}

TEST_F(PagesInWindow, TextAndRulesStandWhereTheLayoutPutThem) {
  const auto& document = Shown().Pages();
  QImage paper(612, 792, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  PaintPage(painter, document, 0, {}, 1);
  painter.end();
  const auto& page = document.pages.front();
  ASSERT_FALSE(page.lines.empty());
  const auto& rule = page.lines.front();
  const QPoint middle(static_cast<int>((rule.x1 + rule.x2) / 2), static_cast<int>((rule.y1 + rule.y2) / 2));
  EXPECT_LT(qGray(paper.pixel(middle)), 200);
  const auto& run = page.runs.front();
  const QRect ink(static_cast<int>(run.x), static_cast<int>(run.baseline) - 9, 20, 9);
  int dark = 0;
  for (int y = ink.top(); y <= ink.bottom(); ++y) {
    for (int x = ink.left(); x <= ink.right(); ++x) dark += qGray(paper.pixel(x, y)) < 128 ? 1 : 0;
  }
  EXPECT_GT(dark, 10);
  EXPECT_EQ(paper.pixelColor(5, 5), Qt::white);
}

TEST(PageFonts, AreMeasuredAsDesigned) {
  const QtFontMetrics metrics;
  const pages::Face arial{pages::Family::Arial, false};
  EXPECT_NEAR(metrics.Ascent(arial) + metrics.Descent(arial), 1.117, 0.01);
  EXPECT_NEAR(metrics.Advance(arial, "0"), 0.556, 0.002);
  EXPECT_NEAR(metrics.Advance({pages::Family::CourierNew, true}, "iW"), 1.2, 0.005);
  EXPECT_NEAR(metrics.Advance(arial, "AVAV"), 2 * (metrics.Advance(arial, "A") + metrics.Advance(arial, "V")), 0.001)
      << "no kerning";
}

}  // namespace
}  // namespace norvane::ui
