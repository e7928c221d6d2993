#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <tuple>

#include "data/DataObject.h"
#include "data/FindTable.h"

namespace norvane {

/// What of the business can be found, kept in memory for all searches. It is read in slices, and read again once the
/// file has changed; until that has come to its end, what was read before is searched.
class FindIndex : public DataObject {
 public:
  explicit FindIndex(Workspace& workspace) : DataObject(workspace) {}

  /// Begins to read if the file isn't as it was when it was last read.
  void ReadIfChanged();
  bool Reading() const { return fresh_ != nullptr; }
  /// Reads the next rows, between an opening and a closing of its own. An error ends the reading and goes to the
  /// caller.
  void ReadSlice();

  /// Never nothing. While the file is read for the first time they grow, kind by kind.
  std::shared_ptr<const FindTables> Tables() const { return tables_; }
  /// How many kinds of the tables don't grow any more.
  std::size_t Complete() const { return fresh_ == tables_ ? kind_ : kFindKinds; }

 private:
  using Stamp = std::tuple<std::filesystem::file_time_type, std::uintmax_t>;
  Stamp StampNow() const;
  void ReadRows();
  void GoOn(std::int32_t rows);

  Stamp stamp_{};  ///< of the file that was read last
  std::shared_ptr<FindTables> tables_ = std::make_shared<FindTables>();
  std::shared_ptr<FindTables> fresh_;  ///< what is being read, nothing while nothing is; at first `tables_` itself
  bool complete_ = false;              ///< `tables_` have been read to their end
  std::size_t kind_ = 0;               ///< that is being read
  std::int64_t after_ = 0;             ///< the number up to which its rows have been read
  std::int64_t last_ = -1;             ///< the highest one of the kind, -1 before it is known
  std::int64_t width_ = 0;             ///< how many numbers are read at a time
};

}  // namespace norvane
