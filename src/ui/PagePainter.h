#pragma once

#include <functional>

#include <QPointF>

#include "reports/Pages.h"

class QPagedPaintDevice;
class QPainter;

namespace norvane::ui {

/// Paints one page: text and rules, no paper. `corner` is where the page's top left corner lies, and `scale` how many
/// units of the painter make a point.
void PaintPage(QPainter& painter, const pages::Pages& document, std::size_t page, QPointF corner, double scale);

/// Paints the pages from `first` to `last` (counted from 0) on a printer or a PDF, one to a sheet. `onPage` hears of
/// each page before it is painted; false ends the work. False if it was ended or the device refused.
bool PaintPages(QPagedPaintDevice& device, const pages::Pages& document, std::size_t first, std::size_t last,
                const std::function<bool(std::size_t page)>& onPage);

}  // namespace norvane::ui
