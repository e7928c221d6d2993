#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
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
    std::string_view setOldRowStatus = {};
    std::string_view setNewRowStatus = {};
    std::string_view afterRowEdit = {};
    std::string_view afterEdit = {};
    std::string_view saveRow = {};
    std::string_view rowColChange = {};
    std::string_view lostFocus = {};
  } labels = {};
  std::vector<int> testColumns = {};  ///< a row above the one entered is empty when all of these are
  bool storesAtOnce = false;          ///< an edit is stored as it ends, not when its row is left
  bool zeroMeansStarted = true;       ///< "0" for a key marks a row that was started and has none
  bool marksRowEntered = true;        ///< the row entered shows "?" while the one left is stored
  bool scrollsBack = false;           ///< a cursor sent back takes the first row shown along
  bool scrollsToNewRow = true;        ///< a new row comes with the five above it in sight
};

/// Editing database rows in place in a grid, as eight screens do: a marker column that shows the state of each row, the
/// rows being left and entered, and when an edited row is stored: on leaving it, on leaving the grid, on closing the
/// screen. No other row is.
///
/// A row that can't be read keeps its "?" and its texts and is tried again at each of these occasions; the error is
/// reported again only if the texts have changed since. Errors of the database are reported by the data classes, and
/// the row then counts as stored.
///
/// Column 0 is the marker, column 1 the row's key or name. Writing the cursor raises the grid's events at once, so the
/// routines nest; what they leave in OldRow and NewRow is what the next one works on.
class RowEditing {
 public:
  /// `storeRow` stores the row it is given, which is OldRow too, or returns if the row isn't complete; it raises what
  /// can't be read. It may change OldRow and NewRow.
  RowEditing(Grid& grid, Globals& globals, Reporter& reporter, RowEditingRules rules,
             std::function<void(std::int32_t)> storeRow);

  std::int32_t OldRow = 0;  ///< the row being left
  std::int32_t NewRow = 0;  ///< the row being entered

  void SetOldRowStatus();
  void SetNewRowStatus();

  // The grid's events. A screen with a handler of its own for one of them calls these from it.
  void LeaveCell();
  void RowColChange();
  void LostFocus();

  /// A cell of the row was edited: `edit` completes the row and returns whether it is to be stored.
  void AfterEdit(std::int32_t row, const std::function<bool()>& edit);
  /// The row waits to be stored.
  void MarkChanged(std::int32_t row);
  /// The screen has stored the row by itself.
  void MarkStored(std::int32_t row);
  /// Runs a routine that reads the row's texts, under the standard trap. An error that these texts have had reported
  /// isn't reported again. True if the routine came to its end.
  bool ReadRow(std::string_view label, std::int32_t row, const std::function<void()>& routine);

  /// Fills the grid with the rows that `texts` makes of the list's, read from its beginning. An empty list gives one
  /// empty row, marked as new.
  void Fill(Object<Recordset> list, const std::function<std::string(const Recordset&)>& texts);
  /// The grid is filled again: no row of before waits any more.
  void StartOver();
  /// The screen closes: tries what waits a last time. The program's flag of a pending edit ends here.
  void Close();
  /// Takes a row out of the grid.
  void RemoveRow(std::int32_t row);
  /// Goes to the empty row at the end, adding one if the last holds something, and gives the grid the focus.
  void GoToNewRow();

  void SetMarker(std::int32_t row, std::string_view marker) { grid_.SetCell(row, 0, marker); }

 private:
  struct Edit {
    bool waits = false;    ///< to be stored
    std::string reported;  ///< the row's texts when an error in them was reported last
  };

  std::int32_t Existing(std::int32_t row) const { return row < grid_.Rows() ? row : 0; }
  std::string_view MarkerOf(std::int32_t row) const;
  void ShowStatus(std::string_view label, std::int32_t row);
  bool Waits(std::int32_t row) const;
  std::vector<std::int32_t> WaitingRows() const;
  std::string TextsOf(std::int32_t row) const;
  void ShowPending();
  void TakeCurrentRow();
  void AfterRowEdit();
  bool HoldsNothing(std::int32_t row) const;
  void SendCursorBack();
  void CommitPending();
  void SaveRow(std::int32_t row);

  Grid& grid_;
  Globals& globals_;
  Reporter& reporter_;
  RowEditingRules rules_;
  std::function<void(std::int32_t)> storeRow_;
  std::map<std::int32_t, Edit> edits_;  ///< of the rows that wait or have had an error, by row
};

}  // namespace norvane
