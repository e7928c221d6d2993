#include "core/SqlText.h"

#include "core/UnitedStates.h"

namespace norvane::sql {

std::string Text(std::int32_t value) {
  return UnitedStates().ToText(value);
}
std::string Text(double value) {
  return UnitedStates().ToText(value);
}
std::string Text(Currency value) {
  return UnitedStates().ToText(value);
}
std::string Text(Date value) {
  return '#' + UnitedStates().ToText(value) + '#';
}
std::string Text(bool value) {
  return UnitedStates().ToText(value);
}

}  // namespace norvane::sql
