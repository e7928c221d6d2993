#include "screens/RowEditing.h"

#include <algorithm>
#include <utility>

#include "core/Trap.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

/// Holds a report back until it is known whether it is news.
struct HeldReport : Reporter {
  void Report(const std::string& report) override { text = report; }
  std::string text;
};

}  // namespace

RowEditing::RowEditing(Grid& grid, Globals& globals, Reporter& reporter, RowEditingRules rules,
                       std::function<void(std::int32_t)> storeRow)
    : grid_(grid), globals_(globals), reporter_(reporter), rules_(std::move(rules)), storeRow_(std::move(storeRow)) {
  grid_.LeaveCell = [this] { LeaveCell(); };
  grid_.RowColChange = [this] { RowColChange(); };
  grid_.LostFocus = [this] { LostFocus(); };
}

// The markers.

std::string_view RowEditing::MarkerOf(std::int32_t row) const {
  const std::string key = grid_.Cell(row, 1);
  if (key.empty()) return "*";
  if (Waits(row) || (rules_.zeroMeansStarted && key == "0")) return "?";
  return row == NewRow ? ">" : "";
}

void RowEditing::ShowStatus(std::string_view label, std::int32_t row) {
  Trap(reporter_, label, [&] {
    if (Existing(row) > 0) SetMarker(row, MarkerOf(row));
  });
}

void RowEditing::SetOldRowStatus() {
  ShowStatus(rules_.labels.setOldRowStatus, OldRow);
}

void RowEditing::SetNewRowStatus() {
  ShowStatus(rules_.labels.setNewRowStatus, NewRow);
}

// The rows that wait.

bool RowEditing::Waits(std::int32_t row) const {
  const auto found = edits_.find(row);
  return found != edits_.end() && found->second.waits && row < grid_.Rows();
}

std::vector<std::int32_t> RowEditing::WaitingRows() const {
  std::vector<std::int32_t> rows;
  for (const auto& each : edits_) {
    if (Waits(each.first)) rows.push_back(each.first);
  }
  return rows;
}

void RowEditing::MarkChanged(std::int32_t row) {
  edits_[row].waits = true;
  globals_.RowChanged = true;
}

void RowEditing::MarkStored(std::int32_t row) {
  edits_.erase(row);
  ShowPending();
  ShowStatus(rules_.labels.setOldRowStatus, row);
}

void RowEditing::ShowPending() {
  globals_.RowChanged = !WaitingRows().empty();
}

void RowEditing::AfterEdit(std::int32_t row, const std::function<bool()>& edit) {
  ReadRow(rules_.labels.afterEdit, row, [&] {
    TakeCurrentRow();
    if (edit()) MarkChanged(row);
    if (rules_.storesAtOnce && Waits(row)) SaveRow(row);
    SetOldRowStatus();
  });
}

std::string RowEditing::TextsOf(std::int32_t row) const {
  std::string texts;
  for (int col = 1; col < grid_.Cols(); ++col) texts += grid_.Cell(row, col) + '\t';
  return texts;
}

bool RowEditing::ReadRow(std::string_view label, std::int32_t row, const std::function<void()>& routine) {
  HeldReport held;
  const bool read = Trap(held, label, routine);
  const std::string texts = TextsOf(row);
  const auto known = edits_.find(row);
  if (known != edits_.end() && known->second.reported == texts) return read;
  if (known != edits_.end()) known->second.reported.clear();
  if (read) return true;
  edits_[row].reported = texts;
  reporter_.Report(held.text);
  return false;
}

// Leaving a row.

void RowEditing::TakeCurrentRow() {
  OldRow = NewRow = grid_.Row();
}

void RowEditing::LeaveCell() {
  OldRow = grid_.Row();
}

void RowEditing::RowColChange() {
  Trap(reporter_, rules_.labels.rowColChange, [&] {
    NewRow = grid_.Row();
    if (NewRow != OldRow && Waits(OldRow)) AfterRowEdit();
    SetOldRowStatus();
    if (OldRow != NewRow) SetNewRowStatus();
  });
}

void RowEditing::LostFocus() {
  Trap(reporter_, rules_.labels.lostFocus, [&] {
    TakeCurrentRow();
    CommitPending();
    SetOldRowStatus();
  });
}

// The cursor goes back to an empty row that it skipped, then the row that was left is stored.
void RowEditing::AfterRowEdit() {
  Trap(reporter_, rules_.labels.afterRowEdit, [&] {
    const std::int32_t left = OldRow;
    const std::int32_t entered = Existing(NewRow);
    if (entered > 0) {
      if (rules_.marksRowEntered) SetMarker(entered, "?");
      if (HoldsNothing(entered - 1)) SendCursorBack();
    }
    SaveRow(left);
  });
}

bool RowEditing::HoldsNothing(std::int32_t row) const {
  return std::all_of(rules_.testColumns.begin(), rules_.testColumns.end(),
                     [&](int col) { return grid_.Cell(row, col).empty(); });
}

// Writing Row raises the grid's events before this goes on: OldRow then holds the row just entered.
void RowEditing::SendCursorBack() {
  grid_.SetRow(NewRow - 1);
  if (rules_.scrollsBack && grid_.TopRow() >= 2) grid_.SetTopRow(grid_.Row() - 1);
}

// Storing.

void RowEditing::CommitPending() {
  for (const std::int32_t row : WaitingRows()) {
    if (row == OldRow) {
      AfterRowEdit();
    } else {
      SaveRow(row);
    }
  }
}

// A row that isn't complete waits no longer either, and its texts stay in the grid.
void RowEditing::SaveRow(std::int32_t row) {
  const std::int32_t left = std::exchange(OldRow, row);
  if (ReadRow(rules_.labels.saveRow, row, [&] { storeRow_(row); })) MarkStored(row);
  if (left != row) OldRow = left;
}

void RowEditing::StartOver() {
  if (!std::exchange(edits_, {}).empty()) globals_.RowChanged = false;
}

void RowEditing::Close() {
  for (const std::int32_t row : WaitingRows()) SaveRow(row);
  globals_.RowChanged = false;
}

// Rows that come and go.

void RowEditing::Fill(Object<Recordset> list, const std::function<std::string(const Recordset&)>& texts) {
  const Object<Recordset> rows = std::move(list);
  grid_.SetTopRow(1);
  if (rows->RecordCount() > 0) rows->MoveFirst();
  for (; !rows->Eof(); rows->MoveNext()) grid_.AddItem(texts(*rows));
  grid_.SetRows(rows->RecordCount() + 1);
  if (grid_.Rows() > 1) return;
  grid_.SetRows(2);
  SetMarker(1, "*");
}

void RowEditing::RemoveRow(std::int32_t row) {
  grid_.RemoveItem(row);
  std::map<std::int32_t, Edit> moved;
  for (const auto& [at, edit] : edits_) {
    if (at != row) moved.emplace(at > row ? at - 1 : at, edit);
  }
  edits_ = std::move(moved);
  ShowPending();
}

void RowEditing::GoToNewRow() {
  if (!grid_.Cell(grid_.Rows() - 1, 1).empty()) grid_.SetRows(grid_.Rows() + 1);
  if (rules_.scrollsToNewRow && grid_.Rows() >= 7) grid_.SetTopRow(grid_.Rows() - 5);
  grid_.SetRow(grid_.Rows() - 1);
  grid_.SetFocus();
}

}  // namespace norvane
