#pragma once

#include "core/Conversions.h"

namespace norvane {

/// The conversions under United States settings, which statements and the store use on every machine.
const Conversions& UnitedStates();

}  // namespace norvane
