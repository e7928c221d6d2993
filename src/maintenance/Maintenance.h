#pragma once

namespace norvane {

class Program;

/// Enters this room's screens and actions into the program's table.
void RegisterMaintenance(Program& program);

/// Keeps the first copy of a day while the user works. To be called once the main screen is up.
void KeepDailyCopy(Program& program);

}  // namespace norvane
