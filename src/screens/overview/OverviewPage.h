#pragma once

#include <functional>
#include <string>
#include <vector>

#include "data/Standing.h"
#include "pages/DocumentBuilder.h"

namespace norvane {

/// A figure of the overview, and what it opens: nothing where there is no list of it.
struct Figure {
  std::string name, value;
  std::function<void()> open = nullptr;
};

inline constexpr std::size_t kFiguresOnTop = 4;
inline constexpr std::size_t kAges = 5;

/// Writes the page of the overview. The figures are those on top, the months, the ages, the best clients, the best
/// items and the rest, in this order; the place of each opens the target that is its index.
void WriteOverview(pages::DocumentBuilder& page, const std::vector<Figure>& figures, const Standing& standing,
                   const std::string& company, const std::string& today);

}  // namespace norvane
