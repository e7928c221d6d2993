#include "forms/GridTable.h"

#include <algorithm>

namespace norvane {

namespace {

constexpr char kSeparator = '\t';
constexpr char kKeySign = '\x1f';

bool IsReserved(char c) {
  return c == kSeparator || c == '\n' || c == '\r' || c == kKeySign;
}

void AppendCell(std::string& row, std::string_view text) {
  const auto begin = static_cast<std::ptrdiff_t>(row.size());
  row += text;
  std::replace_if(row.begin() + begin, row.end(), IsReserved, ' ');
}

/// Where the cell begins in its row, npos if the row is too short for it.
std::size_t CellBegin(std::string_view row, int col) {
  std::size_t begin = 0;
  for (; col > 0; --col) {
    begin = row.find(kSeparator, begin);
    if (begin == std::string_view::npos) return begin;
    ++begin;
  }
  return begin;
}

std::size_t CellEnd(std::string_view row, std::size_t begin) {
  return std::min(row.find(kSeparator, begin), row.size());
}

/// The row's text up to the end of its last column.
std::string_view FirstCells(std::string_view row, int cols) {
  const auto beyond = CellBegin(row, cols);
  return beyond == std::string_view::npos ? row : row.substr(0, beyond - 1);
}

}  // namespace

void GridTable::Insert(int row, std::string_view cells, int cols) {
  rows_.emplace(rows_.begin() + row, FirstCells(cells, cols));
}

void GridTable::Remove(int row) {
  rows_.erase(rows_.begin() + row);
}

void GridTable::Clear() {
  rows_ = std::vector<std::string>(rows_.size());
}

void GridTable::CutColumns(int cols) {
  for (auto& row : rows_) row.resize(FirstCells(row, cols).size());
}

void GridTable::Reorder(const std::vector<int>& order) {
  std::vector<std::string> sorted;
  sorted.reserve(rows_.size());
  sorted.push_back(std::move(rows_.front()));
  for (const int row : order) sorted.push_back(std::move(rows_[static_cast<std::size_t>(row)]));
  rows_ = std::move(sorted);
}

std::string_view GridTable::Cell(int row, int col) const {
  const std::string_view content = Raw(row, col);
  return content.substr(HoldsKey(row, col) ? 1 : 0);
}

bool GridTable::HoldsKey(int row, int col) const {
  const std::string_view content = Raw(row, col);
  return !content.empty() && content.front() == kKeySign;
}

std::string_view GridTable::Raw(int row, int col) const {
  const std::string_view cells = rows_[static_cast<std::size_t>(row)];
  const auto begin = CellBegin(cells, col);
  if (begin == std::string_view::npos) return {};
  return cells.substr(begin, CellEnd(cells, begin) - begin);
}

void GridTable::SetCell(int row, int col, std::string_view text) {
  std::string content;
  AppendCell(content, text);
  Replace(row, col, content);
}

void GridTable::SetKey(int row, int col, std::string_view key) {
  Replace(row, col, kKeySign + std::string(key));
}

void GridTable::Replace(int row, int col, std::string_view content) {
  auto& cells = rows_[static_cast<std::size_t>(row)];
  auto begin = CellBegin(cells, col);
  if (begin == std::string::npos) {
    const auto separators = std::count(cells.begin(), cells.end(), kSeparator);
    cells.append(static_cast<std::size_t>(col - separators), kSeparator);
    begin = cells.size();
  }
  cells.replace(begin, CellEnd(cells, begin) - begin, content);
}

std::string GridRow(std::initializer_list<std::string_view> cells) {
  std::string row;
  for (const std::string_view& cell : cells) {
    if (&cell != cells.begin()) row += kSeparator;
    AppendCell(row, cell);
  }
  return row;
}

}  // namespace norvane
