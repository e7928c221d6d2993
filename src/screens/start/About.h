#pragma once

#include "screens/start/Splash.h"

namespace norvane {

class About : public Splash {
 public:
  static constexpr const char* kName = screen::kAbout;
  explicit About(Program& program);

  Button Command1{*this, "Command1", {.caption = "OK", .icon = "ok", .isDefault = true, .isCancel = true}};
};

}  // namespace norvane
