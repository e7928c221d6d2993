#pragma once

#include <string_view>
#include <vector>

#include "pages/TextRuler.h"

namespace norvane::pages {

/// A line of a text; it points into that text. The width is a fraction of the font's size.
struct BrokenLine {
  std::string_view text;
  double width = 0;
};

/// Appends the lines of a text that wraps at `width` (a fraction of the font's size): at line feeds, at blanks, and
/// between characters in a word that is wider than a line. The empty text is one empty line.
void BreakLines(TextRuler& ruler, Face face, std::string_view text, double width, std::vector<BrokenLine>& lines);

/// Appends the lines of a text that breaks at its line feeds alone.
void BreakAtLineFeeds(TextRuler& ruler, Face face, std::string_view text, std::vector<BrokenLine>& lines);

/// The width of the widest word, as a fraction of the font's size.
double WidestWord(TextRuler& ruler, Face face, std::string_view text);

/// How many bytes at the text's beginning fit into `width`: whole characters, and at least one.
std::size_t FittingLength(TextRuler& ruler, Face face, std::string_view text, double width);

}  // namespace norvane::pages
