#include "ui/GridCellPainter.h"

#include <QApplication>
#include <QPainter>

#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kHelperWidth = 22;
constexpr int kCheckSize = 16;

bool IsNegative(const QString& figure) {
  return figure.startsWith('-') || figure.startsWith('(');
}

/// Under the text, as spelling is marked.
void DrawWave(QPainter& painter, const QRect& text) {
  constexpr int kStep = 2;
  QPolygon wave;
  for (int x = text.left(); x <= text.right(); x += kStep) {
    wave.append({x, text.bottom() - (wave.size() % 2 == 0 ? 0 : kStep)});
  }
  painter.drawPolyline(wave);
}

}  // namespace

bool GridCellPainter::CanBeRead(int row, int col) const {
  if (!grid_->ColEditable(col) || row >= grid_->Rows()) return true;
  const std::string content = grid_->Cell(row, col);
  if (content.empty()) return true;
  switch (grid_->ColDataType(col)) {
    case ColumnType::Number:
    case ColumnType::Currency:
      return convert_.IsNumeric(content);
    case ColumnType::Date:
      return convert_.IsDate(content);
    case ColumnType::Plain:
    case ColumnType::Boolean:
      break;
  }
  return true;
}

QRect GridCellPainter::HelperRect(const QRect& cell) {
  return {cell.right() - kHelperWidth + 1, cell.top(), kHelperWidth, cell.height() - 1};
}

bool GridCellPainter::ShowsHelper(int row, int col) const {
  if (!grid_ || row != grid_->Row()) return false;
  switch (grid_->Helper(col)) {
    case CellHelper::None:
      return false;
    case CellHelper::Button:
      return true;
    case CellHelper::DropDown:
    case CellHelper::KeyedDropDown:
      return col == grid_->Col();
  }
  return false;
}

void GridCellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (!grid_) return;
  painter->save();
  PaintGround(*painter, option, index);
  QRect inner = option.rect.adjusted(kPadding, 0, -kPadding, -1);
  if (ShowsHelper(index.row() + 1, index.column())) {
    PaintHelper(*painter, option, index.column());
    inner.setRight(HelperRect(option.rect).left() - 2);
  }
  const QVariant check = index.data(Qt::CheckStateRole);
  if (check.isValid()) PaintCheck(*painter, option, check.toInt() == Qt::Checked);
  const auto alignment = static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt());
  const auto& colours = Colours::Of(option.palette);
  const bool isMarker = grid_->Kind() == GridKind::Editable && index.column() == 0;
  const QString text = index.data(Qt::DisplayRole).toString();
  const bool isUnreadable = !CanBeRead(index.row() + 1, index.column());
  const bool isRed = isUnreadable || (alignment & Qt::AlignRight && IsNegative(text));
  painter->setPen(isMarker                               ? colours.accent
                  : isRed                                ? colours.red
                  : option.state & QStyle::State_Enabled ? colours.text
                                                         : colours.muted);
  painter->setFont(option.font);
  const QRect room = isMarker ? option.rect : inner;
  painter->drawText(room, static_cast<int>(alignment),
                    option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
  if (isUnreadable) {
    const QRect around = option.fontMetrics.boundingRect(room, static_cast<int>(alignment), text);
    DrawWave(*painter, around.intersected(room));
  }
  painter->restore();
}

void GridCellPainter::PaintGround(QPainter& painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  const auto& colours = Colours::Of(option.palette);
  const bool isEditable = grid_->EditsInPlace();
  const bool isCurrentRow = index.row() + 1 == grid_->Row();
  const bool isMarker = grid_->Kind() == GridKind::Editable && index.column() == 0;
  const QColor& selected = grid_->HasFocus() ? colours.current : colours.idle;
  const QColor& plain = !isEditable && index.row() % 2 == 1 ? colours.stripe : colours.surface;
  painter.fillRect(option.rect, grid_->IsMarked(index.row() + 1) ? selected : isMarker ? colours.band : plain);
  painter.setPen(colours.line);
  painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  if (isEditable) painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
  if (!isCurrentRow || !grid_->HasFocus()) return;
  if (!isEditable) {
    painter.setPen(colours.accent);
    painter.drawLine(option.rect.topLeft(), option.rect.topRight());
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  } else if (index.column() == grid_->Col()) {
    painter.setPen(QPen(colours.accent, 2));
    painter.drawRect(option.rect.adjusted(1, 1, -1, -2));
  }
}

void GridCellPainter::PaintCheck(QPainter& painter, const QStyleOptionViewItem& option, bool checked) const {
  const QRect box(option.rect.center() - QPoint(kCheckSize / 2, kCheckSize / 2), QSize(kCheckSize, kCheckSize));
  const auto& colours = Colours::Of(option.palette);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(checked ? colours.accent : colours.edge);
  painter.setBrush(checked ? colours.accent : colours.surface);
  painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  if (!checked) return;
  painter.setPen(QPen(colours.onAccent, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPoint tick[] = {box.topLeft() + QPoint(4, 8), box.topLeft() + QPoint(7, 11), box.topLeft() + QPoint(12, 5)};
  painter.drawPolyline(tick, 3);
}

void GridCellPainter::PaintHelper(QPainter& painter, const QStyleOptionViewItem& option, int col) const {
  const auto& colours = Colours::Of(option.palette);
  const QRect rect = HelperRect(option.rect).adjusted(2, 3, -3, -3);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(colours.edge);
  painter.setBrush(colours.band);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours.text);
  const QPointF centre = QRectF(rect).center();
  if (grid_->Helper(col) == CellHelper::Button) {
    for (const int offset : {-4, 0, 4}) painter.drawEllipse(centre + QPointF(offset, 0), 1.2, 1.2);
    return;
  }
  const QPointF arrow[] = {centre + QPointF(-4, -2), centre + QPointF(4, -2), centre + QPointF(0, 3)};
  painter.drawPolygon(arrow, 3);
}

}  // namespace norvane::ui
