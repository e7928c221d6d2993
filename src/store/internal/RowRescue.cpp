#include "store/internal/RowRescue.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Characters.h"
#include "core/Utf8.h"
#include "store/internal/SqlWriting.h"

namespace norvane::store {
namespace {

constexpr int kDeepest = 20;
constexpr PageNumber kPagesBetweenReports = 64;
constexpr std::int64_t kFirstDay = -657'434;  // 1/1/100
constexpr std::int64_t kLastDay = 2'958'465;  // 12/31/9999
// The columns of sqlite_schema.
constexpr std::size_t kName = 1;
constexpr std::size_t kRootPage = 3;
constexpr std::size_t kSchemaColumns = 5;

bool IsText(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  for (std::size_t place = 0; place < text.size();) {
    const Character character = CharacterAt(text, place);
    if (character.code == 0 || (character.code == kReplacement && character.length == 1)) return false;
    place += character.length;
  }
  return true;
}

/// Whether the store can have put the value into a column of that type.
bool FitsType(const StoredValue& value, FieldType type) {
  using Kind = StoredValue::Kind;
  if (value.kind == Kind::Null) return true;
  if (type == FieldType::Text) return value.kind == Kind::Text && IsText(value.text);
  if (type == FieldType::Double && value.kind == Kind::Real) return std::isfinite(value.real);
  if (value.kind != Kind::Whole) return false;
  switch (type) {
    case FieldType::Long:
      return std::in_range<std::int32_t>(value.whole);
    case FieldType::Date:
      return value.whole >= kFirstDay && value.whole <= kLastDay;
    case FieldType::Boolean:
      return value.whole >= -1 && value.whole <= 1;
    default:
      return true;
  }
}

void Bind(sqlite3_stmt* statement, int parameter, const StoredValue& value) {
  using Kind = StoredValue::Kind;
  if (value.kind == Kind::Whole) sqlite3_bind_int64(statement, parameter, value.whole);
  if (value.kind == Kind::Real) sqlite3_bind_double(statement, parameter, value.real);
  if (value.kind == Kind::Text) {
    sqlite3_bind_text(statement, parameter, value.text.data(), static_cast<int>(value.text.size()), SQLITE_STATIC);
  }
}

bool IsSame(const StoredValue& value, sqlite3_stmt* row, int column) {
  switch (value.kind) {
    case StoredValue::Kind::Null:
      return sqlite3_column_type(row, column) == SQLITE_NULL;
    case StoredValue::Kind::Whole:
      return sqlite3_column_int64(row, column) == value.whole;
    default:
      return ColumnText(row, column) == value.text;
  }
}

/// The key first in a table that is kept in its order.
std::vector<std::size_t> RecordOrder(const TableSchema& schema) {
  std::vector<std::size_t> order;
  if (schema.HasTextKey()) order = schema.key;
  for (std::size_t i = 0; i < schema.columns.size(); ++i) {
    if (std::ranges::find(order, i) == order.end()) order.push_back(i);
  }
  return order;
}

std::string Insertion(const TableSchema& schema, const std::vector<std::size_t>& order) {
  std::string columns = schema.HasTextKey() ? "" : "rowid";
  std::string values = schema.HasTextKey() ? "" : "?";
  for (const std::size_t column : order) {
    if (!schema.HasTextKey() && !schema.key.empty() && column == schema.key[0]) continue;
    columns += (columns.empty() ? "" : ", ") + QuotedName(schema.columns[column].name);
    values += values.empty() ? "?" : ", ?";
  }
  return Concat({"INSERT OR IGNORE INTO ", QuotedName(schema.name), " (", columns, ") VALUES (", values, ")"});
}

}  // namespace

RescuedTable::RescuedTable(Workshop& target, const TableSchema& schema)
    : target_(target),
      schema_(schema),
      order_(RecordOrder(schema)),
      insert_(Prepare(target.Database(), Insertion(schema, order_), target.Name())) {
  if (!HasRowNumbers()) return;
  remove_ = Prepare(target.Database(), Concat({"DELETE FROM ", QuotedName(Name()), " WHERE rowid = ?"}), target.Name());
}

bool RescuedTable::Fits(const Record& record) const {
  if (record.empty() || record.size() > order_.size()) return false;
  for (std::size_t i = 0; i < record.size(); ++i) {
    const bool isRowNumber = HasRowNumbers() && !schema_.key.empty() && order_[i] == schema_.key[0];
    const bool fits =
        isRowNumber ? record[i].kind == StoredValue::Kind::Null : FitsType(record[i], schema_.columns[order_[i]].type);
    if (!fits) return false;
  }
  return true;
}

// The first row replaces those that the new database was made with.
void RescuedTable::Insert(std::int64_t row, const Record& record) {
  if (!std::exchange(hasRows_, true)) target_.Run("DELETE FROM " + QuotedName(Name()));
  int parameter = 0;
  if (HasRowNumbers()) sqlite3_bind_int64(insert_.get(), ++parameter, row);
  for (std::size_t i = 0; i < record.size(); ++i) {
    if (HasRowNumbers() && !schema_.key.empty() && order_[i] == schema_.key[0]) continue;
    Bind(insert_.get(), ++parameter, record[i]);
  }
  Step(insert_.get(), target_.Name());
  sqlite3_reset(insert_.get());
  sqlite3_clear_bindings(insert_.get());
}

bool RescuedTable::IsDoubted(std::int64_t row) const {
  return std::ranges::any_of(doubted_, [&](const RowRange& range) { return range.Contains(row); });
}

bool RescuedTable::Confirm(StatementHandle& lookup, std::int64_t row, const Record& entry) {
  sqlite3_bind_int64(lookup.get(), 1, row);
  const bool isThere = Step(lookup.get(), target_.Name());
  bool isSame = isThere;
  for (std::size_t i = 0; isSame && i + 1 < entry.size(); ++i) {
    isSame = IsSame(entry[i], lookup.get(), static_cast<int>(i));
  }
  sqlite3_reset(lookup.get());
  if (isThere && !isSame) {
    sqlite3_bind_int64(remove_.get(), 1, row);
    Step(remove_.get(), target_.Name());
    sqlite3_reset(remove_.get());
  }
  return isSame;
}

RowRescue::RowRescue(const DamagedFile& source, Workshop& target, const Progress& progress)
    : source_(source),
      target_(target),
      progress_(progress),
      catalog_(Catalog::Read(target.Database(), target.Name())),
      visited_(source.Pages() + std::size_t{1}) {
  for (const TableSchema& schema : catalog_.Tables()) {
    if (!schema.isQuery) tables_.emplace_back(target_, schema);
  }
}

bool RowRescue::TakeRows() {
  ReadRoots();
  for (RescuedTable& table : tables_) {
    if (table.HasRowNumbers()) {
      Walk(table, RootOf(table.Name()), {});
    } else {
      table.hasLostPages = !WalkIndex(RootOf(table.Name()), [&](const Record& record) {
        if (table.Fits(record)) table.Insert(0, record);
      });
    }
  }
  isSecondPass_ = true;
  for (RescuedTable& table : tables_) TakeUnplaced(table);
  TakeLost();
  return std::ranges::any_of(tables_, &RescuedTable::HasRows);
}

std::vector<SalvagedTable> RowRescue::Count() {
  std::vector<SalvagedTable> counts;
  for (RescuedTable& table : tables_) counts.push_back(CountOf(table));
  return counts;
}

bool RowRescue::Visit(PageNumber page) {
  if (!source_.Has(page) || visited_[page]) return false;
  visited_[page] = true;
  if (progress_ && ++visits_ % kPagesBetweenReports == 0) progress_(static_cast<double>(visits_) / source_.Pages());
  return true;
}

bool RowRescue::ReadRow(const TreePage::Cell& cell) {
  const auto payload = source_.Payload(cell, gathered_);
  return payload && ReadRecord(*payload, record_);
}

/// From the table of tables, on the file's first page.
void RowRescue::ReadRoots() {
  std::vector<PageNumber> pages = {1};
  while (!pages.empty()) {
    const PageNumber number = pages.back();
    pages.pop_back();
    if (!Visit(number)) continue;
    const TreePage page = source_.ReadTree(number);
    for (int i = 0; page.IsOfTable() && i < page.Cells(); ++i) {
      const auto cell = page.CellAt(i);
      if (!cell) continue;
      if (page.IsInner()) {
        pages.push_back(cell->child);
      } else if (ReadRow(*cell) && record_.size() == kSchemaColumns) {
        roots_.push_back({std::string(record_[kName].text), static_cast<PageNumber>(record_[kRootPage].whole)});
      }
    }
    if (page.IsInner()) pages.push_back(page.LastChild());
  }
}

PageNumber RowRescue::RootOf(const std::string& name) const {
  const auto found = std::ranges::find_if(roots_, [&](const Root& root) { return EqualNoCase(root.name, name); });
  return found == roots_.end() ? 0 : found->page;
}

void RowRescue::Walk(RescuedTable& table, PageNumber number, RowRange range, int depth) {
  const TreePage page = source_.ReadTree(number);
  if (!page.IsOfTable() || depth > kDeepest || !Visit(number)) {
    table.hasLostPages = true;
    table.Doubt(range);
  } else if (page.IsInner()) {
    WalkInner(table, page, range, depth);
  } else {
    TakeLeaf(table, page, number, range);
  }
}

void RowRescue::WalkInner(RescuedTable& table, const TreePage& page, RowRange range, int depth) {
  for (int i = 0; i < page.Cells(); ++i) {
    const auto cell = page.CellAt(i);
    if (cell && range.Contains(cell->key)) {
      Walk(table, cell->child, {range.above, cell->key}, depth + 1);
      range.above = cell->key;
      continue;
    }
    table.hasLostPages = true;
    table.Doubt(range);
    if (cell) table.unplaced.push_back(cell->child);
  }
  Walk(table, page.LastChild(), range, depth + 1);
}

void RowRescue::TakeLeaf(RescuedTable& table, const TreePage& page, PageNumber number, const RowRange& range) {
  int unreadable = 0;
  bool isUnplaced = false;
  for (int i = 0; i < page.Cells(); ++i) {
    const auto cell = page.CellAt(i);
    if (!cell || !ReadRow(*cell) || !table.Fits(record_)) {
      ++unreadable;
    } else if (range.Contains(cell->key)) {
      table.Insert(cell->key, record_);
    } else {
      isUnplaced = true;
    }
  }
  if (isSecondPass_) return;
  if (isUnplaced) table.unplaced.push_back(number);
  if (unreadable < page.Cells()) table.unreadable += unreadable;
  if (isUnplaced || unreadable > 0 || !page.IsWhole()) table.Doubt(range);
}

/// After everything else, since what lies in the wrong place may be an old copy.
void RowRescue::TakeUnplaced(RescuedTable& table) {
  const std::vector<PageNumber> unplaced = std::exchange(table.unplaced, {});
  for (const PageNumber number : unplaced) {
    if (!source_.Has(number)) continue;
    if (!visited_[number]) {
      Walk(table, number, {});
    } else if (const TreePage page = source_.ReadTree(number); page.PageKind() == TreePage::Kind::TableLeaf) {
      TakeLeaf(table, page, number, {});
    }
  }
}

/// The pages below an inner page that can't be read.
void RowRescue::TakeLost() {
  if (std::ranges::none_of(tables_, &RescuedTable::hasLostPages)) return;
  const std::vector<bool> isStale = StalePages();
  if (isStale.empty()) return;
  for (PageNumber number = 1; number <= source_.Pages(); ++number) {
    if (!visited_[number] && !isStale[number]) AdoptLeaf(source_.ReadTree(number));
  }
}

/// Free pages keep the rows that were on them. Nothing if they aren't known; without a readable heading of the file
/// they are the ones that lists of free pages name.
std::vector<bool> RowRescue::StalePages() const {
  return source_.FreePages().value_or(source_.HasHeader() ? std::vector<bool>() : source_.PagesListedAsFree());
}

/// Takes a page's rows if they all have the shape of one table, and of no other, in which such rows are missing.
void RowRescue::AdoptLeaf(const TreePage& page) {
  if (page.PageKind() != TreePage::Kind::TableLeaf || !page.IsWhole()) return;
  RescuedTable* owner = nullptr;
  for (RescuedTable& table : tables_) {
    if (!table.hasLostPages || !table.HasRowNumbers()) continue;
    bool fits = page.Cells() > 0;
    for (int i = 0; fits && i < page.Cells(); ++i) {
      const auto cell = page.CellAt(i);
      fits = cell && ReadRow(*cell) && table.FitsExactly(record_) && table.IsDoubted(cell->key);
    }
    if (!fits) continue;
    if (owner) return;
    owner = &table;
  }
  if (owner) TakeLeaf(*owner, page, 0, {});
}

bool RowRescue::WalkIndex(PageNumber number, const OnEntry& onEntry, int depth) {
  const TreePage page = source_.ReadTree(number);
  const bool isIndex = page.PageKind() == TreePage::Kind::IndexInner || page.PageKind() == TreePage::Kind::IndexLeaf;
  if (!isIndex || depth > kDeepest || !Visit(number)) return false;
  bool isComplete = page.IsWhole();
  for (int i = 0; i < page.Cells(); ++i) {
    const auto cell = page.CellAt(i);
    if (cell && page.IsInner()) isComplete &= WalkIndex(cell->child, onEntry, depth + 1);
    if (cell && ReadRow(*cell)) {
      onEntry(record_);
    } else {
      isComplete = false;
    }
  }
  if (page.IsInner()) isComplete &= WalkIndex(page.LastChild(), onEntry, depth + 1);
  return isComplete;
}

SalvagedTable RowRescue::CountOf(RescuedTable& table) {
  SalvagedTable count{table.Name(), 0, table.unreadable, table.IsDoubted() || table.hasLostPages};
  if (table.IsDoubted()) {
    const StatementHandle indexes =
        Prepare(target_.Database(),
                "SELECT name FROM sqlite_master WHERE type = 'index' AND tbl_name = ? COLLATE NOCASE", target_.Name());
    sqlite3_bind_text(indexes.get(), 1, table.Name().c_str(), -1, SQLITE_STATIC);
    while (Step(indexes.get(), target_.Name())) {
      if (CountByIndex(table, std::string(ColumnText(indexes.get(), 0)), count.missing)) count.mayMissMore = false;
    }
  }
  count.rows = std::stoll(target_.Cell("SELECT count(*) FROM " + QuotedName(table.Name())));
  return count;
}

/// False if the index can't be read completely.
bool RowRescue::CountByIndex(RescuedTable& table, const std::string& index, std::int64_t& missing) {
  const std::string columns =
      target_.Cell("SELECT group_concat('\"' || name || '\"') FROM pragma_index_info(" + QuotedName(index) + ")");
  StatementHandle lookup =
      Prepare(target_.Database(), Concat({"SELECT ", columns, " FROM ", QuotedName(table.Name()), " WHERE rowid = ?"}),
              target_.Name());
  const auto width = static_cast<std::size_t>(sqlite3_column_count(lookup.get())) + 1;
  std::int64_t unconfirmed = 0;
  const bool isComplete = WalkIndex(RootOf(index), [&](const Record& entry) {
    if (entry.size() != width || entry.back().kind != StoredValue::Kind::Whole) return;
    const std::int64_t row = entry.back().whole;
    if (table.IsDoubted(row) && !table.Confirm(lookup, row, entry)) ++unconfirmed;
  });
  missing = std::max(missing, unconfirmed);
  return isComplete;
}

}  // namespace norvane::store
