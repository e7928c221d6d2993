#include "core/MaskText.h"

#include "core/DateText.h"
#include "core/UnitedStates.h"

namespace norvane {

std::string PaddedText(std::int32_t value, int digits) {
  std::string text = std::to_string(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  const std::size_t wanted = static_cast<std::size_t>(digits) + sign;
  if (text.size() < wanted) text.insert(sign, wanted - text.size(), '0');
  return text;
}

std::string MaskedDateText(Date date) {
  return FormatDate(date, "MM/dd/yy", UnitedStates().Settings());
}

}  // namespace norvane
