#pragma once

#include <string>

#include "pages/FontMetrics.h"
#include "pages/Pages.h"

namespace norvane::pages {

/// Pages as text, one thing a line, in the order in which they hold it:
///
///     page 2/3
///     text 0.50in 1.75in 11.25pt bold "Bill To:"
///     line 0.50in 3.90in 8.00in 3.90in 0.75pt
///
/// Places are those of the upper left corner; the metrics are those that the pages were laid out with.
std::string PagesText(const Pages& pages, const FontMetrics& metrics);

}  // namespace norvane::pages
