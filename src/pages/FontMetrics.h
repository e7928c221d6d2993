#pragma once

#include <string_view>

#include "pages/Fonts.h"

namespace norvane::pages {

/// How much room text takes, as fractions of the font's size: unhinted design figures (measured at a large size and
/// divided by it), so that one document gives the same pages on every device.
class FontMetrics {
 public:
  virtual ~FontMetrics() = default;
  /// Above and below the baseline; both positive. Their sum is the height of a line.
  virtual double Ascent(Face face) const = 0;
  virtual double Descent(Face face) const = 0;
  /// The advance width of a run of UTF-8 text, without kerning: the layout adds up the widths of the single characters
  /// of scripts that need no shaping. Painters have to leave kerning off as well.
  virtual double Advance(Face face, std::string_view text) const = 0;
};

}  // namespace norvane::pages
