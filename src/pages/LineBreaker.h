#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pages/TextRuler.h"

namespace norvane::pages {

/// Text is set smaller in steps of half a point.
inline constexpr float kSizeStep = 0.5F;
/// Sums of widths or heights that are meant to fit exactly differ in their last bits; in points.
inline constexpr double kFitTolerance = 0.01;
inline constexpr std::string_view kEllipsis = "\u2026";

/// A line of a text; it points into that text. The width is a fraction of the font's size.
struct BrokenLine {
  std::string_view text;
  double width = 0;
};

/// Appends the lines of a text that wraps at `width` (a fraction of the font's size): at line feeds, at spaces, and
/// between characters in a word that is wider than a line. The empty text is one empty line.
void BreakLines(TextRuler& ruler, Face face, std::string_view text, double width, std::vector<BrokenLine>& lines);

/// Appends the lines of a text that breaks at its line feeds alone.
void BreakAtLineFeeds(TextRuler& ruler, Face face, std::string_view text, std::vector<BrokenLine>& lines);

/// The width of the widest word, as a fraction of the font's size.
double WidestWord(TextRuler& ruler, Face face, std::string_view text);

/// How many bytes at the text's beginning fit into `width`: whole characters, at least one.
std::size_t FittingLength(TextRuler& ruler, Face face, std::string_view text, double width);

/// The text's beginning and an ellipsis, together no wider than `width` if that holds more than one character.
std::string Shortened(TextRuler& ruler, Face face, std::string_view text, double width);

/// The largest size not above `size` at which something fits into `room` points, its width being a fraction of the
/// size; but not less than `smallest`.
float FittingSize(double width, double room, float size, float smallest);

}  // namespace norvane::pages
