#pragma once

#include <cstdint>
#include <string>

#include "forms/Form.h"
#include "screens/clients/ClientShown.h"

namespace norvane {

/// All fields of one client on three tabs; also where a new client is entered.
class Profile : public Form, public ClientScreen {
 public:
  static constexpr const char* kName = screen::kProfile;
  explicit Profile(Program& program);

  bool Shows(std::int32_t custNum) const override { return NumberShown() == custNum; }

  Button btnSave{*this, "btnSave", {.toolTip = "Save Client", .icon = "save"}};
  Button btnDelete{*this, "btnDelete", {.toolTip = "Delete Client", .icon = "delete"}};
  Button btnNewInvoice{*this, "btnNewInvoice", {.toolTip = "Enter new invoice for this client", .icon = "invoice-new"}};
  Button btnNewCustomer{*this, "btnNewCustomer", {.toolTip = "Enter New Client", .icon = "client-new"}};
  Button btnExit{*this, "btnExit", {.toolTip = "Exit client profile", .icon = "exit"}};
  Label Label31{*this, "Label31", "Balance Due:"};
  Label lblBalDue{*this, "lblBalDue"};
  Label lblSaved{*this, "lblSaved"};
  TabControl SSTab1{*this, "SSTab1"};

  // The tab "Client".
  Label lblCustNum{*this, "lblCustNum"};
  TextBox txtFname{*this, "txtFname"};
  TextBox txtMname{*this, "txtMname", {.characters = 14}};
  TextBox txtLname{*this, "txtLname"};
  TextBox txtCompany{*this, "txtCompany"};
  TextBox txtAddress{*this, "txtAddress", {.characters = 40}};
  TextBox txtAddress2{*this, "txtAddress2", {.characters = 40}};
  TextBox txtCity{*this, "txtCity"};
  TextBox txtState{*this, "txtState", {.characters = 4}};
  TextBox txtZipCode{*this, "txtZipCode", {.characters = 10}};
  TextBox txtHomePhone{*this, "txtHomePhone"};
  TextBox txtCellPhone{*this, "txtCellPhone"};
  TextBox txtWorkPhone{*this, "txtWorkPhone"};
  TextBox txtFax{*this, "txtFax"};
  TextBox txtEmail{*this, "txtEmail"};
  TextBox txtWebPage{*this, "txtWebPage"};

  // The tab "Billing".
  TextBox txtBillFname{*this, "txtBillFname"};
  TextBox txtBillMName{*this, "txtBillMName", {.characters = 14}};
  TextBox txtBillLname{*this, "txtBillLname"};
  TextBox txtBillAddress{*this, "txtBillAddress", {.characters = 40}};
  TextBox txtBillAddress2{*this, "txtBillAddress2", {.characters = 40}};
  TextBox txtBillCity{*this, "txtBillCity"};
  TextBox txtBillState{*this, "txtBillState", {.characters = 4}};
  TextBox TxtBillZipCode{*this, "TxtBillZipCode", {.characters = 10}};
  TextBox txtBillHomePHone{*this, "txtBillHomePHone"};
  TextBox txtBillCellPhone{*this, "txtBillCellPhone"};
  TextBox txtBillWorkPhone{*this, "txtBillWorkPhone"};
  TextBox txtBillFax{*this, "txtBillFax"};
  TextBox txtBillEmail{*this, "txtBillEmail"};
  TextBox txtBillWebPage{*this, "txtBillWebPage"};
  TextBox txtCard1{*this, "txtCard1"};
  ComboBox cmbPmtType1{*this, "cmbPmtType1"};
  TextBox txtExpDate1{*this, "txtExpDate1", {.characters = 10}};
  TextBox txtCard2{*this, "txtCard2"};
  ComboBox cmbPmtType2{*this, "cmbPmtType2"};
  TextBox txtExpDate2{*this, "txtExpDate2", {.characters = 10}};
  TextBox txtDiscount{*this, "txtDiscount", {.characters = 8, .rightAligned = true, .content = TextContent::Number}};
  TextBox txtPOnum{*this, "txtPOnum"};
  Button btnSame{*this, "btnSame", {.caption = "Same as &Client", .toolTip = kCopyClient}};
  Label lblBillEmpty{*this, "lblBillEmpty", kEmptyAddress};

  // The tab "Shipping".
  TextBox txtShippingFname{*this, "txtShippingFname"};
  TextBox txtShippingMname{*this, "txtShippingMname", {.characters = 14}};
  TextBox txtshippingLname{*this, "txtshippingLname"};
  TextBox txtShippingAddress{*this, "txtShippingAddress", {.characters = 40}};
  TextBox txtShippingAddress2{*this, "txtShippingAddress2", {.characters = 40}};
  TextBox txtShippingCity{*this, "txtShippingCity"};
  TextBox txtShippingState{*this, "txtShippingState", {.characters = 4}};
  TextBox txtShippingZipCode{*this, "txtShippingZipCode", {.characters = 10}};
  TextBox txtShippingHomePhone{*this, "txtShippingHomePhone"};
  TextBox txtShippingCelPhone{*this, "txtShippingCelPhone"};
  TextBox txtShippingWorkPhone{*this, "txtShippingWorkPhone"};
  OptionButton OptCust{*this, "OptCust", "Client", "Same as"};
  OptionButton OptBilling{*this, "OptBilling", "Billing", "Same as"};
  Button Command1{*this, "Command1", {.caption = " &Client", .toolTip = kCopyClient}};
  Button Command2{*this, "Command2", {.caption = " &Billing", .toolTip = kCopyBilling}};
  Label lblShipEmpty{*this, "lblShipEmpty", kEmptyAddress};

 private:
  static constexpr const char* kCopyClient = "Copy name, address and phones from the Client tab";
  static constexpr const char* kCopyBilling = "Copy name, address and phones from the Billing tab";
  static constexpr const char* kEmptyAddress = "Invoices print this address, which is empty yet.";

  layout::Node ClientTab();
  layout::Node BillingTab();
  layout::Node ShippingTab();
  void WireChanges();

  void Form_Load() override;
  void ShowBalance();
  void SetForm();
  void ClearForm();
  void AddPaymentTypes();
  std::int32_t NumberShown() const;
  std::string NameShown() const;

  void btnSave_Click();
  bool Save();
  void TakeFromControls();
  void ShowNotice();
  void ShowSaved(bool saved);
  void ShowEmptyAddresses();
  void Touched();

  Answer OfferToSave();
  bool SavedForInvoice();
  void btnExit_Click();
  void btnNewCustomer_Click();
  void btnNewInvoice_Click();
  void btnDelete_Click();

  void btnSame_Click();
  void Command1_Click();
  void Command2_Click();
  void SetShippingInfo();

  void Form_Unload() override;

  bool Changed = false;          ///< by the user or by code since the last load or save
  ClientShown client_;           ///< as it was read or saved last
  std::string notes_;            ///< of the client read; they have no box
  bool numberIsUnsaved_ = true;  ///< the number shown belongs to no row yet
};

}  // namespace norvane
