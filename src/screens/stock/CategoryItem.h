#pragma once

#include <string>

#include "forms/Controls.h"
#include "store/Recordset.h"

namespace norvane {

/// A category as the drop-downs list it: number with leading zeros to three digits, a space, the description.
std::string CategoryItem(const Recordset& categories);

/// Lists all categories in a drop-down and shows the first one, which raises its Click. Raises 3021 if there are none.
void OfferCategories(ComboBox& combo, Recordset& categories);

}  // namespace norvane
