#include "ui/FlowLayout.h"

#include <algorithm>

#include <QLabel>
#include <QWidget>

namespace norvane::ui {
namespace {

int HeightOf(const QList<QLayoutItem*>& line) {
  int height = 0;
  for (const auto* item : line) height = std::max(height, item->sizeHint().height());
  return height;
}

/// The size of an item: labels and fields are never smaller than they need to be.
QSize NeedOf(const QLayoutItem& item) {
  return item.sizeHint().expandedTo(item.minimumSize()).boundedTo(item.maximumSize());
}

/// Begins a new line. A label moves with the field that follows it.
void Break(QList<QList<QLayoutItem*>>& lines) {
  QList<QLayoutItem*>& full = lines.back();
  QList<QLayoutItem*> next;
  if (full.size() > 1 && qobject_cast<QLabel*>(full.back()->widget())) next.append(full.takeLast());
  lines.append(next);
}

}  // namespace

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {
  setContentsMargins(10, 5, 10, 5);
  setSpacing(4);
}

FlowLayout::~FlowLayout() {
  // A layout among them takes itself out of the list when it is deleted.
  while (!items_.isEmpty()) delete items_.takeFirst();
}

void FlowLayout::AddLayout(QLayout* layout) {
  addChildLayout(layout);
  addItem(layout);
}

void FlowLayout::AddStretched(QWidget* widget) {
  addWidget(widget);
  stretched_ = widget;
}

void FlowLayout::AddStretch() {
  addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QList<FlowLayout::Line> FlowLayout::LinesFor(int width) const {
  QList<Line> lines{{}};
  for (auto* item : items_) {
    if (item->isEmpty() && !item->spacerItem()) continue;
    if (!lines.back().isEmpty() && WidthOf(lines.back()) + spacing() + NeedOf(*item).width() > width) Break(lines);
    lines.back().append(item);
  }
  return lines;
}

int FlowLayout::WidthOf(const Line& line) const {
  int width = 0;
  for (const auto* item : line) width += NeedOf(*item).width() + spacing();
  return std::max(0, width - spacing());
}

int FlowLayout::HeightFor(int width) const {
  const QMargins margins = contentsMargins();
  const auto lines = LinesFor(width - margins.left() - margins.right());
  int height = margins.top() + margins.bottom() + spacing() * static_cast<int>(lines.size() - 1);
  for (const auto& line : lines) height += HeightOf(line);
  return height;
}

QSize FlowLayout::sizeHint() const {
  const QMargins margins = contentsMargins();
  const Line all = LinesFor(QWIDGETSIZE_MAX).front();
  return {WidthOf(all) + margins.left() + margins.right(), HeightOf(all) + margins.top() + margins.bottom()};
}

QSize FlowLayout::minimumSize() const {
  QSize widest;
  for (const auto* item : items_) widest = widest.expandedTo(NeedOf(*item));
  const QMargins margins = contentsMargins();
  return widest + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  QRect inner = rect.marginsRemoved(contentsMargins());
  const auto lines = LinesFor(inner.width());
  for (const auto& line : lines) {
    const int height = lines.size() == 1 ? inner.height() : HeightOf(line);
    Place(line, QRect(inner.left(), inner.top(), inner.width(), height));
    inner.setTop(inner.top() + height + spacing());
  }
}

void FlowLayout::Place(const Line& line, const QRect& rect) const {
  const auto isSpacer = [](QLayoutItem* item) { return item->spacerItem() != nullptr; };
  const auto isStretched = [this](QLayoutItem* item) { return stretched_ && item->widget() == stretched_; };
  const bool givesAway = std::any_of(line.begin(), line.end(), isStretched);
  const int left = givesAway ? std::max(0, rect.width() - WidthOf(line)) : 0;
  const auto spacers = static_cast<int>(std::count_if(line.begin(), line.end(), isSpacer));
  const int slack = spacers && !givesAway ? std::max(0, rect.width() - WidthOf(line)) / spacers : 0;
  int x = rect.left();
  for (auto* item : line) {
    QSize size = isSpacer(item) ? QSize(slack, 0) : NeedOf(*item);
    if (isStretched(item)) size.rwidth() += left;
    // A label's text is centred like that of the field beside it.
    const bool isLabel = qobject_cast<QLabel*>(item->widget()) != nullptr;
    const int height = isLabel ? rect.height() : std::min(rect.height(), size.height());
    item->setGeometry({x, rect.top() + (rect.height() - height) / 2, size.width(), height});
    x += size.width() + spacing();
  }
}

}  // namespace norvane::ui
