#pragma once

#include <cstdint>

namespace norvane::pages {

/// The two families that pages are set in, or faces with the same metrics.
enum class Family : std::uint8_t { Arial, CourierNew };

struct Face {
  Family family = Family::Arial;
  bool bold = false;
  bool operator==(const Face&) const = default;
};

struct Font {
  Face face;
  float size = 0;  ///< points
  bool operator==(const Font&) const = default;
};

/// The font a document starts with.
inline constexpr Font kBodyFont{{Family::Arial, false}, 11.25F};
/// Of headers and footers; settings for the body do not change it.
inline constexpr Font kHeaderFont{{Family::CourierNew, false}, 14.25F};

inline constexpr const char* FamilyName(Family family) {
  return family == Family::Arial ? "Arial" : "Courier New";
}

}  // namespace norvane::pages
