#include "ui/PagePainter.h"

#include <numeric>

#include <QColor>
#include <QPagedPaintDevice>
#include <QPainter>

#include "ui/PageFonts.h"

namespace norvane::ui {
namespace {

using pages::Pages;

/// On white paper, in print and on the screen alike. The two series of a chart differ in lightness too.
QColor ColourOf(pages::Fill fill) {
  switch (fill) {
    case pages::Fill::Panel:
      return {0xF3, 0xF6, 0xF9};
    case pages::Fill::Track:
      return {0xE3, 0xE9, 0xEF};
    case pages::Fill::First:
      return {0x1F, 0x5F, 0x99};
    case pages::Fill::Second:
      return {0x8F, 0xBF, 0xE0};
    case pages::Fill::Alert:
      return {0xC2, 0x4A, 0x33};
  }
  return Qt::black;
}

QString TextOf(const pages::Page& page, const pages::TextRun& run) {
  const auto text = page.TextOf(run);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

void PaintPage(QPainter& painter, const Pages& document, std::size_t page, QPointF corner, double scale) {
  const pages::Page& content = document.pages[page];
  painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& box : content.boxes) {
    const QSizeF size(box.width * scale, box.height * scale);
    painter.fillRect(QRectF(corner + QPointF(box.left, box.top) * scale, size), ColourOf(box.fill));
  }
  for (const auto& line : content.lines) {
    const int grey = static_cast<int>(line.grey * 255);
    painter.setPen(QPen(QColor(grey, grey, grey), line.width * scale, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(corner + QPointF(line.x1, line.y1) * scale, corner + QPointF(line.x2, line.y2) * scale);
  }
  painter.setPen(Qt::black);
  // A point of the painter's device is not a point of the page when the page is zoomed.
  const double fontScale = scale * pages::kPointsPerInch / painter.device()->logicalDpiY();
  int font = -1;
  for (const auto& run : content.runs) {
    if (font != run.font) {
      const pages::Font& wanted = document.FontOf(run);
      painter.setFont(PageFont(wanted.face, wanted.size * fontScale));
      font = run.font;
    }
    painter.drawText(corner + QPointF(run.x, run.baseline) * scale, TextOf(content, run));
  }
}

QPageLayout LetterPortrait() {
  return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(), QPageLayout::Point);
}

PageNumbers AllPagesOf(const Pages& document) {
  PageNumbers all(document.pages.size());
  std::iota(all.begin(), all.end(), 0U);
  return all;
}

Painted PaintPages(QPagedPaintDevice& device, const Pages& document, const PageNumbers& wanted,
                   const PageListener& onPage) {
  QPainter painter;
  for (const std::size_t page : wanted) {
    if (onPage && !onPage(page)) return Painted::Cancelled;
    if (!painter.isActive() ? !painter.begin(&device) : !device.newPage()) return Painted::Failed;
    const QSizeF paper = device.pageLayout().fullRect(QPageLayout::Point).size();
    const pages::Placing placing = pages::PlaceOn(paper.width(), paper.height());
    const double unitsPerPoint = device.logicalDpiY() / pages::kPointsPerInch;
    PaintPage(painter, document, page, QPointF(placing.left * unitsPerPoint, 0), placing.scale * unitsPerPoint);
  }
  return painter.end() ? Painted::All : Painted::Failed;
}

}  // namespace norvane::ui
