#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/Reporter.h"
#include "core/RuntimeError.h"

namespace norvane {

/// The end of the standard report, after the error's text.
inline constexpr std::string_view kStandardClosing = ".  If error persists contact Norvanes author.";

/// The text of a report: label, number, a space, the error's text, the closing words.
std::string ReportText(std::string_view label, const RuntimeError& error, std::string_view closing = kStandardClosing);

/// Runs `body` as a procedure under the standard error trap: on an error it reports once under `label` and leaves the
/// body at once. True if the body came to its end. What the body had written into the caller's variables stays. A
/// procedure without a label has no trap: its errors go to the caller.
template <class Body>
bool Trap(Reporter& reporter, std::string_view label, Body&& body, std::string_view closing = kStandardClosing) {
  if (label.empty()) {
    std::forward<Body>(body)();
    return true;
  }
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const RuntimeError& error) {
    reporter.ReportWithCause(ReportText(label, error, closing), error.Cause());
    return false;
  }
}

/// Runs the statements one after the other; one that fails is passed over and the next goes on.
template <class... Statements>
void IgnoringErrors(Statements&&... statements) {
  const auto passOver = [](auto&& statement) {
    try {
      statement();
    } catch (const RuntimeError&) {
      // Ignoring means that nothing is reported and nothing is undone.
    }
  };
  (passOver(std::forward<Statements>(statements)), ...);
}

}  // namespace norvane
