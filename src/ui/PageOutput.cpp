#include "ui/PageOutput.h"

#include <algorithm>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QSaveFile>
#include <QStandardPaths>

#include "forms/Desktop.h"
#include "reports/Preview.h"
#include "ui/PagePainter.h"

namespace norvane::ui {
namespace {

constexpr int kPdfResolution = 1200;

QPageLayout LetterPortrait() {
  return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(), QPageLayout::Point);
}

/// Tells which page is being printed. Its button ends the job.
class PrintProgress : public QProgressDialog {
 public:
  PrintProgress(const QString& title, const QString& printer, int count, QWidget* parent)
      : QProgressDialog(parent),
        device_(QString::asprintf(kPrintingDevice, title.toUtf8().constData(), printer.toUtf8().constData())) {
    setWindowTitle(kPrintingCaption);
    setCancelButtonText(kPrintingCancel);
    setRange(0, count);
    setWindowModality(Qt::ApplicationModal);
    setMinimumDuration(0);
    setMinimumWidth(360);
  }

  bool Go(int done, int page, std::size_t pages) {
    setLabelText(QString::asprintf(kPrintingPage, page) + QString(" %1\n").arg(pages) + device_);
    setValue(done);
    QApplication::processEvents();
    return !wasCanceled();
  }

 private:
  QString device_;
};

void PrintOn(QPrinter& printer, const pages::Pages& document, const QString& title, QWidget* parent) {
  const auto count = static_cast<int>(document.pages.size());
  const int first = printer.fromPage() > 0 ? std::min(printer.fromPage(), count) : 1;
  const int last = printer.toPage() > 0 ? std::clamp(printer.toPage(), first, count) : count;
  const QString name = printer.printerName().isEmpty() ? printer.outputFileName() : printer.printerName();
  PrintProgress progress(title, name, last - first + 1, parent);
  const auto go = [&](std::size_t page) {
    const int number = static_cast<int>(page) + 1;
    return progress.Go(number - first, number, document.pages.size());
  };
  const bool done =
      PaintPages(printer, document, static_cast<std::size_t>(first - 1), static_cast<std::size_t>(last - 1), go);
  if (!done) printer.abort();
}

}  // namespace

void PrintPages(const pages::Pages& document, const QString& title, QWidget* parent) {
  if (document.pages.empty()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  printer.setFullPage(true);
  printer.setPageLayout(LetterPortrait());
  QPrintDialog dialog(&printer, parent);
  dialog.setMinMax(1, static_cast<int>(document.pages.size()));
  dialog.setOption(QPrintDialog::PrintPageRange);
  if (dialog.exec() != QDialog::Accepted) return;
  printer.setFullPage(true);
  PrintOn(printer, document, title, parent);
}

bool WritePdf(const pages::Pages& document, const QString& title, const QString& file) {
  QSaveFile target(file);
  if (document.pages.empty() || !target.open(QIODevice::WriteOnly)) return false;
  QPdfWriter writer(&target);
  writer.setTitle(title);
  writer.setCreator(kApplicationTitle);
  writer.setResolution(kPdfResolution);
  writer.setPageLayout(LetterPortrait());
  return PaintPages(writer, document, 0, document.pages.size() - 1, [](std::size_t) { return true; }) &&
         target.commit();
}

void SavePagesAsPdf(const pages::Pages& document, const QString& title, QWidget* parent) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QString name = title;
  name.replace('/', '-');
  const QString file = QFileDialog::getSaveFileName(parent, "Save as PDF", folder + "/" + name + ".pdf", "PDF (*.pdf)");
  if (file.isEmpty() || WritePdf(document, title, file)) return;
  QMessageBox::warning(parent, kApplicationTitle, QString("The file %1 could not be written.").arg(file));
}

}  // namespace norvane::ui
