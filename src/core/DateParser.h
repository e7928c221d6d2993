#pragma once

#include <optional>
#include <string_view>

#include "core/Date.h"
#include "core/RegionalSettings.h"

namespace norvane {

/// Reads a whole text as a date, a time or both. Numbers are taken in the order of the settings, and with day and month
/// changed where that cannot be a date; year first is year-month-day everywhere. Without a year it is `thisYear`.
/// Nothing if there is no such day or time.
std::optional<Date> ParseDate(std::string_view text, const RegionalSettings& settings, int thisYear);

}  // namespace norvane
