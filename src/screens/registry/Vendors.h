#pragma once

#include <string>

#include "forms/Form.h"

namespace norvane {

/// One vendor at a time in text boxes, found by company name. The boxes show the vendor whose number is shown, and that
/// one is saved or deleted.
class Vendors : public Form {
 public:
  static constexpr const char* kName = screen::kVendors;
  explicit Vendors(Program& program);

  ComboBox cmbVendors{*this, "cmbVendors", ComboStyle::Search, 32};
  Button btnNewVendor{*this, "btnNewVendor", {.toolTip = "New Vendor", .icon = "add"}};
  Button btnSave{*this, "btnSave", {.toolTip = "Save Vendor", .icon = "save"}};
  Button btnDelete{*this, "btnDelete", {.toolTip = "Delete Vendor", .icon = "delete"}};
  Button btnPayments{*this, "btnPayments", {.caption = "Payment/Deposit Registry", .icon = "registry"}};
  Button btnExit{*this, "btnExit", {.toolTip = "Exit Vendors", .icon = "exit"}};
  Label lblVendorNum{*this, "lblVendorNum"};
  TextBox txtCompany{*this, "txtCompany", {.characters = 40}};
  TextBox txtAddress{*this, "txtAddress", {.characters = 40}};
  TextBox txtAddress2{*this, "txtAddress2", {.characters = 40}};
  TextBox txtCity{*this, "txtCity"};
  TextBox txtState{*this, "txtState", {.characters = 4}};
  TextBox txtZipCode{*this, "txtZipCode", {.characters = 10}};
  TextBox txtPhone{*this, "txtPhone"};
  TextBox txtCellPhone{*this, "txtCellPhone"};
  TextBox txtFax{*this, "txtFax"};
  TextBox txtEmail{*this, "txtEmail"};
  TextBox txtWebPage{*this, "txtWebPage"};
  TextBox txtPOnum{*this, "txtPOnum"};
  TextBox txtDiscount{*this, "txtDiscount", {.characters = 8, .rightAligned = true}};
  TextBox txtNotes{*this, "txtNotes", {.characters = 40}};

  /// Shows a vendor as a pick from the list does. False if the list doesn't have it.
  bool PickVendor(const std::string& company);

 private:
  void Form_Load() override;
  void MakeVendorList();
  void GetVendorDetails(const std::string& vendorName);
  void ClearForm();
  bool HasVendors() const { return !cmbVendors.Items().empty(); }

  void cmbVendors_Click();
  void btnNewVendor_Click();
  bool MayLeave();
  void btnSave_Click();
  void SaveVendor();
  void btnDelete_Click();
  void DeleteVendor();
  void btnPayments_Click();
  void btnExit_Click();

  bool VendorChanged = false;  ///< by the user or by code since the last load or save
  bool filling_ = false;       ///< the list is being filled, which is no pick
  bool stored_ = false;        ///< the last save reached the table
  std::string companyRead_;    ///< the company's name in the table, empty for a new vendor
};

}  // namespace norvane
