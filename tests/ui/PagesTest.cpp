#include <filesystem>

#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>

#include "reports/Layout.h"
#include "reports/Preview.h"
#include "support/OwnPath.h"
#include "ui/PageFonts.h"
#include "ui/PageOutput.h"
#include "ui/PagePainter.h"
#include "ui/PreviewWidget.h"
#include "ui/WindowTest.h"

namespace norvane::ui {
namespace {

/// A report of as many pages as it is told.
class PagesForm : public Form {
 public:
  static constexpr const char* kName = "PagesForm";
  explicit PagesForm(Program& owner)
      : Form(owner, kName, {.caption = "Client Balances", .width = 9000, .height = 9000}) {
    SetLayout(layout::Column({layout::Stretch(VSInvoice)}));
    Build(3);
  }
  void Build(int pages) {
    VSInvoice.Clear();
    VSInvoice.SetMargins("0.5in", "0.5in", "0.5in", "0.5in");
    VSInvoice.StartDocument();
    for (int page = 1; page <= pages; ++page) {
      if (page > 1) VSInvoice.NewPage();
      VSInvoice.WriteParagraph("Sheet " + std::to_string(page) + " for Zoë & Søn");
      VSInvoice.StartTable();
      VSInvoice.SetTableBorder(pages::TableBorder::Grid);
      VSInvoice.AddTable("2in|>1in;", "Client|Balance;", "Adams, Henry|$1,234.50;");
      VSInvoice.EndTable();
    }
    VSInvoice.EndDocument();
  }
  Preview VSInvoice{*this, "VSInvoice"};
};

class PagesInWindow : public WindowTest {
 protected:
  PagesInWindow() {
    program.screens.Add<PagesForm>();
    program.screens.Show(PagesForm::kName);
    Settle();
  }
  PagesForm& Report() { return program.screens.Touch<PagesForm>(); }
  Preview& Shown() { return Report().VSInvoice; }
  PreviewWidget& View() { return Of<PreviewWidget>(Shown()); }
  QPushButton& Tool(const QString& name) {
    for (auto* tool : View().findChildren<QPushButton*>()) {
      if (tool->accessibleName() == name) return *tool;
    }
    throw std::logic_error("no tool " + name.toStdString());
  }
};

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

TEST_F(PagesInWindow, APdfHoldsRealTextItsTitleAndItsFonts) {
  const auto file = QString::fromStdString(test::OwnPath("pages.pdf").string());
  ASSERT_TRUE(WritePdf(Shown().Pages(), "Client Balances", file));
  const auto read = [&](const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
  };
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no PDF reader here";
  const QString text = read("pdftotext", {"-layout", file, "-"});
  EXPECT_TRUE(text.contains("Sheet 2 for Zoë & Søn")) << text.toStdString();
  EXPECT_TRUE(text.contains("$1,234.50"));
  const QString info = read("pdfinfo", {file});
  EXPECT_TRUE(info.contains(QRegularExpression("Title: +Client Balances")));
  EXPECT_TRUE(info.contains(QRegularExpression("Pages: +3")));
  EXPECT_TRUE(info.contains("612 x 792 pts"));
  EXPECT_TRUE(read("pdffonts", {file}).contains(QRegularExpression("yes +(yes|no) +yes")))
      << "embedded, and with the text they stand for";
  QFile::remove(file);
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
