#pragma once

#include <string>

#include "core/Object.h"
#include "reports/ReportForm.h"

namespace norvane {

class Recordset;
class ReportTable;

/// Prints ledger entries since a date: the payments to a vendor or to all, those of a category, or the deposits. Opens
/// on what the registry's cursor has left in LedgerField and LedgerFieldValue.
class PrtRegistry : public VSregistryReport {
 public:
  static constexpr const char* kName = screen::kPrtRegistry;
  explicit PrtRegistry(Program& program);

  Frame Frame1{*this, "Frame1", "Print"};
  OptionButton OptAll{*this, "OptAll", "All"};
  OptionButton OptVendor{*this, "OptVendor", "Vendor"};
  OptionButton OptCategory{*this, "OptCategory", "Category"};
  OptionButton OptDeposits{*this, "OptDeposits", "Deposits"};
  ComboBox CmbPrintCrit{*this, "CmbPrintCrit"};
  MaskedBox txtSinceDate{*this, "txtSinceDate"};
  DatePicker DTPicker1{*this, "DTPicker1"};
  Button btnGo{*this, "btnGo", {.caption = "&Preview"}};

 private:
  void Form_Load() override;
  void SelectOption();
  void OptAll_Click();
  void OptVendor_Click();
  void OptCategory_Click();
  void OptDeposits_Click();
  void Offer(const char* field);
  void GetVendors();
  void GetCategories();
  void ListChoices(const Object<Recordset>& choices, const char* field);
  void btnGo_Click();

  void ReadEntries();
  void ShowPreview();
  void VendorPaymentPreview();
  void CategoryPaymentPreview();
  void DepositPreview();
  void StartPayments();
  void StartEntries(const std::string& header);
  template <class AddRow>
  void ListEntries(ReportTable& table, const char* closing, AddRow addRow);
};

}  // namespace norvane
