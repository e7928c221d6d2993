#pragma once

#include <string>

namespace norvane {

/// Where a trapped error goes: one message box with the OK button, no icon and the application's title.
class Reporter {
 public:
  virtual ~Reporter() = default;
  virtual void Report(const std::string& text) = 0;
};

}  // namespace norvane
