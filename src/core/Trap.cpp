#include "core/Trap.h"

namespace norvane {

std::string ReportText(std::string_view label, const RuntimeError& error, std::string_view closing) {
  std::string text(label);
  text += std::to_string(error.Number());
  text += ' ';
  text += error.what();
  return text += closing;
}

}  // namespace norvane
