#pragma once

#include "ui/PagePainter.h"

class QPrinter;
class QWidget;

namespace norvane::ui {

/// The pages of a document of so many that the printer's settings ask for, one for each sheet, in their order; copies
/// are among them unless the printer makes them itself. `current` is the page looked at, from 1.
PageNumbers PagesWanted(const QPrinter& printer, std::size_t count, int current);

/// Prints with a progress box that can cancel. A file that was cancelled or failed is removed; what has reached a
/// printer stays printed.
Painted PrintOn(QPrinter& printer, const pages::Pages& document, const PageNumbers& wanted, QWidget* parent);

/// Prints through the system's dialog; tells if that fails. `current` is the page looked at, from 1.
void PrintPages(const pages::Pages& document, const QString& title, int current, QWidget* parent);

}  // namespace norvane::ui
