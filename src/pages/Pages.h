#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pages/Fonts.h"

namespace norvane::pages {

// All places and sizes are in points (72 to the inch), from the top left corner of a Letter page, downwards.
inline constexpr double kPointsPerInch = 72.0;
inline constexpr double kPageWidth = 8.5 * kPointsPerInch;
inline constexpr double kPageHeight = 11.0 * kPointsPerInch;

/// The place of a page on a sheet of paper: its left edge, which may be beyond the paper's, and its scale.
struct Placing {
  double left = 0;
  double scale = 1;
};

/// Pages are centred across, with their tops equal, and keep their size on Letter, on A4 (whose edges cut a little of
/// the empty margins) and on anything larger; on smaller paper they shrink, so that nothing is lost.
inline Placing PlaceOn(double paperWidth, double paperHeight) {
  constexpr double kWidthOfA4 = 595;
  const double across = paperWidth < kWidthOfA4 ? paperWidth / kPageWidth : 1.0;
  const double scale = std::min({1.0, across, paperHeight / kPageHeight});
  return {(paperWidth - kPageWidth * scale) / 2, scale};
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

/// What a filled box is for; who paints gives each its colour.
enum class Fill : std::uint8_t { Panel, Track, First, Second, Alert };

/// A filled rectangle, below the texts and lines of its page.
struct Box {
  float left = 0, top = 0, width = 0, height = 0;
  Fill fill = Fill::Panel;
};

/// A place on the page that opens something where the page is shown. On paper it is nothing.
struct Link {
  float left = 0, top = 0, width = 0, height = 0;
  std::string target;

  bool Contains(double x, double y) const { return x >= left && x < left + width && y >= top && y < top + height; }
};

struct Page {
  std::vector<TextRun> runs;  ///< in reading order: header, body, footer
  std::vector<Line> lines;
  std::vector<Box> boxes;   ///< in the order of painting
  std::vector<Link> links;  ///< the later ones lie above
  std::string text;         ///< of all runs, one after the other
  int surplusRows = 0;      ///< rows for which the forms on this page have no room

  std::string_view TextOf(const TextRun& run) const { return std::string_view(text).substr(run.begin, run.length); }
  /// The link above a place; null where there is none.
  const Link* LinkAt(double x, double y) const {
    const auto found =
        std::find_if(links.rbegin(), links.rend(), [&](const Link& link) { return link.Contains(x, y); });
    return found == links.rend() ? nullptr : &*found;
  }
};

/// A document laid out, ready to be painted on any device.
struct Pages {
  std::vector<Font> fonts;  ///< each font that occurs, once
  std::vector<Page> pages;

  const Font& FontOf(const TextRun& run) const { return fonts[run.font]; }
};

}  // namespace norvane::pages
