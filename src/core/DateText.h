#pragma once

#include <string>
#include <string_view>

#include "core/Date.h"
#include "core/RegionalSettings.h"

namespace norvane {

/// Writes a date in a format of d dd ddd dddd M MM MMM MMMM yy yyyy h hh H HH mm ss AMPM; text between apostrophes
/// and everything else is literal. The time is rounded to the second. Raises 6 for what is no date.
std::string FormatDate(Date date, std::string_view format, const RegionalSettings& settings);

/// The default text: the short date, followed by the time if there is one; of day 0 the time alone.
std::string DateText(Date date, const RegionalSettings& settings);

}  // namespace norvane
