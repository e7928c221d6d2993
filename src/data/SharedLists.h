#pragma once

#include <cstdint>

#include "core/Workspace.h"

namespace norvane {

/// Makes oInventory, the items of a category and the list of categories anew. Deletes the item `itemNum` in between if
/// InventoryStale says that a deletion is pending.
void GetInventory(Workspace& workspace, std::int32_t catNum, std::int32_t itemNum);

/// Makes oSetup anew and reads the company's settings, the tax rate and the three lookup lists.
void SetupInit(Workspace& workspace);

}  // namespace norvane
