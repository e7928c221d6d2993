#include "screens/CategoryItem.h"

#include "core/Conversions.h"

namespace norvane {

std::string CategoryItem(const Recordset& categories) {
  return PaddedText(categories.Long("catnum"), 3) + " " + categories.Text("description");
}

}  // namespace norvane
