#include <algorithm>

#include "core/RuntimeError.h"
#include "forms/GridModel.h"

namespace norvane {

namespace {

std::vector<std::string_view> Split(std::string_view text) {
  std::vector<std::string_view> parts;
  for (;;) {
    const auto bar = text.find('|');
    parts.push_back(text.substr(0, bar));
    if (bar == std::string_view::npos) return parts;
    text.remove_prefix(bar + 1);
  }
}

/// Cuts the sign of the alignment off a heading.
ColumnAlignment TakeAlignment(std::string_view& heading) {
  if (heading.empty()) return ColumnAlignment::General;
  ColumnAlignment alignment = ColumnAlignment::General;
  switch (heading.front()) {
    case '<':
      alignment = ColumnAlignment::Left;
      break;
    case '^':
      alignment = ColumnAlignment::Centre;
      break;
    case '>':
      alignment = ColumnAlignment::Right;
      break;
    default:
      return alignment;
  }
  heading.remove_prefix(1);
  return alignment;
}

/// Where the text of an item "#digits;text" begins, 0 if it has no key.
std::size_t TextBehindKey(std::string_view item) {
  if (item.empty() || item.front() != '#') return 0;
  const auto end = item.find_first_not_of("0123456789", 1);
  return end != std::string_view::npos && end > 1 && item[end] == ';' ? end + 1 : 0;
}

void SetList(GridColumn& column, std::string_view list) {
  const auto parts = Split(list);
  const bool keyed = std::all_of(parts.begin(), parts.end(), [](auto part) { return TextBehindKey(part) > 0; });
  column.helper = keyed ? CellHelper::KeyedDropDown : CellHelper::DropDown;
  for (const auto part : parts) {
    const auto text = keyed ? TextBehindKey(part) : 0;
    column.items.emplace_back(part.substr(text));
    if (keyed) column.keys.emplace_back(part.substr(1, text - 2));
  }
}

}  // namespace

int GridColumn::ItemOf(std::string_view content) const {
  const auto& contents = IsKeyed() ? keys : items;
  const auto found = std::find(contents.begin(), contents.end(), content);
  return found == contents.end() ? -1 : static_cast<int>(found - contents.begin());
}

int Grid::Cols() const {
  return model_->Cols();
}

void Grid::SetCols(int cols) {
  if (cols < 1) Raise(ErrorNumber::GridSubscriptOutOfRange);
  const int before = Cols();
  if (cols == before) return;
  if (cols < before) {
    CancelEdit();
    model_->table.CutColumns(cols);
    if (model_->sort && model_->sort->col >= cols) model_->sort.reset();
  }
  model_->columns.resize(static_cast<std::size_t>(cols));
  for (int col = before; col < cols; ++col) {
    model_->Column(col).editable = model_->kind == GridKind::Editable && col > 0;
  }
  model_->col = std::min(model_->col, cols - 1);
  if (view) view->ColumnsChanged();
}

void Grid::SetFormatString(std::string_view format) {
  const auto headings = Split(format);
  SetCols(static_cast<int>(headings.size()));
  int col = 0;
  for (auto heading : headings) {
    model_->Column(col).alignment = TakeAlignment(heading);
    model_->table.SetCell(0, col++, heading);
  }
  if (view) view->ColumnsChanged();
}

void Grid::SetColumns(std::initializer_list<GridColumnSetup> columns) {
  SetCols(static_cast<int>(columns.size()));
  int col = 0;
  for (const GridColumnSetup& setup : columns) {
    GridColumn& column = model_->Column(col);
    std::string_view heading = setup.heading;
    column.alignment = TakeAlignment(heading);
    model_->table.SetCell(0, col, heading);
    column.width = setup.width;
    column.type = setup.type;
    column.totalled = setup.totalled;
    if (!setup.list.empty()) SetColComboList(col, setup.list);
    ++col;
  }
  if (view) view->ColumnsChanged();
}

void Grid::SetColWidth(int col, Twips width) {
  CheckCol(col);
  if (width < 0) Raise(ErrorNumber::InvalidProcedureCall);
  model_->Column(col).width = width;
  if (view) view->ColumnsChanged();
}

Twips Grid::ColWidth(int col) const {
  CheckCol(col);
  return model_->Column(col).width;
}

void Grid::SetColDataType(int col, ColumnType type) {
  CheckCol(col);
  model_->Column(col).type = type;
  if (view) view->ColumnsChanged();
}

ColumnType Grid::ColDataType(int col) const {
  CheckCol(col);
  return model_->Column(col).type;
}

ColumnAlignment Grid::Alignment(int col) const {
  CheckCol(col);
  return model_->Column(col).alignment;
}

void Grid::SetColEditable(int col, bool editable) {
  CheckCol(col);
  model_->Column(col).editable = editable;
  if (view) view->ColumnsChanged();
}

bool Grid::ColTotalled(int col) const {
  CheckCol(col);
  return model_->Column(col).totalled;
}

bool Grid::ColEditable(int col) const {
  CheckCol(col);
  return model_->Column(col).editable;
}

bool Grid::EditsInPlace() const {
  const auto& columns = model_->columns;
  return std::any_of(columns.begin(), columns.end(), [](const GridColumn& column) { return column.editable; });
}

void Grid::SetColComboList(int col, std::string_view list) {
  CheckCol(col);
  if (col == model_->col) CancelEdit();
  ShowTextsForKeys(col);
  GridColumn& column = model_->Column(col);
  column.items.clear();
  column.keys.clear();
  column.helper = CellHelper::None;
  if (list == "...") {
    column.helper = CellHelper::Button;
  } else if (!list.empty()) {
    SetList(column, list);
  }
  if (view) view->ColumnsChanged();
}

/// Keys mean nothing under another list: the cells take the texts that they showed.
void Grid::ShowTextsForKeys(int col) {
  if (!model_->Column(col).IsKeyed()) return;
  for (int row = 1; row < Rows(); ++row) {
    if (model_->table.HoldsKey(row, col)) SetCell(row, col, DisplayText(row, col));
  }
}

CellHelper Grid::Helper(int col) const {
  CheckCol(col);
  return model_->Column(col).helper;
}

const std::vector<std::string>& Grid::DropDownItems(int col) const {
  CheckCol(col);
  return model_->Column(col).items;
}

}  // namespace norvane
