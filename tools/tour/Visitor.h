#pragma once

#include "forms/Program.h"
#include "tour/Stops.h"

namespace norvane::tour {

/// Does the steps of a stop on a running program. Throws std::runtime_error for a screen or a control that doesn't
/// exist.
void DoStep(Program& program, const Step& step);

}  // namespace norvane::tour
