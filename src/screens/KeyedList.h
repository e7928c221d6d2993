#pragma once

#include <string>
#include <string_view>

#include "store/Recordset.h"

namespace norvane {

/// The drop-down items "#3;first|#4;second|" of a field, keys counting from 3, the way the payments and registry grids
/// offer them. Raises 3021 if there are no rows.
std::string KeyedItems(Recordset& rows, std::string_view field);

/// A list without its last character, the surplus separator. Raises 5 if it is empty.
std::string WithoutLastSeparator(std::string list);

}  // namespace norvane
