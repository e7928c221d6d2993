#pragma once

#include "forms/Form.h"

namespace norvane {

/// The company's own data, and the way to payment types and shipping options.
class frmSetup : public Form {
 public:
  static constexpr const char* kName = screen::kfrmSetup;
  explicit frmSetup(Program& program);

  Frame Frame1{*this, "Frame1", "Company Info"};
  TextBox txtCoName{*this, "txtCoName", {.characters = 40}};
  TextBox txtCoAddress1{*this, "txtCoAddress1", {.characters = 40}};
  TextBox txtCoAddress2{*this, "txtCoAddress2", {.characters = 40}};
  TextBox txtCoCity{*this, "txtCoCity"};
  TextBox txtCoState{*this, "txtCoState", {.characters = 4}};
  TextBox TxtCoZipCode{*this, "TxtCoZipCode", {.characters = 10}};
  TextBox txtCoPhone{*this, "txtCoPhone", {.characters = 16}};
  TextBox txtCoFax{*this, "txtCoFax", {.characters = 16}};
  TextBox txtCoWebSite{*this, "txtCoWebSite", {.characters = 40}};
  TextBox txtCoStateTaxRate{*this, "txtCoStateTaxRate", {.characters = 8, .rightAligned = true}};
  Button btnPayments{*this, "btnPayments", {.caption = "&Payment Terms", .toolTip = "Payment Methods"}};
  Button btnShipping{*this, "btnShipping", {.caption = "&Shipping Types", .toolTip = "Shipping Methods/Prices"}};
  Button btnExit{*this, "btnExit", {.caption = "Save and &Exit", .toolTip = "Save and Exit", .icon = "save"}};

 private:
  void Form_Load() override;
  void btnExit_Click();
  void Save();

  bool SetupChanged = false;
  bool wasRead_ = false;  ///< the boxes hold what is stored
};

}  // namespace norvane
