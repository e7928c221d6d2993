#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "forms/Keys.h"

namespace norvane {

class Conversions;

/// Lists only show rows; row-editing grids are edited in place.
enum class GridKind { List, Editable };
enum class ColumnType : int { Plain = 0, Number = 3, Currency = 6, Date = 7, Boolean = 11 };
enum class ColumnAlignment { General, Left, Centre, Right };
/// What the cells of a column offer besides their text.
enum class CellHelper { None, Button, DropDown, KeyedDropDown };

/// One column as a grid is set up. The heading's first character may be the sign of its alignment: "<", "^" or ">".
struct GridColumnSetup {
  std::string_view heading;
  Twips width;  ///< 0 hides the column
  ColumnType type = ColumnType::Plain;
  std::string_view list = {};  ///< as SetColComboList takes it; empty leaves the column's list as it is
  bool totalled = false;       ///< the line below the rows shows what they come to
};

/// The column that a list is sorted by.
struct GridSort {
  int col;
  bool descending = false;
  friend bool operator==(const GridSort&, const GridSort&) = default;
};

/// A row for AddItem: the cells joined with tabs. A tab or line break within a cell becomes a space.
std::string GridRow(std::initializer_list<std::string_view> cells);

/// Implemented by the side that draws a grid; each function is called after the change.
class GridObserver {
 public:
  virtual ~GridObserver() = default;
  virtual void ColumnsChanged() = 0;  ///< number, widths, headings, types, helpers
  virtual void RowsReset() = 0;       ///< anything may have changed
  virtual void RowsInserted(int first, int count) = 0;
  virtual void RowsRemoved(int first, int count) = 0;
  virtual void CellChanged(int row, int col) = 0;
  virtual void CursorMoved() = 0;
  virtual void TopRowChanged() = 0;
  virtual void EditChanged() = 0;  ///< an edit began, its text changed by code, or it ended
};

/// A table of text with one heading row, a cursor and editing in place; complete without a display.
///
/// Row 0 is the heading, data rows start at 1, `Rows` counts the heading too. A cell, Row or Col outside raises 381.
class Grid : public Control {
 public:
  Grid(Form& form, std::string name, GridKind kind);
  ~Grid() override;
  GridKind Kind() const;
  bool TakesFocus() const override { return true; }

  // The table.
  int Rows() const;
  void SetRows(int rows);
  int Cols() const;
  void SetCols(int cols);
  /// "^Sel|Name|>Amount": number of columns, headings, alignment.
  void SetFormatString(std::string_view format);
  /// Number of columns, headings, alignment, widths, types and lists in one call.
  void SetColumns(std::initializer_list<GridColumnSetup> columns);
  void SetColWidth(int col, Twips width);  ///< 0 hides the column; it still holds text
  Twips ColWidth(int col) const;
  void SetColDataType(int col, ColumnType type);
  ColumnType ColDataType(int col) const;
  ColumnAlignment Alignment(int col) const;
  /// "..." gives a button, "a|b" a drop-down, "#3;a|#4;b" a keyed drop-down, "" takes it away. In a keyed one a cell
  /// holds the key of the item that the user has chosen; what code writes is a text, even if it looks like a key.
  void SetColComboList(int col, std::string_view list);
  CellHelper Helper(int col) const;
  /// The texts of a column's drop-down.
  const std::vector<std::string>& DropDownItems(int col) const;
  /// Whether the user may edit the column. At first all of a row-editing grid but its marker column 0, none of a list.
  void SetColEditable(int col, bool editable);
  bool ColEditable(int col) const;
  /// Whether there is a column that the user may edit.
  bool EditsInPlace() const;
  bool ColTotalled(int col) const;

  /// The content.
  std::string Cell(int row, int col) const;
  /// The text as displayed, which differs from the content in a keyed drop-down.
  std::string DisplayText(int row, int col) const;
  void SetCell(int row, int col, std::string_view text);
  /// A row from a text with tabs between the cells, at the end or before `row`.
  void AddItem(std::string_view cells);
  void AddItem(std::string_view cells, int row);
  void RemoveItem(int row);
  /// Empties all cells, headings too; keeps Rows, Cols, widths and cursor.
  void Clear();

  /// What the user can do about a grid without content, shown in the room that its rows leave.
  const std::string& EmptyHint() const { return emptyHint_; }
  void SetEmptyHint(std::string hint) { emptyHint_ = std::move(hint); }
  /// Whether no cell of a data row holds a text, markers aside.
  bool IsEmpty() const;

  // The cursor. Writing a value that differs raises LeaveCell, RowColChange, EnterCell.
  int Row() const;
  void SetRow(int row);
  int Col() const;
  void SetCol(int col);
  int TopRow() const;
  /// Cut back so that no room is left below the last row.
  void SetTopRow(int row);
  /// How many data rows the display shows, set by the side that draws. Moves of a page and scrolling into view use it.
  void SetVisibleRows(int rows);
  int VisibleRows() const;
  /// The place of the current cell within the grid.
  Twips CellLeft() const;
  Twips CellTop() const;
  Twips CellWidth() const;
  /// Set by the side that draws.
  void SetRowHeight(Twips height);

  // Sorting, of lists that aren't edited in place. Rows move with the cursor and the marks on them; nothing is raised.
  bool Sortable() const;
  /// For a list whose order is its meaning.
  void SetSortable(bool sortable);
  /// By the values of a column: amounts, numbers and days by size, texts as people expect, an empty cell first. A
  /// second click on the heading turns the order round. Nothing happens where the list can't be sorted.
  void UserSort(int col, const Conversions& convert);
  const std::optional<GridSort>& SortedBy() const;
  /// Sorts again what has been added or written since.
  void KeepSorted(const Conversions& convert);

  // Marks: rows of a list to copy or add up, the current one always among them. What commands act on is the current row
  // alone. A move of the cursor takes all marks away.
  bool IsMarked(int row) const;
  /// In their order; none if the cursor is on the heading.
  std::vector<int> MarkedRows() const;
  /// Marks a row, where the cursor goes as by a click; or takes its mark away, unless it is the current one.
  void UserToggleMark(int row);
  /// Marks from the row where marking began to this one, where the cursor goes.
  void UserMarkTo(int row);
  void UserMarkAll();

  // Editing: what a user does to the current cell. BeginEdit is refused (false) where the cell cannot be edited.
  enum class BeginBy { Typing, Command };
  bool Editing() const;
  bool BeginEdit(BeginBy by = BeginBy::Command);
  const std::string& EditText() const;
  void SetEditText(const std::string& text);
  /// AfterEdit if the content changed.
  void CommitEdit();
  void CancelEdit();
  /// Chooses an item of the current cell's drop-down: begins an edit if there is none, and commits.
  void PickItem(int index);
  void ToggleCheck();
  /// The button of the current cell, and of any cell: the focus comes here, the cursor moves there, CellButtonClick.
  void PressCellButton();
  void PressCellButton(int row, int col);

  // The user at the mouse and the keyboard.
  void UserClick(int row, int col);
  /// The second click of a double click; the first has come as UserClick.
  void UserDoubleClick(int row, int col);
  /// What asks for the menu of a row: the cursor goes there as by a click, unless the row is marked. Ticks nothing.
  void UserContext(int row, int col);
  /// A key that is no character. False if the grid has no use for it (Tab after the last cell), so that the form may.
  bool UserKey(Key key, KeyModifiers modifiers = {});
  /// The user has searched for the row: the cursor goes there as by an arrow key.
  void UserFind(int row);
  /// A character typed, in UTF-8: begins or continues an edit.
  void UserText(std::string_view text);

  Event<> LeaveCell{Parent()};
  Event<> RowColChange{Parent()};
  Event<> EnterCell{Parent()};
  Event<int, int> BeforeEdit{Parent()};
  Event<int, int> AfterEdit{Parent()};
  Event<> Click{Parent()};
  Event<> DblClick{Parent()};
  Event<int> KeyDown{Parent()};
  Event<int> KeyPress{Parent()};
  Event<int, int> CellButtonClick{Parent()};

  GridObserver* view = nullptr;

 private:
  struct Model;
  void LosingFocus() override;
  void CheckRow(int row) const;
  void CheckCol(int col) const;
  void InsertRow(std::string_view cells, int row);
  void RowsHaveChanged(int first, int change);
  void ShowTextsForKeys(int col);
  void ScrollIntoView();
  void MoveTo(int row, int col);
  void MoveByKey(int row, int col);
  bool TakesMarks() const;
  void ClearMarks();
  void MarkFrom(int row);
  bool MarkBy(Key key, KeyModifiers modifiers);
  void SortRows(const Conversions& convert);
  bool IsAt(int row, int col) const;
  bool CanEdit() const;
  bool AskBeforeEdit();
  void ShowEdit();
  void ChooseItem(int index);
  void SetKey(int row, int col, std::string_view key);
  void SearchItem(std::string_view letters);
  bool KeyInEdit(Key key, KeyModifiers modifiers);
  bool KeyOutsideEdit(Key key, KeyModifiers modifiers);
  bool MoveBy(Key key, KeyModifiers modifiers);
  bool MoveByTab(bool backwards);
  void OpenHelper();

  std::unique_ptr<Model> model_;
  std::string emptyHint_;
};

}  // namespace norvane
