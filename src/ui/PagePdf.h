#pragma once

#include <QString>

#include "ui/PagePainter.h"

class QWidget;

namespace norvane::ui {

struct PdfOutcome {
  Painted painted = Painted::Failed;
  QString why;  ///< the reason of a failure
};

/// Writes the pages to a PDF of real text with its fonts embedded, under the document title given. Unless all are
/// written, the file stays as it was.
PdfOutcome WritePdf(const pages::Pages& document, const QString& title, const QString& file,
                    const PageListener& onPage = {});

/// Asks for a file and saves the pages there as a PDF, with a progress box that can cancel. Returns the file, or an
/// empty text if none was written; a failure is reported in a box.
QString SavePagesAsPdf(const pages::Pages& document, const QString& title, QWidget* parent);

}  // namespace norvane::ui
