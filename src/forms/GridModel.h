#pragma once

#include <algorithm>
#include <optional>

#include "forms/Form.h"
#include "forms/Grid.h"
#include "forms/GridTable.h"

namespace norvane {

/// What a grid knows of a column.
struct GridColumn {
  Twips width = 960;
  ColumnAlignment alignment = ColumnAlignment::General;
  ColumnType type = ColumnType::Plain;
  CellHelper helper = CellHelper::None;
  bool editable = false;
  bool totalled = false;
  std::vector<std::string> items;  ///< the texts of its drop-down
  std::vector<std::string> keys;   ///< their keys, if it is a keyed one

  bool HasList() const { return helper == CellHelper::DropDown || helper == CellHelper::KeyedDropDown; }
  bool IsKeyed() const { return helper == CellHelper::KeyedDropDown; }
  /// What a cell holds when the item is chosen.
  const std::string& ContentOf(int item) const { return (IsKeyed() ? keys : items)[static_cast<std::size_t>(item)]; }
  /// The item of a content, -1 for none.
  int ItemOf(std::string_view content) const;
};

/// An edit of the current cell.
struct GridEdit {
  Grid::BeginBy by;
  std::string text;
  int item = -1;        ///< of a drop-down: the item chosen, -1 while the content is none
  std::string letters;  ///< of a drop-down: what was typed in search of an item
};

struct Grid::Model {
  GridKind kind;
  GridTable table;
  std::vector<GridColumn> columns;
  int row = 0;
  int col = 0;
  int topRow = 1;
  int visibleRows = 5;
  Twips rowHeight = 300;
  std::optional<GridEdit> edit;
  bool sortable = true;
  std::optional<GridSort> sort;
  bool sortIsStale = false;     ///< rows were added or written since
  std::vector<bool> marks;      ///< by row, the current one aside; shorter where there are none
  std::optional<int> markFrom;  ///< where marking began
  bool marking = false;         ///< the cursor moves without an end to the marks

  GridColumn& Column(int at) { return columns[static_cast<std::size_t>(at)]; }
  /// The item of its column's list that a cell holds, -1 for none: in a keyed list one that was chosen, since a text
  /// may look like a key.
  int ItemAt(int atRow, int atCol) const {
    const GridColumn& column = columns[static_cast<std::size_t>(atCol)];
    return column.IsKeyed() && !table.HoldsKey(atRow, atCol) ? -1 : column.ItemOf(table.Cell(atRow, atCol));
  }
  int Rows() const { return table.Rows(); }
  int Cols() const { return static_cast<int>(columns.size()); }
  int LastRow() const { return Rows() - 1; }
  /// With this row on top the last one is at the bottom.
  int LastTop() const { return std::max(1, Rows() - visibleRows); }
  /// The marker column is out of the cursor's reach.
  int FirstCol() const { return kind == GridKind::Editable ? 1 : 0; }
};

}  // namespace norvane
