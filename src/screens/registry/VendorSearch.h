#pragma once

#include "forms/Form.h"

namespace norvane {

/// A picker of vendors. It writes the vendor into the row of the payments screen that RowSelected names; no screen
/// opens it.
class VendorSearch : public Form {
 public:
  static constexpr const char* kName = screen::kVendorSearch;
  explicit VendorSearch(Program& program);

  /// The columns of VendorList.
  enum VendorColumn { kCompany, kVendorNum };

  Grid VendorList{*this, "VendorList", GridKind::List};
  Button btnOK{*this, "btnOK", {.caption = "&OK", .isDefault = true}};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void btnOK_Click();
};

}  // namespace norvane
