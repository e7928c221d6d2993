#pragma once

namespace norvane {

class Program;

/// Enters all report screens into the program's table.
void RegisterReports(Program& program);

}  // namespace norvane
