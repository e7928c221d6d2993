#pragma once

namespace norvane {

class Program;

/// Enters all screens of this room into the program's table.
void RegisterScreens(Program& program);

}  // namespace norvane
