#pragma once

#include <map>
#include <vector>

#include <QTableView>

#include "forms/Grid.h"
#include "ui/Binding.h"
#include "ui/ColumnWidths.h"
#include "ui/WidgetFactory.h"

class QLabel;

namespace norvane::ui {

class GridCellEditor;
class GridCellPainter;
class GridTableModel;
class TypeAhead;

/// The table that shows a grid. The grid decides everything: the view passes keys, text and clicks to it and draws the
/// result. However often the grid changes, the view synchronises once, before it paints or takes input.
class GridView : public QTableView, private GridObserver {
 public:
  GridView(Grid& grid, QWidget* parent, const WidgetServices& services);
  Binding* Bound() const { return binding_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusOutEvent(QFocusEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;

 private:
  void ColumnsChanged() override;
  void RowsReset() override;
  void RowsInserted(int first, int count) override;
  void RowsRemoved(int first, int count) override;
  void CellChanged(int row, int col) override;
  void CursorMoved() override;
  void TopRowChanged() override;
  void EditChanged() override;

  void SetLook();
  void Abandon();
  void ScheduleSync();
  void Sync();
  int ColumnForRest() const;
  void Search(const QString& letters);
  void FindTyped(const QString& word, int start);
  bool UseKeyForTyped(const QKeyEvent& event);
  bool KeepsWidths();
  void MeasureColumns();
  void ArrangeColumns();
  bool ShowCutOffText(const QPoint& at, const QPoint& onScreen);
  void FollowTopRow();
  void ShowCurrentColumn();
  void ReportVisibleRows();
  QRect CurrentCell() const;
  void SectionResized(int section, int width);
  void AcceptInputMethods();
  bool IsOnHelper(const QPoint& at) const;
  void ClickOnHelper(int row, int col);
  void ClickBesideRows();
  bool UseListKey(const QKeyEvent& event);
  void CopyRows();
  void SaveList();
  void SortBy(int col);
  void ShowSortSign();
  void ShowSummary();

  Grid* grid_;
  GridTableModel* table_;
  GridCellPainter* painter_;
  TypeAhead* typed_;
  GridCellEditor* editor_;
  Binding* binding_;
  QLabel* summary_;  ///< below the view; hidden where there is nothing to add up
  const Conversions& convert_;
  CellTexts texts_;
  WindowMemory& memory_;
  std::map<int, int> userWidths_;   ///< by column, in pixels
  std::vector<ColumnNeeds> needs_;  ///< by column
  bool waiting_ = false;            ///< for Sync
  bool allWaiting_ = true;
  bool columnsWaiting_ = true;
  bool sumsWaiting_ = true;
  bool summedMarks_ = false;
  bool hadRows_ = false;  ///< when the columns were measured
  bool arranging_ = false;
  bool following_ = false;
};

}  // namespace norvane::ui
