#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "core/Globals.h"
#include "core/Reporter.h"
#include "forms/Grid.h"

namespace norvane {

/// What a row-editing screen states of its own about the scheme.
struct RowEditingRules {
  /// The routines' labels in error reports; a routine without a label has no trap.
  struct Labels {
    std::string_view setOldRowStatus;
    std::string_view setNewRowStatus;
    std::string_view afterRowEdit;
    std::string_view rowColChange = {};
    std::string_view lostFocus = {};
  } labels;
  std::vector<int> testColumns;  ///< a row above the one entered is empty when all of these are
  bool zeroMeansStarted = true;  ///< "0" for a key marks a row that was started and has none
  bool marksRowEntered = true;   ///< the row entered shows "?" while the one left is stored
  bool scrollsBack = false;      ///< a cursor sent back takes the first row shown along
  bool scrollsToNewRow = true;   ///< a new row comes with the five above it in sight
};

/// Editing database rows in place in a grid, as eight screens do: a marker column that shows the state of each row, the
/// rows being left and entered, the program's one flag for a pending edit, and when a row is committed: on leaving it,
/// on leaving the grid, on closing the screen.
///
/// Column 0 is the marker, column 1 the row's key or name. Writing the cursor raises the grid's events at once, so the
/// routines nest; what they leave in OldRow and NewRow is what the next one works on.
class RowEditing {
 public:
  /// `saveRow` stores the row OldRow and clears RowChanged; it may change OldRow and NewRow.
  RowEditing(Grid& grid, Globals& globals, Reporter& reporter, RowEditingRules rules, std::function<void()> saveRow);

  std::int32_t OldRow = 0;  ///< the row being left
  std::int32_t NewRow = 0;  ///< the row being entered

  void SetOldRowStatus();
  void SetNewRowStatus();
  /// Sends the cursor back to an empty row that it skipped, then stores the row that was left. A row that could not be
  /// read keeps its "?" and is tried again at the next change of rows.
  void AfterRowEdit();

  // The grid's events.
  void LeaveCell();
  void RowColChange();
  void LostFocus();

  /// The edit that is going on belongs to the row the cursor stands on.
  void TakeCurrentRow();
  /// As `TakeCurrentRow`, and it waits to be stored.
  void MarkChanged();
  /// Stores a pending edit, as leaving the row would.
  void CommitPending();
  /// The grid was filled anew: no row of before is tried again.
  void StartOver() { failedRow_ = 0; }
  /// Takes a row out of the grid.
  void RemoveRow(std::int32_t row);
  /// Goes to the empty row at the end, adding one if the last holds something, and gives the grid the focus.
  void GoToNewRow();

  /// OldRow and NewRow as far as the grid still has such a row, else 0.
  std::int32_t RowLeft() const { return Existing(OldRow); }
  std::int32_t RowEntered() const { return Existing(NewRow); }
  void SetMarker(std::int32_t row, std::string_view marker) { grid_.SetCell(row, 0, marker); }

 private:
  std::int32_t Existing(std::int32_t row) const { return row < grid_.Rows() ? row : 0; }
  std::string_view UnstoredMarker(std::int32_t row) const;
  bool HoldsNothing(std::int32_t row) const;
  void SendCursorBack();
  void StoreRows();
  bool RetryFailedRow();

  Grid& grid_;
  Globals& globals_;
  Reporter& reporter_;
  RowEditingRules rules_;
  std::function<void()> saveRow_;
  std::int32_t failedRow_ = 0;  ///< left, but its texts could not be read
};

}  // namespace norvane
