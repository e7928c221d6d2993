#pragma once

#include "core/Conversions.h"

namespace norvane::store {

/// The conversions under United States settings, which are the store's own whatever the machine's.
const Conversions& UnitedStates();

}  // namespace norvane::store
