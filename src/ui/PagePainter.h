#pragma once

#include <functional>
#include <vector>

#include <QPageLayout>
#include <QPointF>

#include "pages/Pages.h"

class QPagedPaintDevice;
class QPainter;

namespace norvane::ui {

/// Paints one page: boxes, rules and text, no paper. `corner` is where the page's top left corner lies, and `scale` how
/// many units of the painter make a point.
void PaintPage(QPainter& painter, const pages::Pages& document, std::size_t page, QPointF corner, double scale);

/// The paper that pages are made for, to its edges.
QPageLayout LetterPortrait();

/// Pages counted from 0, in the order in which they are to be painted.
using PageNumbers = std::vector<std::size_t>;
PageNumbers AllPagesOf(const pages::Pages& document);

/// Called with each page before it is painted; false cancels.
using PageListener = std::function<bool(std::size_t page)>;

enum class Painted {
  All,
  Cancelled,  ///< by the listener
  Failed,     ///< by the device
};

/// Paints pages on a printer or into a file, one to a sheet. Documents without pages fail.
Painted PaintPages(QPagedPaintDevice& device, const pages::Pages& document, const PageNumbers& wanted,
                   const PageListener& onPage);

}  // namespace norvane::ui
