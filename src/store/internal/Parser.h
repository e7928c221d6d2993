#pragma once

#include <string_view>

#include "store/internal/Lexer.h"
#include "store/internal/Syntax.h"

namespace norvane::store {

/// Reads one statement of the store's dialect. The result points into `statement`.
/// Raises -2147217900 with the text that fits, -2147217908 for an empty statement.
syntax::Statement Parse(const Lexed& lexed, std::string_view statement);

}  // namespace norvane::store
