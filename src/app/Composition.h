#pragma once

namespace norvane {

class Program;

/// Enters the screens and actions of all rooms into the program's table.
void Compose(Program& program);

}  // namespace norvane
