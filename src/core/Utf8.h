#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

struct Character {
  char32_t code = 0;
  std::size_t length = 1;  ///< bytes
};

namespace internal {
Character LongCharacterAt(std::string_view text, std::size_t place);
}  // namespace internal

/// The character at a place below the text's end. A byte that begins no well-formed character counts as one
/// replacement character, so that damaged text never stops a report.
inline Character CharacterAt(std::string_view text, std::size_t place) {
  const auto first = static_cast<unsigned char>(text[place]);
  return first < 0x80 ? Character{first, 1} : internal::LongCharacterAt(text, place);
}

/// The bytes of what is seen as one character, with the marks set over it and what is joined to it.
std::size_t ClusterLength(std::string_view text, std::size_t place);

/// Adds a character to a text.
void AppendCharacter(std::string& text, char32_t code);
std::size_t CharacterCount(std::string_view text);
/// The first `count` characters at most.
std::string_view FirstCharacters(std::string_view text, std::size_t count);
/// The first `count` bytes at most, cut at a character's boundary.
std::string_view FirstBytes(std::string_view text, std::size_t count);
/// Does nothing to an empty text.
void DropLastCharacter(std::string& text);

}  // namespace norvane
