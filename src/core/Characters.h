#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

// Characters as the program's own formats know them. Everything beyond ASCII is left as the bytes it is.

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
constexpr char ToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
/// A letter of a word: ASCII letters and every byte of a longer character.
constexpr bool IsLetter(char c) {
  return (ToLower(c) >= 'a' && ToLower(c) <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

/// Equal without regard to the case of ASCII letters.
bool EqualNoCase(std::string_view a, std::string_view b);
/// True if `text` begins with `start`, in any case. No text begins with an empty one.
bool StartsWithNoCase(std::string_view text, std::string_view start);

/// The bytes of the blank that `text` begins with: a blank, a tab or one of the fixed blanks that stand between
/// digits. 0 if there is none.
std::size_t WhitespaceLength(std::string_view text);
void SkipWhitespace(std::string_view& text);
/// Cuts `start` off the text if it stands there; an empty one never does.
bool Take(std::string_view& text, std::string_view start);

/// The first `count` bytes at most, cut at a character's boundary.
std::string_view FirstBytes(std::string_view text, std::size_t count);
/// The first `count` characters at most.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The text in one line and one cell: each tab and each end of a line becomes a blank.
std::string OneLine(std::string_view text);

}  // namespace norvane
