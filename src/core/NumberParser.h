#pragma once

#include <optional>
#include <string_view>

#include "core/Decimal.h"
#include "core/RegionalSettings.h"

namespace norvane {

/// Reads a whole text as a number: blanks around it, one sign before or after, one currency symbol, parentheses for
/// negative, thousands separators left of the point, an exponent. Nothing if it is anything else.
std::optional<Decimal> ParseNumber(std::string_view text, const RegionalSettings& settings);

}  // namespace norvane
