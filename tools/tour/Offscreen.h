#pragma once

#include <QTemporaryFile>

namespace norvane::tour {

/// Makes the application draw its windows without a display, on a screen large enough for all of them. To be made
/// before the application and kept until its end. A platform named in the environment stays, unless it is the plain
/// one.
class Offscreen {
 public:
  Offscreen();

 private:
  QTemporaryFile screens_;
};

}  // namespace norvane::tour
