#pragma once

#include <string_view>
#include <vector>

namespace norvane::tour {

/// One action of a user on a control, by the names of screen and control.
struct Step {
  enum class Do {
    Press,        ///< a button or an option
    Choose,       ///< a menu entry
    Click,        ///< a row of a grid
    DoubleClick,  ///< a row of a grid
    CellButton,   ///< the button in a cell of a grid
    Tab,          ///< a tab, from 0
    Edit,         ///< types the text into a cell of a grid
    Type,         ///< types the text where the focus is
    Hover,        ///< rests on a control until its tool tip shows
    Open,         ///< the menu of an entry, the list of a drop-down, the calendar of a date
    Show,         ///< no control: the screen comes up by itself
  };
  Do what;
  std::string_view screen;
  std::string_view control = {};
  int row = 1;  ///< of a grid, -1 for the last; the number of a tab
  int col = 1;
  std::string_view text = {};
};

/// A picture to take of a screen, after the steps on a program that has just been started.
struct Stop {
  std::string_view picture;  ///< file name without ending
  std::string_view screen;
  std::vector<Step> steps;
  /// What is drawn: the screen, the box that comes up over it, or the help window.
  enum class Shot { Screen, Box, Help } shot = Shot::Screen;
  bool isEmpty = false;  ///< a business without records; what it asks for is answered as preselected
};

/// All pictures, in the order in which a newcomer would meet the screens.
const std::vector<Stop>& Stops();

}  // namespace norvane::tour
