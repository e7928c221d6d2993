#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace norvane::store {

/// The parts one behind the other.
std::string Concat(std::initializer_list<std::string_view> parts);

/// A name between double quotes, those inside it doubled.
std::string QuotedName(std::string_view name);

}  // namespace norvane::store
