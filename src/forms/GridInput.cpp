#include <algorithm>

#include "forms/GridModel.h"

namespace norvane {

// The mouse.

void Grid::UserClick(int row, int col) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded() || row < 1 || row >= Rows() || col >= Cols()) return;
  if (col < model_->FirstCol()) col = Col();
  if (!model_->marking) ClearMarks();
  MoveTo(row, col);
  Click.Raise();
  if (Parent().IsLoaded() && IsAt(row, col)) ToggleCheck();
}

void Grid::UserDoubleClick(int row, int col) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded() || row < 1 || row >= Rows() || col >= Cols()) return;
  if (col < model_->FirstCol()) return DblClick.Raise();
  MoveTo(row, col);
  const bool hadFocus = HasFocus();
  DblClick.Raise();
  if (IsAt(row, col) && HasFocus() == hadFocus) BeginEdit();
}

void Grid::UserContext(int row, int col) {
  if (!Enabled()) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded() || row < 1 || row >= Rows() || col >= Cols() || IsMarked(row)) return;
  MoveTo(row, std::max(col, model_->FirstCol()));
  Click.Raise();
}

void Grid::PressCellButton() {
  PressCellButton(Row(), Col());
}

void Grid::PressCellButton(int row, int col) {
  if (!Enabled() || row < 1 || row >= Rows() || Helper(col) != CellHelper::Button) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded() || row >= Rows()) return;
  CommitEdit();
  MoveTo(row, col);
  if (!IsAt(row, col)) return;
  if (CellButtonClick.HasHandler()) {
    CellButtonClick.Raise(row, col);
  } else {
    BeginEdit();
  }
}

// The keyboard.

bool Grid::UserKey(Key key, KeyModifiers modifiers) {
  if (!Enabled()) return false;
  const Dispatch dispatch(Parent());
  return Editing() ? KeyInEdit(key, modifiers) : KeyOutsideEdit(key, modifiers);
}

bool Grid::KeyInEdit(Key key, KeyModifiers modifiers) {
  const bool byTyping = model_->edit->by == BeginBy::Typing;
  switch (key) {
    case Key::Enter:
      CommitEdit();
      return true;
    case Key::Escape:
      CancelEdit();
      return true;
    case Key::Tab:
      if (modifiers.control) return false;
      break;
    case Key::Left:
    case Key::Right:
      if (!byTyping) return false;
      break;
    case Key::Up:
    case Key::Down:
      if (modifiers.alt) return true;
      break;
    default:
      return false;
  }
  CommitEdit();
  if (!Parent().IsLoaded()) return true;
  return key == Key::Tab ? MoveByTab(modifiers.shift) : MoveBy(key, modifiers);
}

bool Grid::KeyOutsideEdit(Key key, KeyModifiers modifiers) {
  if (key == Key::Tab) return !modifiers.control && MoveByTab(modifiers.shift);
  KeyDown.Raise(static_cast<int>(key));
  if (!Parent().IsLoaded()) return true;
  switch (key) {
    case Key::Enter:
      KeyPress.Raise(static_cast<int>(key));
      return true;
    case Key::Escape:
      KeyPress.Raise(static_cast<int>(key));
      return false;
    case Key::Space:
      UserText(" ");
      return true;
    case Key::F2:
      BeginEdit();
      return true;
    case Key::F4:
      OpenHelper();
      return true;
    default:
      break;
  }
  if (key == Key::Down && modifiers.alt) {
    OpenHelper();
    return true;
  }
  return modifiers.shift && TakesMarks() ? MarkBy(key, modifiers) : MoveBy(key, modifiers);
}

void Grid::UserFind(int row) {
  if (!Enabled() || row < 1) return;
  const Dispatch dispatch(Parent());
  MoveByKey(row, Col());
}

/// The drop-down's or the button's key.
void Grid::OpenHelper() {
  if (model_->Column(Col()).helper == CellHelper::Button) return PressCellButton();
  if (model_->Column(Col()).HasList()) BeginEdit();
}

bool Grid::MoveBy(Key key, KeyModifiers modifiers) {
  const int last = model_->LastRow();
  const bool byRow = model_->kind == GridKind::List || modifiers.control;
  const auto nextCol = [this](int from, int step) {
    const auto shown = [this](int col) { return col < model_->FirstCol() || col >= Cols() || ColWidth(col) > 0; };
    int col = from + step;
    while (!shown(col)) col += step;
    return col < model_->FirstCol() || col >= Cols() ? Col() : col;
  };
  switch (key) {
    case Key::Up:
      MoveByKey(std::max(1, Row() - 1), Col());
      return true;
    case Key::Down:
      MoveByKey(Row() + 1, Col());
      return true;
    case Key::PageUp:
      MoveByKey(std::max(1, Row() - VisibleRows()), Col());
      return true;
    case Key::PageDown:
      MoveByKey(std::min(last, Row() + VisibleRows()), Col());
      return true;
    case Key::Left:
      MoveByKey(Row(), nextCol(Col(), -1));
      return true;
    case Key::Right:
      MoveByKey(Row(), nextCol(Col(), 1));
      return true;
    case Key::Home:
      byRow ? MoveByKey(1, Col()) : MoveByKey(Row(), nextCol(model_->FirstCol() - 1, 1));
      return true;
    case Key::End:
      byRow ? MoveByKey(last, Col()) : MoveByKey(Row(), nextCol(Cols(), -1));
      return true;
    default:
      return false;
  }
}

/// The next cell that can be edited. False after the last one, and on a grid that has none.
bool Grid::MoveByTab(bool backwards) {
  const auto& columns = model_->columns;
  const auto canStop = [](const GridColumn& column) { return column.editable && column.width > 0; };
  if (std::none_of(columns.begin(), columns.end(), canStop)) return false;
  const int step = backwards ? -1 : 1;
  int row = Row();
  int col = Col();
  do {
    col += step;
    if (col < 0 || col >= Cols()) {
      row += step;
      col = backwards ? Cols() - 1 : 0;
    }
    if (row < 0 || row >= Rows()) return false;
  } while (row == 0 || !canStop(model_->Column(col)));
  MoveByKey(row, col);
  return true;
}

void Grid::MoveByKey(int row, int col) {
  if (row >= Rows()) return;
  const int before = Row();
  MoveTo(row, col);
  if (Row() != before && Row() > 0) Click.Raise();
}

}  // namespace norvane
