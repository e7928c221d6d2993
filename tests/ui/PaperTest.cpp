#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include "ui/PagePdf.h"
#include "ui/PagePrinter.h"
#include "ui/PagesInWindow.h"
#include "ui/PdfReader.h"

namespace norvane::ui {
namespace {

QString TextOf(const pages::Page& page, const pages::TextRun& run) {
  return QString::fromStdString(std::string(page.TextOf(run)));
}

class Paper : public PagesInWindow {
 protected:
  const pages::Pages& Document() { return Shown().Pages(); }
  QString File(const char* name) const { return folder_.filePath(name); }

  /// A printer that puts its sheets into a file.
  static void LoadWith(QPrinter& printer, QPageSize::PageSizeId paper, const QString& file) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setDocName("Client Balances");
    printer.setPageSize(QPageSize(paper));
  }

  /// Answers the next box of this kind once it is open.
  template <class Box>
  static void Answer(std::function<void(Box&)> answer) {
    QTimer::singleShot(0, [answer] {
      if (auto* box = qobject_cast<Box*>(QApplication::activeModalWidget())) return answer(*box);
      Answer<Box>(answer);
    });
  }

  /// Every text is where the layout put it, moved and scaled as given, and there is no other.
  void ExpectTexts(const PdfPage& page, std::size_t index, double left = 0, double scale = 1) {
    qsizetype count = 0;
    for (const QString& text : TextsOf(index)) count += text.count(' ') + 1;
    EXPECT_EQ(static_cast<qsizetype>(page.words.size()), count);
    for (const pages::TextRun& run : Document().pages[index].runs) {
      const QString first = TextOf(Document().pages[index], run).section(' ', 0, 0);
      const double baseline = run.baseline * scale;
      EXPECT_TRUE(std::any_of(page.words.begin(), page.words.end(), [&](const PdfWord& word) {
        return word.text == first && std::abs(word.left - left - run.x * scale) < 0.3 && word.top < baseline &&
               baseline < word.bottom;
      })) << first.toStdString();
    }
  }

  QStringList TextsOf(std::size_t index) {
    QStringList texts;
    for (const pages::TextRun& run : Document().pages[index].runs) texts += TextOf(Document().pages[index], run);
    return texts;
  }

 private:
  const QTemporaryDir folder_;
};

TEST_F(Paper, APdfHoldsRealTextInItsPlacesItsTitleAndItsFonts) {
  ASSERT_EQ(WritePdf(Document(), "Client Balances", File("balances.pdf")).painted, Painted::All);
  const auto pages = PagesOfPdf(File("balances.pdf"));
  ASSERT_EQ(pages.size(), 3u);
  for (std::size_t page = 0; page < 3; ++page) {
    EXPECT_EQ(pages[page].size, QSizeF(612, 792));
    ExpectTexts(pages[page], page);
  }
  const QString inOrder = ReadPdf("pdftotext", {"-raw", "-l", "1", File("balances.pdf"), "-"}).simplified();
  EXPECT_EQ(inOrder.toStdString(), TextsOf(0).join(' ').toStdString());
  EXPECT_TRUE(ReadPdf("pdfinfo", {File("balances.pdf")}).contains(QRegularExpression("Title: +Client Balances")));
  EXPECT_TRUE(ReadPdf("pdffonts", {File("balances.pdf")}).contains(QRegularExpression("yes +(yes|no) +yes")))
      << "embedded, and with the text that they show";
}

TEST_F(Paper, APrinterGetsThePagesWholeOnLetterA4AndSmallerPaper) {
  struct {
    QPageSize::PageSizeId paper;
    double left, scale;
  } const cases[] = {{QPageSize::Letter, 0, 1}, {QPageSize::A4, -8.5, 1}, {QPageSize::A5, 0, 420.0 / 612}};
  for (const auto& [paper, left, scale] : cases) {
    QPrinter printer(QPrinter::HighResolution);
    LoadWith(printer, paper, File("printed.pdf"));
    ASSERT_EQ(PrintOn(printer, Document(), {0, 1, 2}, &Window()), Painted::All);
    const auto pages = PagesOfPdf(File("printed.pdf"));
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_EQ(pages[2].size, QSizeF(QPageSize::sizePoints(paper)));
    ExpectTexts(pages[2], 2, left, scale);
  }
}

TEST_F(Paper, APrinterIsGivenTheSheetsAskedFor) {
  QPrinter printer;
  LoadWith(printer, QPageSize::Letter, File("never.pdf"));
  const auto wanted = [&] { return PagesWanted(printer, 5, 4); };
  using ::testing::ElementsAre;
  EXPECT_THAT(wanted(), ElementsAre(0, 1, 2, 3, 4));
  printer.setCopyCount(2);
  printer.setCollateCopies(true);
  printer.setPageRanges(QPageRanges::fromString("1,4-9"));
  EXPECT_THAT(wanted(), ElementsAre(0, 3, 4, 0, 3, 4));
  printer.setCollateCopies(false);
  printer.setPageOrder(QPrinter::LastPageFirst);
  EXPECT_THAT(wanted(), ElementsAre(4, 4, 3, 3, 0, 0));
  printer.setCopyCount(1);
  printer.setPrintRange(QPrinter::CurrentPage);
  EXPECT_THAT(wanted(), ElementsAre(3));
}

TEST_F(Paper, PrintingTellsWhereItIsAndStopsAtCancel) {
  Report().Build(2'000);
  QPrinter printer(QPrinter::HighResolution);
  LoadWith(printer, QPageSize::Letter, File("cancelled.pdf"));
  QString caption, label;
  Answer<QProgressDialog>([&](QProgressDialog& box) {
    caption = box.windowTitle();
    label = box.labelText();
    box.findChild<QPushButton*>()->click();
  });
  EXPECT_EQ(PrintOn(printer, Document(), AllPagesOf(Document()), &Window()), Painted::Cancelled);
  EXPECT_EQ(caption, "Printing...");
  const QString seen = "Now printing Page \\d+ of 2000\non the Client Balances on ";
  EXPECT_TRUE(QRegularExpression(seen + QRegularExpression::escape(File("cancelled.pdf"))).match(label).hasMatch())
      << label.toStdString();
  EXPECT_FALSE(QFile::exists(File("cancelled.pdf")));
}

TEST_F(Paper, AFileThatCannotBeWrittenIsReportedAndOneThatIsCancelledStays) {
  EXPECT_EQ(WritePdf(Document(), "x", File("missing/x.pdf")).painted, Painted::Failed);
  EXPECT_FALSE(WritePdf(Document(), "x", File("missing/x.pdf")).why.isEmpty());
  QPrinter printer;
  LoadWith(printer, QPageSize::Letter, File("missing/x.pdf"));
  EXPECT_EQ(PrintOn(printer, Document(), {0}, &Window()), Painted::Failed);

  ASSERT_EQ(WritePdf(Document(), "x", File("kept.pdf")).painted, Painted::All);
  const auto stop = [](std::size_t page) { return page < 1; };
  EXPECT_EQ(WritePdf(Document(), "y", File("kept.pdf"), stop).painted, Painted::Cancelled);
  EXPECT_EQ(PagesOfPdf(File("kept.pdf")).size(), 3u);
}

TEST_F(Paper, TheBarSavesAndPrintsThroughTheSystemsDialogs) {
  const auto saveAs = [&](const char* name) {
    Answer<QFileDialog>([file = File(name)](QFileDialog& dialog) {
      EXPECT_TRUE(dialog.selectedFiles().value(0).endsWith("/Client Balances.pdf"));
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file);
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    Tool("Save as PDF").click();
  };
  const auto printTo = [&](const char* name) {
    Answer<QPrintDialog>([file = File(name)](QPrintDialog& dialog) {
      LoadWith(*dialog.printer(), QPageSize::Letter, file);
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    Tool("Print").click();
  };
  saveAs("saved");
  printTo("printed.pdf");
  EXPECT_EQ(PagesOfPdf(File("saved.pdf")).size(), 3u);
  EXPECT_EQ(PagesOfPdf(File("printed.pdf")).size(), 3u);

  QString seen;
  const auto noteWarning = [&] {
    Answer<QMessageBox>([&](QMessageBox& box) {
      seen = box.text();
      box.accept();
    });
  };
  const auto missing = [&] { return File("missing/file.pdf").toStdString(); };
  noteWarning();
  saveAs("missing/file.pdf");
  EXPECT_THAT(seen.toStdString(), testing::StartsWith("The file " + missing() + " could not be written: "));
  noteWarning();
  printTo("missing/file.pdf");
  EXPECT_EQ(seen.toStdString(), "The document could not be printed on " + missing() + ".");
}

}  // namespace
}  // namespace norvane::ui
