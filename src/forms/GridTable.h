#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// The cells of a grid, one text per row with tabs between the cells, just as rows are added. A cell is looked for when
/// it is asked for, so a hundred thousand rows cost one short text each and no splitting. A key has a control character
/// before it, which no text keeps, so it moves with its row like any other cell.
class GridTable {
 public:
  int Rows() const { return static_cast<int>(rows_.size()); }
  void Resize(int rows) { rows_.resize(static_cast<std::size_t>(rows)); }
  /// Cells beyond `cols` are dropped.
  void Insert(int row, std::string_view cells, int cols);
  void Remove(int row);
  /// Empties the rows and gives back what they held.
  void Clear();
  void CutColumns(int cols);
  /// Puts the data rows into this order: `order` names for each place from row 1 on the row that comes there.
  void Reorder(const std::vector<int>& order);

  /// Good until the row changes.
  std::string_view Cell(int row, int col) const;
  /// A tab or line break within the text becomes a space.
  void SetCell(int row, int col, std::string_view text);

  /// A cell may hold the key of an item instead of a text. Cell returns it like a text.
  void SetKey(int row, int col, std::string_view key);
  bool HoldsKey(int row, int col) const;

 private:
  std::string_view Raw(int row, int col) const;
  void Replace(int row, int col, std::string_view content);

  std::vector<std::string> rows_{1};
};

}  // namespace norvane
