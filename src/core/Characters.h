#pragma once

#include <cstddef>
#include <initializer_list>
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

/// The bytes of the whitespace character that `text` begins with: a space, a tab or one of the fixed spaces that
/// separate digits. 0 if there is none.
std::size_t WhitespaceLength(std::string_view text);
void SkipWhitespace(std::string_view& text);
/// Without the spaces, tabs and carriage returns at both ends.
std::string_view Trimmed(std::string_view text);
/// Removes `start` from the front of the text if it is there; an empty one never is.
bool Take(std::string_view& text, std::string_view start);

/// The text in one line and one cell: each tab and each line end becomes a space.
std::string OneLine(std::string_view text);

std::string Concat(std::initializer_list<std::string_view> parts);

}  // namespace norvane
