#include "screens/RowEditing.h"

#include <algorithm>
#include <utility>

#include "core/Trap.h"

namespace norvane {

RowEditing::RowEditing(Grid& grid, Globals& globals, Reporter& reporter, RowEditingRules rules,
                       std::function<void()> saveRow)
    : grid_(grid), globals_(globals), reporter_(reporter), rules_(std::move(rules)), saveRow_(std::move(saveRow)) {
  grid_.LeaveCell = [this] { LeaveCell(); };
  grid_.RowColChange = [this] { RowColChange(); };
  grid_.LostFocus = [this] { LostFocus(); };
}

// The markers.

/// The marker of a row that holds nothing stored, none for one that does.
std::string_view RowEditing::UnstoredMarker(std::int32_t row) const {
  const std::string key = grid_.Cell(row, 1);
  if (key.empty()) return "*";
  return rules_.zeroMeansStarted && key == "0" ? "?" : "";
}

void RowEditing::SetOldRowStatus() {
  Trap(reporter_, rules_.labels.setOldRowStatus, [&] {
    const std::int32_t row = RowLeft();
    if (row <= 0) return;
    std::string_view marker = UnstoredMarker(row);
    if (marker.empty() && (row == RowEntered() || row == failedRow_)) marker = globals_.RowChanged ? "?" : ">";
    SetMarker(row, marker);
  });
}

void RowEditing::SetNewRowStatus() {
  Trap(reporter_, rules_.labels.setNewRowStatus, [&] {
    const std::int32_t row = RowEntered();
    if (row <= 0) return;
    const std::string_view marker = UnstoredMarker(row);
    SetMarker(row, marker.empty() ? ">" : marker);
  });
}

// Leaving a row.

void RowEditing::LeaveCell() {
  OldRow = grid_.Row();
}

void RowEditing::RowColChange() {
  Trap(reporter_, rules_.labels.rowColChange, [&] {
    NewRow = grid_.Row();
    if (globals_.RowChanged && NewRow != OldRow) AfterRowEdit();
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

void RowEditing::AfterRowEdit() {
  Trap(reporter_, rules_.labels.afterRowEdit, [&] {
    const std::int32_t entered = RowEntered();
    if (entered > 0) {
      if (rules_.marksRowEntered) SetMarker(entered, "?");
      if (grid_.Rows() >= 2 && HoldsNothing(entered - 1)) SendCursorBack();
    }
    StoreRows();
  });
}

bool RowEditing::HoldsNothing(std::int32_t row) const {
  return std::all_of(rules_.testColumns.begin(), rules_.testColumns.end(),
                     [&](int col) { return grid_.Cell(row, col).empty(); });
}

// Writing Row raises the grid's events before this goes on: OldRow then holds the row just entered.
void RowEditing::SendCursorBack() {
  grid_.SetRow(RowEntered() - 1);
  if (rules_.scrollsBack && grid_.TopRow() >= 2) grid_.SetTopRow(grid_.Row() - 1);
}

// Storing a row clears RowChanged; one that raised an error on the way there leaves it set.
void RowEditing::StoreRows() {
  const bool stillFailing = RetryFailedRow();
  saveRow_();
  if (globals_.RowChanged) failedRow_ = RowLeft();
  globals_.RowChanged = globals_.RowChanged || stillFailing;
}

bool RowEditing::RetryFailedRow() {
  const std::int32_t failed = Existing(std::exchange(failedRow_, 0));
  const std::int32_t left = OldRow;
  if (failed == 0 || failed == left) return false;
  OldRow = failed;
  saveRow_();
  OldRow = left;
  if (globals_.RowChanged) failedRow_ = failed;
  return globals_.RowChanged;
}

void RowEditing::TakeCurrentRow() {
  OldRow = grid_.Row();
}

void RowEditing::MarkChanged() {
  TakeCurrentRow();
  globals_.RowChanged = true;
}

void RowEditing::CommitPending() {
  if (globals_.RowChanged) AfterRowEdit();
}

void RowEditing::RemoveRow(std::int32_t row) {
  grid_.RemoveItem(row);
  if (failedRow_ == row) failedRow_ = 0;
  if (failedRow_ > row) --failedRow_;
}

void RowEditing::GoToNewRow() {
  if (!grid_.Cell(grid_.Rows() - 1, 1).empty()) grid_.SetRows(grid_.Rows() + 1);
  if (rules_.scrollsToNewRow && grid_.Rows() >= 7) grid_.SetTopRow(grid_.Rows() - 5);
  grid_.SetRow(grid_.Rows() - 1);
  grid_.SetFocus();
}

}  // namespace norvane
