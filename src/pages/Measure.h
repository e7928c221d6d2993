#pragma once

#include <string_view>

namespace norvane::pages {

/// A measure given as text with its unit, as in "0.5in" or ".25in", in points. Raises 5 if it is none or negative.
double PointsOf(std::string_view measure);

/// A plain number such as "10". Raises 5 if it is none.
double NumberOf(std::string_view text);

}  // namespace norvane::pages
