#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/FileHandle.h"

namespace norvane::store {

using PageNumber = std::uint32_t;  // from 1 on; 0 is none
using Bytes = std::span<const unsigned char>;

/// A value as a record holds it. Its text is valid as long as what the record was read from.
struct StoredValue {
  enum class Kind { Null, Whole, Real, Text, Blob };
  Kind kind = Kind::Null;
  std::int64_t whole = 0;
  double real = 0;
  std::string_view text = {};
};
using Record = std::vector<StoredValue>;

/// False if the bytes are no record: its parts have to fill it exactly.
bool ReadRecord(Bytes bytes, Record& record);

/// A page of a b-tree as far as it can be read, after https://sqlite.org/fileformat2.html. Nothing in it is believed:
/// whatever points out of it gives no cell.
class TreePage {
 public:
  enum class Kind { None = 0, IndexInner = 2, TableInner = 5, IndexLeaf = 10, TableLeaf = 13 };
  struct Cell {
    PageNumber child = 0;  ///< on inner pages
    std::int64_t key = 0;  ///< of tables: the row's number, or the highest below `child`
    std::uint64_t size = 0;
    Bytes local;              ///< the part of the record that is on this page
    PageNumber overflow = 0;  ///< where the rest is
    std::size_t length = 0;   ///< of the cell on this page
  };

  TreePage() = default;
  /// `usable` is how many bytes of the page hold data.
  TreePage(std::vector<unsigned char> bytes, PageNumber number, std::uint32_t usable);

  Kind PageKind() const { return kind_; }
  bool IsInner() const { return kind_ == Kind::TableInner || kind_ == Kind::IndexInner; }
  bool IsOfTable() const { return kind_ == Kind::TableInner || kind_ == Kind::TableLeaf; }
  int Cells() const { return cells_; }
  /// Whether the page could hold as many cells as it says.
  bool HasPlausibleCount() const { return hasPlausibleCount_; }
  PageNumber LastChild() const;
  std::optional<Cell> CellAt(int index) const;
  /// Whether the cells and what the page says of its free room fill it exactly.
  bool IsWhole() const;

 private:
  bool TakePayload(Cell& cell, Bytes& rest) const;

  std::vector<unsigned char> bytes_;
  std::size_t start_ = 0;
  std::uint32_t usable_ = 0;
  Kind kind_ = Kind::None;
  int cells_ = 0;
  bool hasPlausibleCount_ = true;
};

/// A database file that is read page by page, past the places that can't be read.
class DamagedFile {
 public:
  /// Raises 53 if there is no such file, 70 if it can't be read.
  explicit DamagedFile(const std::filesystem::path& file);

  PageNumber Pages() const { return pages_; }
  bool Has(PageNumber page) const { return page >= 1 && page <= pages_; }
  /// Empty if the page can't be read.
  std::vector<unsigned char> Read(PageNumber page) const;
  /// A page of no kind if it can't be read.
  TreePage ReadTree(PageNumber page) const { return TreePage(Read(page), page, usable_); }

  /// The record of a cell, gathered into `gathered` if it goes on on other pages. Nothing if a part is missing.
  std::optional<Bytes> Payload(const TreePage::Cell& cell, std::vector<unsigned char>& gathered) const;

  /// By page, whether it is free. Nothing if the list of the free pages is damaged.
  std::optional<std::vector<bool>> FreePages() const;
  /// The same for a file that doesn't begin as a database: what pages that look like parts of that list name.
  std::vector<bool> PagesListedAsFree() const;
  bool HasHeader() const { return hasHeader_; }

 private:
  FileHandle handle_;
  std::uint32_t pageSize_ = 4096;
  std::uint32_t usable_ = 4096;
  PageNumber pages_ = 0;
  bool hasHeader_ = false;
};

}  // namespace norvane::store
