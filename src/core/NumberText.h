#pragma once

#include <string>
#include <string_view>

#include "core/Decimal.h"
#include "core/RegionalSettings.h"

namespace norvane {

/// The default text of a number: plain, and of a Double from 1E+15 up or below 0.0001 in the exponent form.
std::string NumberText(double value, std::string_view decimalPoint);
std::string NumberText(Currency value, std::string_view decimalPoint);

/// The currency format: two decimals, ties away from zero on the digits.
std::string MoneyText(Decimal amount, const RegionalSettings& settings);

}  // namespace norvane
