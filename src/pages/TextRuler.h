#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "pages/FontMetrics.h"

namespace norvane::pages {

/// Measures text for one layout, in fractions of the font's size. The widths of characters that need no shaping are
/// read once and added up: asking the device's fonts for every cell would take longer than all the rest.
class TextRuler {
 public:
  explicit TextRuler(const FontMetrics& metrics);

  double Width(Face face, std::string_view text);
  double Ascent(Face face) const { return Known(face).ascent; }
  double LineHeight(Face face) const { return Known(face).lineHeight; }

  double Ascent(const Font& font) const { return Ascent(font.face) * font.size; }
  /// Of one line, in points.
  double LineHeight(const Font& font) const { return LineHeight(font.face) * font.size; }

 private:
  struct KnownFace {
    double ascent = 0;
    double lineHeight = 0;
    std::vector<float> widths;  ///< by slot; negative while unknown
  };

  static std::size_t Index(Face face) { return static_cast<std::size_t>(face.family) * 2 + (face.bold ? 1 : 0); }
  const KnownFace& Known(Face face) const { return faces_[Index(face)]; }

  const FontMetrics& metrics_;
  std::array<KnownFace, 4> faces_;
};

}  // namespace norvane::pages
