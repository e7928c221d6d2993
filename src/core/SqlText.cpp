#include "core/Conversions.h"
#include "core/DateText.h"
#include "core/NumberText.h"

namespace norvane {
namespace {

const RegionalSettings& UnitedStates() {
  static const RegionalSettings settings;
  return settings;
}

}  // namespace

std::string PaddedText(std::int32_t value, int digits) {
  std::string text = std::to_string(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  const std::size_t wanted = static_cast<std::size_t>(digits) + sign;
  if (text.size() < wanted) text.insert(sign, wanted - text.size(), '0');
  return text;
}

std::string MaskedDateText(Date date) {
  return FormatDate(date, "MM/dd/yy", UnitedStates());
}

namespace sql {

std::string Text(std::int32_t value) {
  return std::to_string(value);
}
std::string Text(double value) {
  return NumberText(value, UnitedStates().decimalPoint);
}
std::string Text(Currency value) {
  return NumberText(value, UnitedStates().decimalPoint);
}
std::string Text(Date value) {
  return '#' + DateText(value, UnitedStates()) + '#';
}
std::string Text(bool value) {
  return value ? "True" : "False";
}

}  // namespace sql
}  // namespace norvane
