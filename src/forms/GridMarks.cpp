#include <algorithm>

#include "forms/GridModel.h"

namespace norvane {

namespace {

/// As long as it lives, moves of the cursor leave the marks.
class Marking {
 public:
  explicit Marking(bool& marking) : marking_(marking) { marking_ = true; }
  ~Marking() { marking_ = false; }
  Marking(const Marking&) = delete;
  Marking& operator=(const Marking&) = delete;

 private:
  bool& marking_;
};

}  // namespace

bool Grid::TakesMarks() const {
  return model_->kind == GridKind::List && !EditsInPlace();
}

bool Grid::IsMarked(int row) const {
  if (row < 1 || row >= Rows()) return false;
  const auto at = static_cast<std::size_t>(row);
  return row == model_->row || (at < model_->marks.size() && model_->marks[at]);
}

std::vector<int> Grid::MarkedRows() const {
  if (model_->marks.empty()) return model_->row > 0 ? std::vector<int>{model_->row} : std::vector<int>{};
  std::vector<int> rows;
  for (int row = 1; row < Rows(); ++row) {
    if (IsMarked(row)) rows.push_back(row);
  }
  return rows;
}

void Grid::ClearMarks() {
  model_->markFrom.reset();
  if (model_->marks.empty()) return;
  model_->marks.clear();
  if (view) view->CursorMoved();
}

void Grid::UserToggleMark(int row) {
  if (!TakesMarks()) return UserClick(row, Col());
  if (!Enabled() || row < 1 || row >= Rows()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded() || row >= Rows() || row == Row()) return;
  std::vector<bool>& marks = model_->marks;
  marks.resize(static_cast<std::size_t>(Rows()));
  const bool wasMarked = marks[static_cast<std::size_t>(row)];
  marks[static_cast<std::size_t>(row)] = !wasMarked;
  if (view) view->CursorMoved();
  if (wasMarked) return;
  if (Row() > 0) marks[static_cast<std::size_t>(Row())] = true;
  model_->markFrom = row;
  const Marking marking(model_->marking);
  UserClick(row, Col());
}

void Grid::UserMarkTo(int row) {
  if (!TakesMarks()) return UserClick(row, Col());
  if (!Enabled() || row < 1 || row >= Rows()) return;
  const Dispatch dispatch(Parent());
  const int from = model_->markFrom.value_or(std::max(1, Row()));
  {
    const Marking marking(model_->marking);
    UserClick(row, Col());
  }
  if (Parent().IsLoaded()) MarkFrom(from);
}

bool Grid::MarkBy(Key key, KeyModifiers modifiers) {
  const int from = model_->markFrom.value_or(std::max(1, Row()));
  bool used = false;
  {
    const Marking marking(model_->marking);
    used = MoveBy(key, modifiers);
  }
  if (Parent().IsLoaded()) MarkFrom(from);
  return used;
}

/// Marks from `row` to the cursor and nothing else.
void Grid::MarkFrom(int row) {
  row = std::min(row, model_->LastRow());
  if (row < 1 || Row() < 1) return;
  const int first = std::min(row, Row());
  const int last = std::max(row, Row());
  model_->marks.assign(static_cast<std::size_t>(Rows()), false);
  std::fill(model_->marks.begin() + first, model_->marks.begin() + last + 1, true);
  model_->markFrom = row;
  if (view) view->CursorMoved();
}

void Grid::UserMarkAll() {
  if (!Enabled() || !TakesMarks()) return;
  model_->marks.assign(static_cast<std::size_t>(Rows()), true);
  if (view) view->CursorMoved();
}

}  // namespace norvane
