#include "screens/stock/CategoryItem.h"

#include "core/Conversions.h"
#include "core/MaskText.h"

namespace norvane {

std::string CategoryItem(const Recordset& categories) {
  return PaddedText(categories.Long("catnum"), 3) + " " + categories.Text("description");
}

void OfferCategories(ComboBox& combo, Recordset& categories) {
  for (categories.MoveFirst(); !categories.Eof(); categories.MoveNext()) combo.AddItem(CategoryItem(categories));
  combo.SetText(combo.Items().front());
}

}  // namespace norvane
