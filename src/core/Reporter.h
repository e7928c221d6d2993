#pragma once

#include <string>

namespace norvane {

/// Where a trapped error goes: one message box with the OK button, no icon and the application's title.
class Reporter {
 public:
  virtual ~Reporter() = default;
  virtual void Report(const std::string& text) = 0;
  /// The same with what is known of the cause beyond the text, for a box that can show details.
  virtual void ReportWithCause(const std::string& text, const std::string& /*cause*/) { Report(text); }
};

}  // namespace norvane
