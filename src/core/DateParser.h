#pragma once

#include <optional>
#include <string_view>

#include "core/Clock.h"
#include "core/RegionalSettings.h"

namespace norvane {

/// Reads a whole text as a date, a time or both. Numbers are taken in the order of the settings, and with day and month
/// changed where that cannot be a date; year first is year-month-day everywhere. Without a year it is the clock's.
/// Nothing if there is no such day or time.
std::optional<Date> ParseDate(std::string_view text, const RegionalSettings& settings, const Clock& clock);

}  // namespace norvane
