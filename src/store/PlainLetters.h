#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// A text as it is searched: small letters without accents, one kind of apostrophe, no control characters.
std::string PlainLetters(std::string_view text);

}  // namespace norvane
