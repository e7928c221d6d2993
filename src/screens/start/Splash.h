#pragma once

#include <string>

#include "core/Version.h"
#include "forms/Form.h"

namespace norvane {

/// What the splash and the About box share: the picture, the version, and how they load.
class Splash : public Form {
 public:
  Splash(Program& host, std::string name, FormStyle style) : Form(host, std::move(name), std::move(style)) {}

  Picture Picture1{*this, "Picture1", "splash"};
  Label lblVersion{*this, "lblVersion", std::string("Version ") + kVersion};

 protected:
  /// Reads the settings file and moves the main window to where it was left at the last exit: at start-up as well as
  /// each time the About box opens.
  void Form_Load() override;
};

}  // namespace norvane
