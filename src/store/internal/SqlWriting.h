#pragma once

#include <string>
#include <string_view>

namespace norvane::store {

/// A name between double quotes, those inside it doubled.
std::string QuotedName(std::string_view name);

}  // namespace norvane::store
