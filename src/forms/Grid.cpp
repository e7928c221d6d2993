#include "forms/Grid.h"

#include <algorithm>

#include "core/Characters.h"
#include "core/RuntimeError.h"
#include "forms/GridModel.h"

namespace norvane {

Grid::Grid(Form& form, std::string name, GridKind kind)
    : Control(form, std::move(name)), model_(std::make_unique<Model>()) {
  model_->kind = kind;
  model_->col = model_->FirstCol();
  SetCols(2);
}

Grid::~Grid() = default;

GridKind Grid::Kind() const {
  return model_->kind;
}

void Grid::CheckRow(int row) const {
  if (row < 0 || row >= Rows()) Raise(ErrorNumber::GridSubscriptOutOfRange);
}

void Grid::CheckCol(int col) const {
  if (col < 0 || col >= Cols()) Raise(ErrorNumber::GridSubscriptOutOfRange);
}

// Rows.

int Grid::Rows() const {
  return model_->Rows();
}

void Grid::SetRows(int rows) {
  if (rows < 1) Raise(ErrorNumber::GridSubscriptOutOfRange);
  const int before = Rows();
  if (rows == before) return;
  if (rows <= model_->row) CancelEdit();
  model_->table.Resize(rows);
  RowsHaveChanged(std::min(rows, before), rows - before);
}

void Grid::AddItem(std::string_view cells) {
  InsertRow(cells, Rows());
}

void Grid::AddItem(std::string_view cells, int row) {
  if (row != Rows()) CheckRow(row);
  if (row == 0) Raise(ErrorNumber::GridSubscriptOutOfRange);
  InsertRow(cells, row);
}

void Grid::InsertRow(std::string_view cells, int row) {
  if (row <= model_->row) CancelEdit();
  model_->table.Insert(row, cells, Cols());
  RowsHaveChanged(row, 1);
}

void Grid::RemoveItem(int row) {
  CheckRow(row);
  if (row == 0) Raise(ErrorNumber::GridSubscriptOutOfRange);
  if (row <= model_->row) CancelEdit();
  model_->table.Remove(row);
  RowsHaveChanged(row, -1);
}

void Grid::Clear() {
  CancelEdit();
  ClearMarks();
  model_->table.Clear();
  if (view) view->RowsReset();
}

/// The cursor follows silently: to the first data row when there is one at last, back to the last when it was cut off.
void Grid::RowsHaveChanged(int first, int change) {
  Model& m = *model_;
  ClearMarks();
  m.sortIsStale = true;
  const int rowsBefore = Rows() - change;
  const int cursor = std::exchange(m.row, std::min(rowsBefore == 1 ? 1 : m.row, m.LastRow()));
  const int top = std::exchange(m.topRow, std::min(m.topRow, m.LastTop()));
  if (!view) return;
  if (change > 0) view->RowsInserted(first, change);
  if (change < 0) view->RowsRemoved(first, -change);
  if (m.row != cursor) view->CursorMoved();
  if (m.topRow != top) view->TopRowChanged();
}

// Cells.

std::string Grid::Cell(int row, int col) const {
  CheckRow(row);
  CheckCol(col);
  const auto content = model_->table.Cell(row, col);
  if (row > 0 && model_->Column(col).type == ColumnType::Boolean) {
    if (EqualNoCase(content, "True")) return "-1";
    if (EqualNoCase(content, "False")) return "0";
  }
  return std::string(content);
}

std::string Grid::DisplayText(int row, int col) const {
  const int item = row > 0 && model_->table.HoldsKey(row, col) ? model_->ItemAt(row, col) : -1;
  return item < 0 ? Cell(row, col) : model_->Column(col).items[static_cast<std::size_t>(item)];
}

bool Grid::IsEmpty() const {
  const int first = Kind() == GridKind::Editable ? 1 : 0;
  for (int row = 1; row < Rows(); ++row) {
    for (int col = first; col < Cols(); ++col) {
      if (!model_->table.Cell(row, col).empty()) return false;
    }
  }
  return true;
}

void Grid::SetCell(int row, int col, std::string_view text) {
  CheckRow(row);
  CheckCol(col);
  model_->table.SetCell(row, col, text);
  model_->sortIsStale = true;
  if (view) view->CellChanged(row, col);
}

// The cursor.

int Grid::Row() const {
  return model_->row;
}

int Grid::Col() const {
  return model_->col;
}

void Grid::SetRow(int row) {
  CheckRow(row);
  MoveTo(row, model_->col);
}

void Grid::SetCol(int col) {
  CheckCol(col);
  MoveTo(model_->row, col);
}

/// Every step's handlers may move the cursor or the rows themselves, before the next step is taken.
void Grid::MoveTo(int row, int col) {
  if (IsAt(row, col)) return;
  const Dispatch dispatch(Parent());
  CommitEdit();
  if (IsAt(row, col)) return;
  LeaveCell.Raise();
  if (IsAt(row, col) || row >= Rows() || col >= Cols()) return;
  if (row != model_->row && !model_->marking) ClearMarks();
  model_->row = row;
  model_->col = col;
  if (view) view->CursorMoved();
  ScrollIntoView();
  RowColChange.Raise();
  EnterCell.Raise();
}

bool Grid::IsAt(int row, int col) const {
  return model_->row == row && model_->col == col;
}

int Grid::TopRow() const {
  return model_->topRow;
}

void Grid::SetTopRow(int row) {
  row = std::clamp(row, 1, model_->LastTop());
  if (row == model_->topRow) return;
  model_->topRow = row;
  if (view) view->TopRowChanged();
}

void Grid::ScrollIntoView() {
  const int row = model_->row;
  if (row == 0) return;
  const int firstTop = row - model_->visibleRows + 1;
  SetTopRow(std::clamp(model_->topRow, std::min(firstTop, row), row));
}

void Grid::SetVisibleRows(int rows) {
  model_->visibleRows = std::max(1, rows);
  SetTopRow(model_->topRow);
}

int Grid::VisibleRows() const {
  return model_->visibleRows;
}

void Grid::SetRowHeight(Twips height) {
  model_->rowHeight = height;
}

Twips Grid::CellLeft() const {
  Twips left = 0;
  for (int col = 0; col < model_->col; ++col) left += ColWidth(col);
  return left;
}

Twips Grid::CellTop() const {
  return model_->row == 0 ? 0 : (model_->row - model_->topRow + 1) * model_->rowHeight;
}

Twips Grid::CellWidth() const {
  return ColWidth(model_->col);
}

}  // namespace norvane
