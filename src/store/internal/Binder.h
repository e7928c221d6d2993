#pragma once

#include <sqlite3.h>

#include "core/Value.h"
#include "store/internal/Translator.h"

namespace norvane::store {

/// Puts a statement's literals into the parameters of its translation. Raises -2147217913 for a text that is no value
/// of its column's type, 6 for a number out of the type's range.
void BindLiterals(sqlite3_stmt* statement, const std::vector<Binding>& bindings, const std::vector<Literal>& literals);

/// Puts a field's value into a parameter, as it is kept in a column of its type.
void BindValue(sqlite3_stmt* statement, int parameter, const Value& value);

}  // namespace norvane::store
