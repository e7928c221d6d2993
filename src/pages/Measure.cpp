#include "pages/Measure.h"

#include <charconv>
#include <cmath>

#include "core/RuntimeError.h"
#include "pages/Pages.h"

namespace norvane::pages {

double NumberOf(std::string_view text) {
  double number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
  if (error != std::errc() || stop != end || !std::isfinite(number)) Raise(ErrorNumber::InvalidProcedureCall);
  return number;
}

double PointsOf(std::string_view measure) {
  constexpr std::string_view kUnit = "in";
  if (!measure.ends_with(kUnit)) Raise(ErrorNumber::InvalidProcedureCall);
  measure.remove_suffix(kUnit.size());
  const double inches = NumberOf(measure);
  if (inches < 0) Raise(ErrorNumber::InvalidProcedureCall);
  return inches * kPointsPerInch;
}

}  // namespace norvane::pages
