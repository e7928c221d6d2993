#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "store/DatabaseCopy.h"
#include "store/Salvage.h"
#include "store/internal/Catalog.h"
#include "store/internal/DamagedFile.h"
#include "store/internal/Workshop.h"

namespace norvane::store {

/// Row numbers above the first up to the second.
struct RowRange {
  std::int64_t above = std::numeric_limits<std::int64_t>::min();
  std::int64_t upTo = std::numeric_limits<std::int64_t>::max();
  bool Contains(std::int64_t row) const { return row > above && row <= upTo; }
};

/// A table of the new database on its way.
class RescuedTable {
 public:
  RescuedTable(Workshop& target, const TableSchema& schema);

  const std::string& Name() const { return schema_.name; }
  bool HasRowNumbers() const { return !schema_.HasTextKey(); }
  /// Whether a record has the shape of a row: no more values than columns, each as its column's type is kept.
  bool Fits(const Record& record) const;
  bool FitsExactly(const Record& record) const { return record.size() == schema_.columns.size() && Fits(record); }
  /// A row that is there already stays as it is.
  void Insert(std::int64_t row, const Record& record);
  /// Rows in this range may be missing, or be others than those that were there.
  void Doubt(const RowRange& range) { doubted_.push_back(range); }
  bool IsDoubted(std::int64_t row) const;
  bool IsDoubted() const { return !doubted_.empty(); }
  bool HasRows() const { return hasRows_; }
  /// Compares a row with what an index holds of it, and takes away one that differs. False if it isn't there.
  bool Confirm(StatementHandle& lookup, std::int64_t row, const Record& entry);

  // What the walk through the table has found besides rows.
  std::vector<PageNumber> unplaced;  ///< pages whose rows are not where they should be
  std::int64_t unreadable = 0;       ///< rows of which only their place is left
  bool hasLostPages = false;

 private:
  Workshop& target_;
  const TableSchema& schema_;
  std::vector<std::size_t> order_;  ///< the columns as a record holds them
  StatementHandle insert_;
  StatementHandle remove_;
  std::vector<RowRange> doubted_;
  bool hasRows_ = false;
};

/// Takes the rows of a damaged file over into an empty database of the same schema.
///
/// Each table's pages are read from its root on, past those that can't be read; then what lies in the wrong place; then
/// the pages to which no way leads any more, if the list of free pages shows that they aren't stale. Where a table is
/// damaged its indexes decide which rows are missing, and which are not what they were.
class RowRescue {
 public:
  RowRescue(const DamagedFile& source, Workshop& target, const Progress& progress);
  /// False if there is none.
  bool TakeRows();
  /// What came over. The target needs its indexes for this, and may lose rows that they contradict.
  std::vector<SalvagedTable> Count();

 private:
  struct Root {
    std::string name;
    PageNumber page = 0;
  };
  void ReadRoots();
  PageNumber RootOf(const std::string& name) const;

  void Walk(RescuedTable& table, PageNumber number, RowRange range, int depth = 0);
  void WalkInner(RescuedTable& table, const TreePage& page, RowRange range, int depth);
  void TakeLeaf(RescuedTable& table, const TreePage& page, PageNumber number, const RowRange& range);
  void TakeUnplaced(RescuedTable& table);
  void TakeLost();
  void AdoptLeaf(const TreePage& page);
  using OnEntry = std::function<void(const Record&)>;
  /// False if a part of the index can't be read.
  bool WalkIndex(PageNumber number, const OnEntry& onEntry, int depth = 0);
  SalvagedTable CountOf(RescuedTable& table);
  bool CountByIndex(RescuedTable& table, const std::string& index, std::int64_t& missing);

  bool ReadRow(const TreePage::Cell& cell);
  bool Visit(PageNumber page);
  std::vector<bool> StalePages() const;

  const DamagedFile& source_;
  Workshop& target_;
  Progress progress_;
  Catalog catalog_;
  std::vector<RescuedTable> tables_;
  std::vector<Root> roots_;
  std::vector<bool> visited_;
  PageNumber visits_ = 0;
  bool isSecondPass_ = false;
  Record record_;
  std::vector<unsigned char> gathered_;
};

}  // namespace norvane::store
