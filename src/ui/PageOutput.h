#pragma once

#include <QString>

#include "reports/Pages.h"

class QWidget;

namespace norvane::ui {

/// Prints through the system's dialog, with a progress box that can cancel. Nothing happens for a document without
/// pages, or when the dialog is cancelled.
void PrintPages(const pages::Pages& document, const QString& title, QWidget* parent);

/// Asks for a file and saves the pages there as a PDF.
void SavePagesAsPdf(const pages::Pages& document, const QString& title, QWidget* parent);

/// Writes the pages to a PDF of real text with its fonts embedded, under the document title given. False if the file
/// could not be written.
bool WritePdf(const pages::Pages& document, const QString& title, const QString& file);

}  // namespace norvane::ui
