#pragma once

#include <string>
#include <string_view>

namespace norvane {

bool IsAscii(std::string_view text);

/// Puts the sort key of a text (UTF-8) into `key`: a text whose bytes sort as people expect, without regard to case,
/// accented letters beside their plain ones. Two texts have one key only if they differ in case alone; an accent makes
/// a difference only where all letters are equal.
void FoldKey(std::string_view text, std::string& key);

/// A text as it is searched: small letters without any accents, each typographic apostrophe as the typewriter's and
/// each control character as a space.
std::string PlainLetters(std::string_view text);

/// The store's `like`: % for any text, _ for one character, without regard to case.
bool MatchesPattern(std::string_view text, std::string_view pattern);

}  // namespace norvane
