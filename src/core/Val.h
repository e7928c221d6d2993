#pragma once

#include <cstdint>
#include <string_view>

namespace norvane {

/// The leading number of a text, 0 if there is none. Never fails, and knows the point alone as decimal sign.
double Val(std::string_view text);
/// `Val` rounded half to even to a whole number. Raises 6 out of range.
std::int32_t ValLong(std::string_view text);

}  // namespace norvane
