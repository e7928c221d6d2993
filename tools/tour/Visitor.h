#pragma once

#include "forms/Program.h"
#include "tour/Stops.h"

namespace norvane::tour {

/// Does the steps of a stop on a running program. Throws std::runtime_error for a screen or a control that isn't there.
void DoStep(Program& program, const Step& step);

/// Whether every screen that the stop touches is in the program's table.
bool CanVisit(const Program& program, const Stop& stop);

}  // namespace norvane::tour
