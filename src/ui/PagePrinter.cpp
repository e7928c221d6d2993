#include "ui/PagePrinter.h"

#include <algorithm>

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "ui/PageProgress.h"
#include "ui/Warning.h"

namespace norvane::ui {
namespace {

/// A printer without paper of its own, such as a file, gets the paper that pages are made for.
void SetUpPaper(QPrinter& printer) {
  if (!printer.isValid() || printer.outputFormat() != QPrinter::NativeFormat) {
    printer.setPageLayout(LetterPortrait());
  } else {
    printer.setPageOrientation(QPageLayout::Portrait);
  }
  printer.setFullPage(true);
}

/// Whether the printer was switched off or removed since it was chosen, which the toolkit ignores.
bool IsGone(const QPrinter& printer) {
  return printer.outputFileName().isEmpty() && QPrinterInfo(printer).isNull();
}

QString NameOf(const QPrinter& printer) {
  return printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
}

PageNumbers Copied(const PageNumbers& pages, int copies, bool collated) {
  PageNumbers sheets;
  for (std::size_t sheet = 0; sheet < pages.size() * static_cast<std::size_t>(copies); ++sheet) {
    sheets.push_back(pages[collated ? sheet % pages.size() : sheet / static_cast<std::size_t>(copies)]);
  }
  return sheets;
}

}  // namespace

PageNumbers PagesWanted(const QPrinter& printer, std::size_t count, int current) {
  const QPageRanges ranges = printer.pageRanges();
  const auto isWanted = [&](int page) {
    if (printer.printRange() == QPrinter::CurrentPage) return page == current;
    return ranges.isEmpty() || ranges.contains(page);
  };
  PageNumbers wanted;
  for (std::size_t page = 0; page < count; ++page) {
    if (isWanted(static_cast<int>(page) + 1)) wanted.push_back(page);
  }
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(wanted.begin(), wanted.end());
  return printer.supportsMultipleCopies() ? wanted : Copied(wanted, printer.copyCount(), printer.collateCopies());
}

Painted PrintOn(QPrinter& printer, const pages::Pages& document, const PageNumbers& wanted, QWidget* parent) {
  if (IsGone(printer)) return Painted::Failed;
  printer.setFullPage(true);
  PageProgress progress(printer.docName(), NameOf(printer), document.pages.size(), wanted.size(), parent);
  Painted painted = PaintPages(printer, document, wanted, [&](std::size_t page) { return progress.Next(page); });
  if (painted == Painted::All && printer.printerState() == QPrinter::Error) painted = Painted::Failed;
  if (painted != Painted::All && !printer.abort()) QFile::remove(printer.outputFileName());
  return painted;
}

void PrintPages(const pages::Pages& document, const QString& title, int current, QWidget* parent) {
  if (document.pages.empty()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  SetUpPaper(printer);
  QPrintDialog dialog(&printer, parent);
  dialog.setMinMax(1, static_cast<int>(document.pages.size()));
  dialog.setOptions(QPrintDialog::PrintToFile | QPrintDialog::PrintPageRange | QPrintDialog::PrintCurrentPage |
                    QPrintDialog::PrintCollateCopies);
  if (dialog.exec() != QDialog::Accepted) return;
  const PageNumbers wanted = PagesWanted(printer, document.pages.size(), current);
  if (wanted.empty()) return Warn(parent, "The document has none of the pages asked for.");
  if (PrintOn(printer, document, wanted, parent) != Painted::Failed) return;
  Warn(parent, QString("The document could not be printed on %1.").arg(NameOf(printer)));
}

}  // namespace norvane::ui
