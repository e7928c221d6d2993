#pragma once

#include "forms/Control.h"

namespace norvane {

// What the platform's frame takes of a window's outer size, whatever frame is drawn.
inline constexpr Twips kFrameWidth = 120;

constexpr Twips FrameHeight(bool hasMenuBar) {
  constexpr Twips kTitleBar = 405;
  constexpr Twips kMenuBar = 285;
  return hasMenuBar ? kTitleBar + kMenuBar : kTitleBar;
}

}  // namespace norvane
