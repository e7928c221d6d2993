#pragma once

#include <QStyledItemDelegate>

#include "core/Conversions.h"
#include "forms/Grid.h"

namespace norvane::ui {

/// Draws the cells of a grid, the frame of the current cell, check boxes, and the helper button at the right of a cell
/// that has one. What the user has entered and can't be read is red, over a wavy line.
class GridCellPainter : public QStyledItemDelegate {
 public:
  static constexpr int kPadding = 4;  ///< left and right of a cell's text

  /// The conversions are kept by reference.
  GridCellPainter(const Grid& grid, const Conversions& convert, QWidget* view)
      : QStyledItemDelegate(view), grid_(&grid), convert_(convert) {}
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

  bool CanBeRead(int row, int col) const;

  const Grid* grid_;
  const Conversions& convert_;
};

}  // namespace norvane::ui
