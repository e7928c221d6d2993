#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "store/DatabaseCopy.h"

namespace norvane {

/// What came over of a table.
struct SalvagedTable {
  std::string name;
  std::int64_t rows = 0;
  std::int64_t missing = 0;  ///< rows that are known to have been there
  bool mayMissMore = false;  ///< whether there may have been others
};

/// Replaces a damaged database by a new one with the rows that can still be read; the damaged file is kept under the
/// name `keptAs`, in the same folder. `schema` is the statements that make an empty database; a table of which nothing
/// can be read holds what they put there. All or nothing.
///
/// Raises 3045 if the file is in use, 3026, 58 if `keptAs` is taken, and 3343 if no row can be read.
std::vector<SalvagedTable> SalvageDatabase(Engine& engine, const std::filesystem::path& file, const std::string& schema,
                                           const std::filesystem::path& keptAs, const Progress& progress = {});

}  // namespace norvane
