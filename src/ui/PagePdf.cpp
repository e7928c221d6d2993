#include "ui/PagePdf.h"

#include <QPdfWriter>
#include <QSaveFile>

#include "forms/Desktop.h"
#include "ui/Convert.h"
#include "ui/FileDialogs.h"
#include "ui/PageProgress.h"
#include "ui/Warning.h"

namespace norvane::ui {
namespace {

constexpr int kPdfResolution = 1200;

}  // namespace

PdfOutcome WritePdf(const pages::Pages& document, const QString& title, const QString& file,
                    const PageListener& onPage) {
  QSaveFile target(file);
  Painted painted = Painted::Failed;
  if (target.open(QIODevice::WriteOnly)) {
    QPdfWriter writer(&target);
    writer.setTitle(title);
    writer.setCreator(kApplicationTitle);
    writer.setResolution(kPdfResolution);
    writer.setPageLayout(LetterPortrait());
    painted = PaintPages(writer, document, AllPagesOf(document), onPage);
  }
  if (painted == Painted::All && !target.commit()) painted = Painted::Failed;
  return {painted, target.errorString()};
}

QString SavePagesAsPdf(const pages::Pages& document, const QString& title, QWidget* parent) {
  const QString file = AskForFile({FileRequest::Kind::Save, "Save as PDF", FromQt(title), "pdf"}, parent);
  if (file.isEmpty()) return file;
  const PdfOutcome outcome = [&] {
    PageProgress progress(title, file, document.pages.size(), document.pages.size(), parent);
    return WritePdf(document, title, file, [&](std::size_t page) { return progress.Next(page); });
  }();
  if (outcome.painted == Painted::Failed) {
    Warn(parent, QString("The file %1 could not be written: %2.").arg(file, outcome.why));
  }
  return outcome.painted == Painted::All ? file : QString();
}

}  // namespace norvane::ui
