#include "store/internal/SqlWriting.h"

namespace norvane::store {

std::string QuotedName(std::string_view name) {
  std::string quoted(1, '"');
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  quoted += '"';
  return quoted;
}

}  // namespace norvane::store
