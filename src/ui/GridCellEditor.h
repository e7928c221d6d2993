#pragma once

#include <functional>

#include <QObject>
#include <QRect>

#include "forms/Grid.h"

class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace norvane::ui {

/// The field over the current cell while the grid is being edited: a line, or a list where the column has one. What is
/// typed goes to the grid; when the edit ends is the grid's decision.
class GridCellEditor : public QObject {
 public:
  GridCellEditor(Grid& grid, QWidget* viewport);
  void Abandon();

  /// Makes the field show the edit under way, or go away if there is none.
  void Follow(const QRect& cell);
  void Place(const QRect& cell);
  /// Opens the list of a drop-down that is being edited.
  void OpenList();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* Field() const;
  void ShowLine();
  void ShowList();
  void Hide();
  bool KeyPressed(const QKeyEvent& event);

  Grid* grid_;
  QWidget* viewport_;
  QLineEdit* line_;
  QComboBox* list_;
};

struct GridKeyPress {
  Key key;
  KeyModifiers modifiers;
};
/// The grid's name of a key, nothing for a key that it has no name for.
bool ToGridKey(const QKeyEvent& event, GridKeyPress& press);

}  // namespace norvane::ui
