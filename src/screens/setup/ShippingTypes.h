#pragma once

#include <string>

#include "forms/Form.h"
#include "screens/RowEditing.h"

namespace norvane {

/// The shipping options that invoices choose from. Service and weight are the key, so a changed charge replaces the row
/// and a changed service or weight adds a row beside the old one.
class ShippingTypes : public Form {
 public:
  static constexpr const char* kName = screen::kShippingTypes;
  explicit ShippingTypes(Program& program);

  /// The columns of ShippingList.
  enum OptionColumn { kMarker, kService, kWeight, kCharge };

  Grid ShippingList{*this, "ShippingList", GridKind::Editable};
  Button btnNew{*this, "btnNew", {.caption = "&New", .icon = "add"}};
  Button btnDelete{*this, "btnDelete", {.caption = "&Delete", .icon = "delete"}};
  Button btnExit{*this, "btnExit", {.caption = "&Exit", .icon = "exit"}};

 private:
  void Form_Load() override;
  void ShippingList_AfterEdit(int row);
  void ShippingList_Click();
  void StoreRow(std::int32_t row);
  void ReadList();
  void btnDelete_Click();
  void Form_Unload() override;
  bool HasKey(std::int32_t row) const;

  RowEditing rows_;
  std::string SelectedType;
  std::string SelectedOption;
};

}  // namespace norvane
