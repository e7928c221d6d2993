#pragma once

#include <array>
#include <string>
#include <string_view>

#include "pages/PageWriter.h"

namespace norvane::pages {

/// A header or footer: left, centre and right part on one line between the margins. Parts that would collide shrink
/// evenly until a space separates them; if that is not enough, the longest ends in an ellipsis.
class RunningHead {
 public:
  /// `text` has its parts separated by `|`; a fourth and further ones are dropped. Margins in points.
  RunningHead(TextRuler& ruler, std::string_view text, double left, double right);

  const Font& UsedFont() const { return font_; }
  void WriteOn(PageWriter& writer, double top) const;

 private:
  void Shrink(TextRuler& ruler);
  void Shorten(TextRuler& ruler);
  bool Collides(TextRuler& ruler) const;
  std::array<double, 3> Widths(TextRuler& ruler) const;

  double left_;
  double right_;
  Font font_ = kHeaderFont;
  std::array<std::string, 3> parts_;
  std::array<double, 3> places_{};  ///< left edges
};

}  // namespace norvane::pages
