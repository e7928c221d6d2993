#include "ui/PageCanvas.h"

#include <algorithm>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/PagePainter.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kGap = 12;  // around the pages and between them
constexpr double kPixelsPerPoint = 96.0 / pages::kPointsPerInch;
constexpr double kThumbnail = 0.2;
constexpr double kSmallest = 0.1;
constexpr double kZoomStep = 1.15;
constexpr int kClick = 3;  // pixels that the mouse may move in a click

/// Centres what is smaller than its room.
double Margin(int room, double all) {
  return std::max<double>(kGap, (room - all) / 2);
}

}  // namespace

PageCanvas::PageCanvas(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(NoFrame);
  setAccessibleName(tr("Pages"));
  viewport()->setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  verticalScrollBar()->setSingleStep(40);
  horizontalScrollBar()->setSingleStep(40);
}

void PageCanvas::Show(const pages::Pages* pages) {
  pages_ = pages;
  current_ = 1;
  target_.clear();
  Arrange();
  GoToPage(1);
}

void PageCanvas::SetZoom(ZoomChoice choice, double percent) {
  choice_ = choice;
  percent_ = percent;
  Arrange();
  GoToPage(current_);
}

double PageCanvas::Percent() const {
  return scale_ / kPixelsPerPoint * 100;
}

QSizeF PageCanvas::PageSize() const {
  return QSizeF(pages::kPageWidth, pages::kPageHeight) * scale_;
}

double PageCanvas::ScaleFor(QSize room) const {
  const auto across = [&](int count) { return (room.width() - kGap * (count + 1)) / (pages::kPageWidth * count); };
  const double down = (room.height() - 2 * kGap) / pages::kPageHeight;
  switch (choice_) {
    case ZoomChoice::WholePage:
      return std::min(across(1), down);
    case ZoomChoice::PageWidth:
      return across(1);
    case ZoomChoice::TwoPages:
      return std::min(across(2), down);
    case ZoomChoice::Thumbnail:
      return kThumbnail * kPixelsPerPoint;
    case ZoomChoice::Percent:
      return percent_ / 100 * kPixelsPerPoint;
  }
  return kPixelsPerPoint;
}

int PageCanvas::Rows() const {
  return (PageCount() + columns_ - 1) / columns_;
}

void PageCanvas::Arrange() {
  const QScopedValueRollback going(going_, true);
  const QSize room = viewport()->size();
  scale_ = std::max(kSmallest * kPixelsPerPoint, ScaleFor(room));
  const QSizeF page = PageSize();
  const int fitting = static_cast<int>((room.width() - kGap) / (page.width() + kGap));
  const bool isFitted = choice_ == ZoomChoice::PageWidth || choice_ == ZoomChoice::TwoPages;
  const int most = choice_ == ZoomChoice::PageWidth ? 1 : 2;
  columns_ = std::max(1, isFitted ? most : std::min(fitting, PageCount()));
  const double width = kGap + columns_ * (page.width() + kGap);
  const double height = kGap + Rows() * (page.height() + kGap);
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(width) - room.width()));
  verticalScrollBar()->setPageStep(room.height());
  verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(height) - room.height()));
  viewport()->update();
}

QRectF PageCanvas::PlaceOf(int index) const {
  const QSizeF page = PageSize();
  const QSizeF step = page + QSizeF(kGap, kGap);
  const QPointF corner(Margin(viewport()->width(), columns_ * step.width() - kGap),
                       Margin(viewport()->height(), Rows() * step.height() - kGap));
  const QPointF scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const int row = index / columns_;
  const int column = index % columns_;
  return {corner + QPointF(column * step.width(), row * step.height()) - scrolled, page};
}

/// The current page while its row is the first in view, else the first page of that row.
int PageCanvas::PageInView() const {
  for (int index = 0; index < PageCount(); index += columns_) {
    if (PlaceOf(index).bottom() < viewport()->height() / 3.0) continue;
    return (current_ - 1) / columns_ == index / columns_ ? current_ : index + 1;
  }
  return PageCount();
}

void PageCanvas::GoToPage(int page) {
  if (page < 1 || page > PageCount()) return;
  const QScopedValueRollback going(going_, true);
  current_ = page;
  verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(PlaceOf(page - 1).top()) - kGap);
  viewport()->update();
}

void PageCanvas::paintEvent(QPaintEvent* event) {
  const auto& colours = Colours::Of(palette());
  QPainter painter(viewport());
  painter.fillRect(event->rect(), colours.line);
  for (int index = 0; index < PageCount(); ++index) {
    const QRectF place = PlaceOf(index);
    if (!place.intersects(event->rect())) continue;
    const bool isCurrent = index + 1 == current_ && PageCount() > 1;
    painter.fillRect(place.adjusted(-1, -1, 1, 1), isCurrent ? colours.accent : colours.edge);
    painter.fillRect(place, Qt::white);  // paper is white in the dark theme too
    painter.save();
    painter.setClipRect(place);
    PaintPage(painter, *pages_, static_cast<std::size_t>(index), place.topLeft(), scale_);
    painter.restore();
    if (target_.empty() || index != linkedPage_) continue;
    painter.setPen(QPen(colours.accent, 1.5));
    painter.drawRect(QRectF(place.topLeft() + linked_.topLeft() * scale_, linked_.size() * scale_));
  }
}

void PageCanvas::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  Arrange();
  GoToPage(current_);
}

void PageCanvas::scrollContentsBy(int, int) {
  viewport()->update();
  if (!going_ && PageInView() != current_) Turn(PageInView());
}

void PageCanvas::Turn(int page) {
  current_ = page;
  if (turned) turned();
}

void PageCanvas::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      GoToPage(1);
      return Turn(1);
    case Qt::Key_End:
      GoToPage(PageCount());
      return Turn(PageCount());
    case Qt::Key_PageDown:
      return verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    case Qt::Key_PageUp:
      return verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
    case Qt::Key_Plus:
      return zoomed(kZoomStep);
    case Qt::Key_Minus:
      return zoomed(1 / kZoomStep);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void PageCanvas::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  zoomed(event->angleDelta().y() > 0 ? kZoomStep : 1 / kZoomStep);
  event->accept();
}

void PageCanvas::mousePressEvent(QMouseEvent* event) {
  dragged_ = pressed_ = event->pos();
}

/// A press and release at one place is a click on what lies there.
void PageCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || (event->pos() - pressed_).manhattanLength() > kClick) return;
  Hover(event->position());
  if (followed && !target_.empty()) followed(std::string(target_));
}

/// Marks what a click would open.
void PageCanvas::Hover(QPointF position) {
  const std::string before = std::exchange(target_, {});
  for (int index = 0; index < PageCount(); ++index) {
    const QPointF at = (position - PlaceOf(index).topLeft()) / scale_;
    const pages::Link* link = pages_->pages[static_cast<std::size_t>(index)].LinkAt(at.x(), at.y());
    if (!link) continue;
    target_ = link->target;
    linked_ = {link->left, link->top, link->width, link->height};
    linkedPage_ = index;
  }
  viewport()->setCursor(target_.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  if (target_ != before) viewport()->update();
}

/// Drags the paper along with the mouse.
void PageCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return Hover(event->position());
  const QPoint moved = event->pos() - dragged_;
  dragged_ = event->pos();
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

}  // namespace norvane::ui
