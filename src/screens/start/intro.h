#pragma once

#include "screens/start/Splash.h"

namespace norvane {

/// The splash, which says what is being loaded.
class intro : public Splash {
 public:
  static constexpr const char* kName = screen::kintro;
  explicit intro(Program& program);

  Label lblProcess{*this, "lblProcess", "Loading..."};
};

}  // namespace norvane
