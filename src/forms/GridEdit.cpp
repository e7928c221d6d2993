#include <algorithm>

#include "core/Characters.h"
#include "forms/GridModel.h"

namespace norvane {

namespace {

/// The first item from `first` on, round the end, that begins with the letters; -1 for none.
int FindItem(const std::vector<std::string>& items, std::string_view letters, int first) {
  const auto count = static_cast<int>(items.size());
  for (int i = 0; i < count; ++i) {
    const int item = (first + i) % count;
    if (StartsWithNoCase(items[static_cast<std::size_t>(item)], letters)) return item;
  }
  return -1;
}

bool IsTicked(const std::string& content) {
  return !content.empty() && content != "0";
}

}  // namespace

bool Grid::CanEdit() const {
  const Model& m = *model_;
  if (!Enabled() || !Parent().IsLoaded() || m.row < 1) return false;
  const GridColumn& column = model_->Column(m.col);
  return column.editable && column.width > 0;
}

/// BeforeEdit of the current cell. False if that moved the cursor or the focus, or unloaded the form.
bool Grid::AskBeforeEdit() {
  const int row = model_->row;
  const int col = model_->col;
  const bool hadFocus = HasFocus();
  BeforeEdit.Raise(row, col);
  return IsAt(row, col) && row < Rows() && HasFocus() == hadFocus && CanEdit();
}

bool Grid::Editing() const {
  return model_->edit.has_value();
}

bool Grid::BeginEdit(BeginBy by) {
  if (Editing() || !CanEdit() || ColDataType(Col()) == ColumnType::Boolean) return false;
  const Dispatch dispatch(Parent());
  if (!AskBeforeEdit()) return false;
  const GridColumn& column = model_->Column(Col());
  GridEdit edit{.by = by, .text = DisplayText(Row(), Col()), .letters = ""};
  if (column.HasList()) {
    edit.item = model_->ItemAt(Row(), Col());
  } else if (by == BeginBy::Typing) {
    edit.text.clear();
  }
  model_->edit = std::move(edit);
  ShowEdit();
  return true;
}

const std::string& Grid::EditText() const {
  static const std::string kNone;
  return Editing() ? model_->edit->text : kNone;
}

void Grid::SetEditText(const std::string& text) {
  if (!Editing()) return;
  const GridColumn& column = model_->Column(Col());
  if (column.HasList()) {
    const auto found = std::find(column.items.begin(), column.items.end(), text);
    if (found != column.items.end()) ChooseItem(static_cast<int>(found - column.items.begin()));
    return;
  }
  model_->edit->text = OneLine(text);
  ShowEdit();
}

/// The user may have scrolled away from it.
void Grid::ShowEdit() {
  ScrollIntoView();
  if (view) view->EditChanged();
}

void Grid::ChooseItem(int index) {
  model_->edit->item = index;
  model_->edit->text = model_->Column(Col()).items[static_cast<std::size_t>(index)];
  ShowEdit();
}

/// Goes on with the letters typed before, or starts again with these after the item chosen if no item follows both: the
/// same letter typed again and again goes from one of its items to the next.
void Grid::SearchItem(std::string_view letters) {
  const auto& items = model_->Column(Col()).items;
  auto& searched = model_->edit->letters;
  searched += letters;
  int item = FindItem(items, searched, 0);
  if (item < 0) {
    searched = letters;
    item = FindItem(items, searched, model_->edit->item + 1);
  }
  if (item >= 0) ChooseItem(item);
}

void Grid::UserText(std::string_view text) {
  if (!Enabled() || text.empty()) return;
  const Dispatch dispatch(Parent());
  if (!Editing()) {
    if (text.size() == 1) KeyPress.Raise(text.front());
    if (CanEdit() && text == " " && ColDataType(Col()) == ColumnType::Boolean) return ToggleCheck();
    if (!BeginEdit(BeginBy::Typing)) return;
  }
  if (model_->Column(Col()).HasList()) {
    SearchItem(text);
  } else {
    SetEditText(model_->edit->text + std::string(text));
  }
}

void Grid::CommitEdit() {
  if (!Editing()) return;
  const Dispatch dispatch(Parent());
  const GridEdit edit = *std::exchange(model_->edit, std::nullopt);
  const int row = Row();
  const int col = Col();
  const GridColumn& column = model_->Column(col);
  const bool holdsKey = model_->table.HoldsKey(row, col);
  const bool takesKey = column.IsKeyed() && edit.item >= 0;
  const std::string before = Cell(row, col);
  const std::string content = !column.HasList() ? edit.text : edit.item < 0 ? before : column.ContentOf(edit.item);
  const bool changes = content != before || takesKey != holdsKey;
  if (changes && takesKey) SetKey(row, col, content);
  if (changes && !takesKey) SetCell(row, col, content);
  if (view) view->EditChanged();
  if (changes) AfterEdit.Raise(row, col);
}

void Grid::SetKey(int row, int col, std::string_view key) {
  model_->table.SetKey(row, col, key);
  if (view) view->CellChanged(row, col);
}

void Grid::CancelEdit() {
  if (!Editing()) return;
  model_->edit.reset();
  if (view) view->EditChanged();
}

void Grid::PickItem(int index) {
  const Dispatch dispatch(Parent());
  if (!Editing() && !BeginEdit()) return;
  const GridColumn& column = model_->Column(Col());
  if (!column.HasList() || index < 0 || index >= static_cast<int>(column.items.size())) return;
  ChooseItem(index);
  CommitEdit();
}

void Grid::ToggleCheck() {
  if (!CanEdit() || ColDataType(Col()) != ColumnType::Boolean) return;
  const Dispatch dispatch(Parent());
  if (!AskBeforeEdit()) return;
  const int row = Row();
  const int col = Col();
  SetCell(row, col, IsTicked(Cell(row, col)) ? "0" : "-1");
  AfterEdit.Raise(row, col);
}

void Grid::LosingFocus() {
  CommitEdit();
  LeaveCell.Raise();
}

}  // namespace norvane
