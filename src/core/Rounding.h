#pragma once

#include <cstdint>

#include "core/Currency.h"

namespace norvane {

// To whole numbers, half to even. Raise 6 out of range.

std::int32_t RoundToLong(double value);
std::int32_t RoundToLong(Currency value);
std::int16_t RoundToInteger(double value);
std::int16_t RoundToInteger(Currency value);

}  // namespace norvane
