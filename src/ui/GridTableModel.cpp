#include "ui/GridTableModel.h"

#include <algorithm>

#include "ui/Convert.h"

namespace norvane::ui {
namespace {

bool IsAscii(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// The text without case and accents and with one kind of apostrophe, for searching.
QString Folded(const QString& text) {
  if (IsAscii(text)) return text.toLower();
  QString folded;
  for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
    if (c == QChar(0x2019)) {
      folded += '\'';
    } else if (c.category() != QChar::Mark_NonSpacing) {
      folded += c.toCaseFolded();
    }
  }
  return folded;
}

}  // namespace

void GridTableModel::Abandon() {
  beginResetModel();
  grid_ = nullptr;
  rows_ = columns_ = 0;
  endResetModel();
}

void GridTableModel::Sync() {
  if (!grid_) return;
  if (columns_ != grid_->Cols()) {
    beginResetModel();
    columns_ = grid_->Cols();
    rows_ = grid_->Rows() - 1;
    endResetModel();
  }
  const int rows = grid_->Rows() - 1;
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

void GridTableModel::RefreshAll() {
  if (columns_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  if (columns_ > 0 && rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
}

void GridTableModel::RefreshRow(int row) {
  if (row == 0) return RefreshAll();
  if (columns_ > 0 && row <= rows_) emit dataChanged(index(row - 1, 0), index(row - 1, columns_ - 1));
}

int GridTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

int GridTableModel::Find(const QString& word, int start) const {
  const QString wanted = Folded(word);
  const QString within = " " + wanted;
  const auto begins = [&](const QString& text) { return text.startsWith(wanted); };
  const auto hasWord = [&](const QString& text) { return text.contains(within); };
  const int found = FindText(begins, start);
  return found >= 0 ? found : FindText(hasWord, start);
}

template <class Matches>
int GridTableModel::FindText(Matches matches, int start) const {
  for (int col = 0; col < columns_; ++col) {
    if (grid_->ColWidth(col) == 0) continue;
    for (int step = 0; step < rows_; ++step) {
      const int row = (start + step) % rows_;
      if (matches(Folded(data(index(row, col), Qt::DisplayRole).toString()))) return row;
    }
  }
  return -1;
}

QVariant GridTableModel::data(const QModelIndex& index, int role) const {
  const int row = index.row() + 1;
  // Until the next Sync the view may ask for rows and columns that are gone.
  if (!grid_ || row >= grid_->Rows() || index.column() >= grid_->Cols()) return {};
  switch (role) {
    case Qt::DisplayRole:
      if (grid_->ColDataType(index.column()) == ColumnType::Boolean) return {};
      return ToQt(grid_->DisplayText(row, index.column()));
    case Qt::CheckStateRole:
      if (grid_->ColDataType(index.column()) != ColumnType::Boolean) return {};
      return grid_->Cell(row, index.column()) == "-1" ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
      return QVariant(AlignmentOf(index.column()));
    case Qt::AccessibleTextRole:
      return SpokenText(row, index.column());
    default:
      return {};
  }
}

QVariant GridTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (!grid_ || orientation != Qt::Horizontal || section >= grid_->Cols()) return {};
  if (role == Qt::DisplayRole) return ToQt(grid_->Cell(0, section));
  if (role == Qt::TextAlignmentRole) return QVariant(AlignmentOf(section));
  if (role == Qt::AccessibleTextRole) return SpokenHeading(section) + SpokenOrder(section);
  return {};
}

/// A column without heading holds the markers of rows.
QString GridTableModel::SpokenHeading(int col) const {
  const QString heading = ToQt(grid_->Cell(0, col));
  return heading.isEmpty() ? QString("Marker") : heading;
}

QString GridTableModel::SpokenOrder(int col) const {
  const auto& sort = grid_->SortedBy();
  if (!sort || sort->col != col) return {};
  return sort->descending ? ", sorted downwards" : ", sorted upwards";
}

QString GridTableModel::SpokenText(int row, int col) const {
  const bool isBoolean = grid_->ColDataType(col) == ColumnType::Boolean;
  const QString text = isBoolean ? (grid_->Cell(row, col) == "-1" ? "yes" : "no") : ToQt(grid_->DisplayText(row, col));
  return SpokenHeading(col) + ": " + (text.isEmpty() ? QString("empty") : text);
}

Qt::Alignment GridTableModel::AlignmentOf(int col) const {
  const bool isMarker = grid_->Kind() == GridKind::Editable && col == 0;
  const bool isBoolean = grid_->ColDataType(col) == ColumnType::Boolean;
  const auto alignment = isMarker || isBoolean ? ColumnAlignment::Centre : grid_->Alignment(col);
  if (alignment == ColumnAlignment::Centre) return Qt::AlignCenter;
  const auto at = static_cast<std::size_t>(col);
  const bool isMoney = grid_->ColDataType(col) == ColumnType::Currency || (at < figures_.size() && figures_[at]);
  if (alignment == ColumnAlignment::Right || (alignment == ColumnAlignment::General && isMoney))
    return Qt::AlignRight | Qt::AlignVCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace norvane::ui
