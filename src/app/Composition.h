#pragma once

namespace norvane {

class Program;

namespace ui {
class QtDesktop;
}

/// Enters the screens and actions of all rooms into the program's table, and the widgets that some of them bring into
/// the desktop's.
void Compose(Program& program, ui::QtDesktop& desktop);

}  // namespace norvane
