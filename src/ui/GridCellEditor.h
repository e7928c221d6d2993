#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QRect>

#include "forms/Grid.h"
#include "ui/CellEntry.h"

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QValidator;

namespace norvane::ui {

struct GridKeyPress {
  Key key;
  KeyModifiers modifiers;
};
/// Converts a key that the grid knows; false for any other.
bool ToGridKey(const QKeyEvent& event, GridKeyPress& press);

/// The field over the current cell during an edit: a line, or a list where the column has one. What is typed goes to
/// the grid, which decides when the edit ends.
class GridCellEditor : public QObject {
 public:
  /// `alignment` returns the alignment of a column's cells, so that a text doesn't jump when its edit begins.
  GridCellEditor(Grid& grid, QWidget* viewport, const CellEntry& entry,
                 std::function<Qt::Alignment(int col)> alignment);
  void Abandon();

  /// Shows the edit under way, or hides the field if there is none.
  void Follow(const QRect& cell);
  void Place(const QRect& cell);
  /// Gives the visible field the focus.
  void TakeKeyboard();
  /// Begins an edit by a key that gives the cell its content at once: "t", "+" and "-" in a date, Ctrl+' for the
  /// content of the cell above. False for any other key, and where the cell can't be edited.
  bool BeginByKey(const QKeyEvent& event);
  /// Whether a text typed into the current cell is refused: letters are, in a column of numbers.
  bool Refuses(const QString& text) const;
  /// Puts its value in the place of a sum.
  void FinishSum();
  /// Opens the list of a drop-down that is being edited.
  void OpenList();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* Field() const;
  QRect Grown(QRect cell) const;
  std::optional<QString> ContentByKey(const QKeyEvent& event, const QString& text) const;
  ColumnType Type() const { return grid_->ColDataType(grid_->Col()); }
  void ShowLine();
  void ShowList();
  void Hide();
  bool KeyPressed(const QKeyEvent& event);
  bool KeyPressedInList(const QKeyEvent& event);
  bool UseKey(const GridKeyPress& press);

  Grid* grid_;
  CellEntry entry_;
  std::function<Qt::Alignment(int col)> alignment_;
  QWidget* viewport_;
  QLineEdit* line_;
  QComboBox* list_;
  const QValidator* texts_ = nullptr;
  const QValidator* figures_;
  QRect cell_;
};

}  // namespace norvane::ui
