#include "store/internal/SqlFunctions.h"

#include <string>

#include "core/TextFolding.h"
#include "core/UnitedStates.h"
#include "core/Val.h"
#include "store/FieldType.h"
#include "store/internal/Sqlite.h"

namespace norvane::store {
namespace {

std::string_view TextOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

bool IsNull(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_NULL;
}

void ReturnText(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void Fold(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return;
  auto& buffer = *static_cast<std::string*>(sqlite3_user_data(context));
  FoldKey(TextOf(arguments[0]), buffer);
  ReturnText(context, buffer);
}

void ValOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!IsNull(arguments[0])) sqlite3_result_double(context, Val(TextOf(arguments[0])));
}

void Like(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  sqlite3_result_int(context, MatchesPattern(TextOf(arguments[0]), TextOf(arguments[1])));
}

Value ValueOf(sqlite3_value* value, FieldType type) {
  switch (type) {
    case FieldType::Double:
      return sqlite3_value_double(value);
    case FieldType::Currency:
      return Currency::FromTenThousandths(sqlite3_value_int64(value));
    case FieldType::Date:
      return Date(sqlite3_value_double(value));
    case FieldType::Boolean:
      return sqlite3_value_int(value) != 0;
    default:
      return std::string(TextOf(value));
  }
}

void DefaultText(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return;
  const auto type = static_cast<FieldType>(sqlite3_value_int(arguments[1]));
  try {
    ReturnText(context, UnitedStates().ToText(ValueOf(arguments[0], type)));
  } catch (const RuntimeError&) {  // a day that no calendar has
    sqlite3_result_null(context);
  }
}

}  // namespace

void AddSqlFunctions(sqlite3* database) {
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  sqlite3_create_function_v2(database, kFoldFunction, 1, kFlags, new std::string, Fold, nullptr, nullptr,
                             [](void* buffer) { delete static_cast<std::string*>(buffer); });
  sqlite3_create_function(database, kValFunction, 1, kFlags, nullptr, ValOf, nullptr, nullptr);
  sqlite3_create_function(database, kLikeFunction, 2, kFlags, nullptr, Like, nullptr, nullptr);
  sqlite3_create_function(database, kTextFunction, 2, kFlags, nullptr, DefaultText, nullptr, nullptr);
}

}  // namespace norvane::store
