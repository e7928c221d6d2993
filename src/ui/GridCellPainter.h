#pragma once

#include <QStyledItemDelegate>

#include "forms/Grid.h"

namespace norvane::ui {

/// Draws the cells of a grid, the frame of the current cell, check boxes, and the helper button at the right of a cell
/// that has one.
class GridCellPainter : public QStyledItemDelegate {
 public:
  static constexpr int kPadding = 4;  ///< left and right of a cell's text

  GridCellPainter(const Grid& grid, QWidget* view) : QStyledItemDelegate(view), grid_(&grid) {}
  void Abandon() { grid_ = nullptr; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  /// The helper's part of a cell.
  static QRect HelperRect(const QRect& cell);
  /// Whether the cell shows its helper: buttons show in the current row, drop-downs in the current cell.
  bool ShowsHelper(int row, int col) const;

 private:
  void PaintGround(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void PaintCheck(QPainter& painter, const QStyleOptionViewItem& option, bool checked) const;
  void PaintHelper(QPainter& painter, const QStyleOptionViewItem& option, int col) const;

  const Grid* grid_;
};

}  // namespace norvane::ui
