#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "store/internal/Rows.h"

namespace norvane::store {

/// Sorts row numbers by "<column> [desc], ...": stable, text by its sort key, a Null before every value.
/// Raises 3265 for an unknown column.
void SortRows(const Rows& rows, std::string_view order, std::vector<std::uint32_t>& places);

}  // namespace norvane::store
