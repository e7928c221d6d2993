#include "ui/PageCanvas.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/PagePainter.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kGap = 16;  // around the pages and between them
constexpr double kPixelsPerPoint = 96.0 / pages::kPointsPerInch;
constexpr double kThumbnail = 0.2;
constexpr double kSmallest = 0.1;
constexpr double kLargest = 5;
constexpr double kWheelStep = 1.15;

}  // namespace

PageCanvas::PageCanvas(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(NoFrame);
  setAccessibleName(tr("Pages"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  verticalScrollBar()->setSingleStep(40);
  horizontalScrollBar()->setSingleStep(40);
}

void PageCanvas::SetPages(pages::Pages pages) {
  pages_ = std::move(pages);
  Arrange();
  GoToPage(1);
  Tell();
}

void PageCanvas::SetFit(PageFit fit, int percent) {
  const int page = CurrentPage();
  fit_ = fit;
  wanted_ = std::clamp(percent / 100.0, kSmallest, kLargest);
  Arrange();
  GoToPage(page);
  Tell();
}

int PageCanvas::Percent() const {
  return static_cast<int>(std::lround(scale_ / kPixelsPerPoint * 100));
}

void PageCanvas::ZoomBy(double factor) {
  SetFit(PageFit::Percent, static_cast<int>(std::lround(Percent() * factor)));
}

QSizeF PageCanvas::PageSize() const {
  return QSizeF(pages::kPageWidth, pages::kPageHeight) * scale_;
}

double PageCanvas::ScaleFor(QSize room) const {
  const auto across = [&](int count) { return (room.width() - kGap * (count + 1)) / (pages::kPageWidth * count); };
  const double down = (room.height() - 2 * kGap) / pages::kPageHeight;
  switch (fit_) {
    case PageFit::WholePage:
      return std::min(across(1), down);
    case PageFit::PageWidth:
      return across(1);
    case PageFit::TwoPages:
      return std::min(across(2), down);
    case PageFit::Thumbnail:
      return kThumbnail * kPixelsPerPoint;
    case PageFit::Percent:
      return wanted_ * kPixelsPerPoint;
  }
  return kPixelsPerPoint;
}

void PageCanvas::Arrange() {
  const QSize room = viewport()->size();
  scale_ = std::max(kSmallest * kPixelsPerPoint, ScaleFor(room));
  const QSizeF page = PageSize();
  const int fitting = static_cast<int>((room.width() - kGap) / (page.width() + kGap));
  const int most = fit_ == PageFit::PageWidth ? 1 : fit_ == PageFit::TwoPages ? 2 : PageCount();
  columns_ = std::max(1, std::min(fit_ == PageFit::TwoPages ? 2 : fitting, most));
  const int rows = (PageCount() + columns_ - 1) / columns_;
  const double width = kGap + columns_ * (page.width() + kGap);
  const double height = kGap + rows * (page.height() + kGap);
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(width) - room.width()));
  verticalScrollBar()->setPageStep(room.height());
  verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(height) - room.height()));
  viewport()->update();
}

QRectF PageCanvas::PlaceOf(int index) const {
  const QSizeF page = PageSize();
  const double all = columns_ * (page.width() + kGap) - kGap;
  const double left = std::max<double>(kGap, (viewport()->width() - all) / 2) - horizontalScrollBar()->value();
  const int column = index % columns_;
  const int row = index / columns_;
  return {QPointF(left + column * (page.width() + kGap),
                  kGap + row * (page.height() + kGap) - verticalScrollBar()->value()),
          page};
}

int PageCanvas::CurrentPage() const {
  for (int index = 0; index < PageCount(); ++index) {
    if (PlaceOf(index).bottom() > viewport()->height() / 3.0) return index + 1;
  }
  return PageCount();
}

void PageCanvas::GoToPage(int page) {
  if (page < 1 || page > PageCount()) return;
  verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(PlaceOf(page - 1).top()) - kGap);
  Tell();
}

void PageCanvas::Tell() {
  if (changed) changed();
}

void PageCanvas::paintEvent(QPaintEvent* event) {
  const auto& colours = Colours::Of(palette());
  QPainter painter(viewport());
  painter.fillRect(event->rect(), colours.line);
  for (int index = 0; index < PageCount(); ++index) {
    const QRectF place = PlaceOf(index);
    if (!place.intersects(event->rect())) continue;
    painter.fillRect(place.translated(2, 2), colours.edge);
    painter.fillRect(place, Qt::white);  // paper is white by night as well
    painter.save();
    painter.setClipRect(place);
    PaintPage(painter, pages_, static_cast<std::size_t>(index), place.topLeft(), scale_);
    painter.restore();
  }
}

void PageCanvas::resizeEvent(QResizeEvent* event) {
  const int page = CurrentPage();
  QAbstractScrollArea::resizeEvent(event);
  Arrange();
  if (fit_ != PageFit::Percent) GoToPage(page);
  Tell();
}

void PageCanvas::scrollContentsBy(int, int) {
  viewport()->update();
  Tell();
}

void PageCanvas::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      return GoToPage(1);
    case Qt::Key_End:
      return GoToPage(PageCount());
    case Qt::Key_PageDown:
      return verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    case Qt::Key_PageUp:
      return verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
    case Qt::Key_Plus:
      return ZoomBy(kWheelStep);
    case Qt::Key_Minus:
      return ZoomBy(1 / kWheelStep);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void PageCanvas::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  ZoomBy(event->angleDelta().y() > 0 ? kWheelStep : 1 / kWheelStep);
  event->accept();
}

void PageCanvas::mousePressEvent(QMouseEvent* event) {
  dragged_ = event->pos();
}

/// The mouse takes the paper along.
void PageCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  const QPoint moved = event->pos() - dragged_;
  dragged_ = event->pos();
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

}  // namespace norvane::ui
