#pragma once

#include <cstdint>
#include <string>

#include "core/Currency.h"
#include "core/Date.h"

/// How values are written into a statement: in United States form, whatever the machine's.
namespace norvane::sql {

std::string Text(std::int32_t value);
std::string Text(double value);
std::string Text(Currency value);
/// The short date between hash signs.
std::string Text(Date value);
/// The word True or False.
std::string Text(bool value);
std::string Text(const char*) = delete;

}  // namespace norvane::sql
