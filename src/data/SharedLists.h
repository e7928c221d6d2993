#pragma once

#include <cstdint>

#include "core/Workspace.h"

namespace norvane {

/// Replaces oInventory and reads the items of a category and the list of categories. Deletes the item `itemNum` in
/// between if InventoryStale says that a deletion is pending.
void GetInventory(Workspace& workspace, std::int32_t catNum, std::int32_t itemNum);

/// Replaces oSetup and reads the company's settings, the tax rate and the three lookup lists.
void SetupInit(Workspace& workspace);

}  // namespace norvane
