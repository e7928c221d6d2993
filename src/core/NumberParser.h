#pragma once

#include <optional>
#include <string_view>

#include "core/Decimal.h"
#include "core/RegionalSettings.h"

namespace norvane {

/// Reads a whole text as a number: whitespace around it, one sign before or after, one currency symbol, parentheses for
/// negative, thousands separators left of the point, an exponent. Nothing if it is anything else.
std::optional<Decimal> ParseNumber(std::string_view text, const RegionalSettings& settings);

/// The leading number of a text, 0 if there is none, as `Val` reads it but with the regional signs where the decimal
/// sign is no point: "1.234,50 €" is 1234.5. Never fails.
double ParseLeadingNumber(std::string_view text, const RegionalSettings& settings);

}  // namespace norvane
