#pragma once

#include <string>

#include "core/store/Recordset.h"

namespace norvane {

/// A category as the drop-downs list it: number with leading zeros to three digits, a blank, the description.
std::string CategoryItem(const Recordset& categories);

}  // namespace norvane
