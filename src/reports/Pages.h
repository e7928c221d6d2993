#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "reports/Fonts.h"

namespace norvane::pages {

// All places and sizes are in points (72 to the inch), from the top left corner of a Letter page, downwards.
inline constexpr double kPointsPerInch = 72.0;
inline constexpr double kPageWidth = 8.5 * kPointsPerInch;
inline constexpr double kPageHeight = 11.0 * kPointsPerInch;

/// Where the left edge of the page lies on a paper of another width: pages are never scaled, they stand centred across
/// and with their tops equal. Negative on A4, whose edges cut a little of the empty margins.
inline constexpr double LeftOfPageOn(double paperWidth) {
  return (paperWidth - kPageWidth) / 2;
}

/// One run of text on one line. Alignment is resolved: it is drawn from `x` on, without kerning, wrapping or clipping.
struct TextRun {
  float x = 0;  ///< left edge
  float baseline = 0;
  std::uint32_t begin = 0;   ///< of its text within the page's
  std::uint32_t length = 0;  ///< in bytes of UTF-8; never 0
  std::uint16_t font = 0;    ///< index into `Pages::fonts`
};

/// A horizontal or vertical rule, centred on the places given.
struct Line {
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  float width = 0;
  float grey = 0;  ///< 0 is black, 1 would be white
};

struct Page {
  std::vector<TextRun> runs;  ///< in reading order: header, body, footer
  std::vector<Line> lines;
  std::string text;  ///< of all runs, one behind the other

  std::string_view TextOf(const TextRun& run) const { return std::string_view(text).substr(run.begin, run.length); }
};

/// A document laid out: what stands where, ready to be painted on any device.
struct Pages {
  std::vector<Font> fonts;  ///< each font that occurs, once
  std::vector<Page> pages;

  const Font& FontOf(const TextRun& run) const { return fonts[run.font]; }
};

}  // namespace norvane::pages
