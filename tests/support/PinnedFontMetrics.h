#pragma once

#include <array>

#include "core/Utf8.h"
#include "pages/FontMetrics.h"

namespace norvane::pages {

/// Font metrics that no machine's fonts can change: the common widths of Arial for printable ASCII, one width for all
/// other characters, and a fixed pitch for Courier New.
class PinnedFontMetrics : public FontMetrics {
 public:
  double Ascent(Face face) const override { return face.family == Family::Arial ? 0.905 : 0.833; }
  double Descent(Face face) const override { return face.family == Family::Arial ? 0.212 : 0.300; }

  double Advance(Face face, std::string_view text) const override {
    double width = 0;
    for (std::size_t place = 0; place < text.size();) {
      const Character character = CharacterAt(text, place);
      width += Width(face, character.code);
      place += character.length;
    }
    return width;
  }

 private:
  static constexpr double kOther = 0.556;
  static constexpr double kPitch = 0.6;
  static constexpr char32_t kFirst = U' ';

  // In thousandths of the font's size, from the blank on.
  static constexpr std::array<int, 95> kRegular = {
      278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
      556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
      611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
      667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
      222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584,
  };
  static constexpr std::array<int, 95> kBold = {
      278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
      556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
      611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
      667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
      278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584,
  };

  static double Width(Face face, char32_t code) {
    if (face.family == Family::CourierNew) return kPitch;
    if (code < kFirst || code >= kFirst + kRegular.size()) return kOther;
    return (face.bold ? kBold : kRegular)[code - kFirst] / 1000.0;
  }
};

}  // namespace norvane::pages
