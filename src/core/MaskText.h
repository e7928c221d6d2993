#pragma once

#include <cstdint>
#include <string>

#include "core/Date.h"

namespace norvane {

/// A whole number with leading zeros up to `digits`: 7 of 3 is "007".
std::string PaddedText(std::int32_t value, int digits);
/// Two-digit month, day and year with slashes, as the masked boxes hold them: "11/22/26".
std::string MaskedDateText(Date date);

}  // namespace norvane
