#include "store/internal/SqlWriting.h"

namespace norvane::store {

std::string Concat(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

std::string QuotedName(std::string_view name) {
  std::string quoted(1, '"');
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  quoted += '"';
  return quoted;
}

}  // namespace norvane::store
