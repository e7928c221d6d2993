#pragma once

#include <string_view>

namespace norvane::pages {

struct Character {
  char32_t code = 0;
  std::size_t length = 1;  ///< bytes
};

/// The character at a place below the text's end. A byte that begins no well-formed character stands for itself as the
/// replacement character, so that damaged text never stops a report.
Character CharacterAt(std::string_view text, std::size_t place);

/// What the eye takes for one character: with the marks that are set over it and what is joined to it. In bytes.
std::size_t ClusterLength(std::string_view text, std::size_t place);

}  // namespace norvane::pages
