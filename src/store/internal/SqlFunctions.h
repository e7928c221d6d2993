#pragma once

struct sqlite3;

namespace norvane::store {

// What the translator writes and SQLite does not know by itself.

/// A text's sort key.
inline constexpr const char* kFoldFunction = "norvane_fold";
/// The number that a text begins with; of a Null it is Null.
inline constexpr const char* kValFunction = "norvane_val";
/// (text, pattern)
inline constexpr const char* kLikeFunction = "norvane_like";
/// (value, FieldType): the value's default text.
inline constexpr const char* kTextFunction = "norvane_text";

/// Makes them known to an open database.
void AddSqlFunctions(sqlite3* database);

}  // namespace norvane::store
