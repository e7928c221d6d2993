#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "forms/Grid.h"

namespace norvane::ui {

/// A grid's data rows for a table view. It stores only the number of rows that the view knows, so that a grid that is
/// filled row by row is synchronised in one step.
class GridTableModel : public QAbstractTableModel {
 public:
  explicit GridTableModel(Grid& grid) : grid_(&grid) {}

  /// The grid is about to be destroyed; the table is empty from here on.
  void Abandon();
  /// Reports rows and columns added or removed since the last call to the view.
  void Sync();
  /// Anything may have changed.
  void RefreshAll();
  void RefreshRow(int row);
  /// Which columns hold nothing but figures: those without an alignment of their own are aligned on the right.
  void SetFigures(std::vector<bool> figures) { figures_ = std::move(figures); }
  Qt::Alignment AlignmentOf(int col) const;
  /// The next row from `start`, around the end, with a cell that begins with the word: the first column decides, then
  /// the later ones, then words within cells. Rows count from 0; -1 if there is none.
  int Find(const QString& word, int start) const;
  bool IsRightAligned(int col) const { return AlignmentOf(col).testFlag(Qt::AlignRight); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  template <class Matches>
  int FindText(Matches matches, int start) const;
  QString SpokenHeading(int col) const;
  QString SpokenOrder(int col) const;
  QString SpokenText(int row, int col) const;

  Grid* grid_;
  std::vector<bool> figures_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace norvane::ui
