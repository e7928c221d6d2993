#include "data/FillShares.h"

#include <algorithm>

#include "core/Val.h"
#include "store/Recordset.h"

namespace norvane {

FillShares::FillShares(Recordset& lines, const Conversions& convert) : convert_(convert) {
  if (lines.RecordCount() > 0) lines.MoveFirst();
  for (; !lines.Eof(); lines.MoveNext()) {
    const auto found = left_.try_emplace(lines.Long("ItemNum"), lines.Long("InStock")).first;
    found->second += UnitsOf(lines, convert);
  }
}

double FillShares::UnitsOf(const Recordset& lines, const Conversions& convert) {
  return -Val(convert.ToText(lines.Field("BackOrderQty")));
}

bool FillShares::Fills(const Recordset& lines) {
  double& left = left_[lines.Long("ItemNum")];
  const double units = UnitsOf(lines, convert_);
  const bool fills = left >= units;
  left = std::max(0.0, left - units);
  return fills;
}

}  // namespace norvane
