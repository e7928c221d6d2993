#pragma once

#include "ui/PagePainter.h"

class QPrinter;
class QWidget;

namespace norvane::ui {

/// The pages that the printer's settings select from a document of `count`, one for each sheet in printing order, with
/// copies unless the printer makes them itself. `current` is the page looked at, from 1.
PageNumbers PagesWanted(const QPrinter& printer, std::size_t count, int current);

/// Prints with a progress box that can cancel. A file that was cancelled or failed is removed; what has reached a
/// printer stays printed.
Painted PrintOn(QPrinter& printer, const pages::Pages& document, const PageNumbers& wanted, QWidget* parent);

/// Prints through the system's dialog and reports a failure in a box. `current` is the page looked at, from 1.
void PrintPages(const pages::Pages& document, const QString& title, int current, QWidget* parent);

}  // namespace norvane::ui
