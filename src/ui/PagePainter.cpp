#include "ui/PagePainter.h"

#include <QColor>
#include <QPagedPaintDevice>
#include <QPainter>

#include "ui/PageFonts.h"

namespace norvane::ui {
namespace {

using pages::Pages;

QString TextOf(const pages::Page& page, const pages::TextRun& run) {
  const auto text = page.TextOf(run);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

void PaintPage(QPainter& painter, const Pages& document, std::size_t page, QPointF corner, double scale) {
  const pages::Page& content = document.pages[page];
  painter.setRenderHint(QPainter::Antialiasing);
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

bool PaintPages(QPagedPaintDevice& device, const Pages& document, std::size_t first, std::size_t last,
                const std::function<bool(std::size_t)>& onPage) {
  QPainter painter;
  for (std::size_t page = first; page <= last; ++page) {
    if (!onPage(page)) return false;
    if (page == first ? !painter.begin(&device) : !device.newPage()) return false;
    const double scale = device.logicalDpiY() / pages::kPointsPerInch;
    const double paperWidth = device.pageLayout().fullRectPoints().width();
    PaintPage(painter, document, page, QPointF(pages::LeftOfPageOn(paperWidth) * scale, 0), scale);
  }
  return true;
}

}  // namespace norvane::ui
