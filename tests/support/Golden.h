#pragma once

#include <string>

namespace norvane {

/// Compares a text with the file `name` in tests/golden.
///
/// Run with NORVANES_REWRITE_GOLDEN=1 the tests write the files instead, to be looked at before they are committed;
/// where CI is set that is refused.
void ExpectGolden(const std::string& name, const std::string& text);

}  // namespace norvane
