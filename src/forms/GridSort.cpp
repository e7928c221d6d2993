#include <algorithm>
#include <numeric>

#include "core/TextFolding.h"
#include "forms/ColumnValues.h"
#include "forms/GridModel.h"

namespace norvane {

namespace {

template <class Key>
std::vector<int> SortedBy(const std::vector<Key>& keys, bool descending) {
  std::vector<int> order(keys.size());
  std::iota(order.begin(), order.end(), 1);
  const auto key = [&](int row) -> const Key& { return keys[static_cast<std::size_t>(row) - 1]; };
  std::stable_sort(order.begin(), order.end(),
                   [&](int a, int b) { return descending ? key(b) < key(a) : key(a) < key(b); });
  return order;
}

template <class Key, class KeyOf>
std::vector<int> OrderOf(const Grid& grid, const GridSort& sort, KeyOf keyOf) {
  std::vector<Key> keys;
  keys.reserve(static_cast<std::size_t>(grid.Rows()));
  for (int row = 1; row < grid.Rows(); ++row) keys.push_back(keyOf(grid.DisplayText(row, sort.col)));
  return SortedBy(keys, sort.descending);
}

std::vector<int> NewOrder(const Grid& grid, const GridSort& sort, const Conversions& convert) {
  const CellKind kind = KindOfCells(grid, sort.col, convert);
  if (kind != CellKind::Text) {
    return OrderOf<double>(grid, sort, [&](const std::string& text) { return ValueOfCell(text, kind, convert); });
  }
  return OrderOf<std::string>(grid, sort, [](const std::string& text) {
    std::string key;
    FoldKey(text, key);
    return key;
  });
}

}  // namespace

bool Grid::Sortable() const {
  return model_->sortable && model_->kind == GridKind::List && !EditsInPlace();
}

void Grid::SetSortable(bool sortable) {
  model_->sortable = sortable;
}

const std::optional<GridSort>& Grid::SortedBy() const {
  return model_->sort;
}

void Grid::UserSort(int col, const Conversions& convert) {
  if (!Enabled() || !Sortable() || col < 0 || col >= Cols()) return;
  const bool again = model_->sort && model_->sort->col == col;
  model_->sort = GridSort{col, again && !model_->sort->descending};
  SortRows(convert);
  if (view) view->ColumnsChanged();
  if (Row() > 0) ScrollIntoView();
}

void Grid::KeepSorted(const Conversions& convert) {
  if (model_->sort && model_->sortIsStale && Sortable()) SortRows(convert);
}

void Grid::SortRows(const Conversions& convert) {
  Model& m = *model_;
  const std::vector<int> order = NewOrder(*this, *m.sort, convert);
  m.sortIsStale = false;
  if (std::is_sorted(order.begin(), order.end())) return;
  m.table.Reorder(order);
  const auto placeOf = [&](int row) {
    return static_cast<int>(std::find(order.begin(), order.end(), row) - order.begin()) + 1;
  };
  if (!m.marks.empty()) {
    std::vector<bool> moved(order.size() + 1, false);
    for (std::size_t place = 0; place < order.size(); ++place)
      moved[place + 1] = m.marks[static_cast<std::size_t>(order[place])];
    m.marks = std::move(moved);
  }
  if (m.markFrom) m.markFrom = placeOf(*m.markFrom);
  if (m.row > 0) m.row = placeOf(m.row);
  if (!view) return;
  view->RowsReset();
  view->CursorMoved();
}

}  // namespace norvane
