#pragma once

#include "reports/Headings.h"
#include "reports/ReportForm.h"

namespace norvane {

class Billing;

/// Prints the statements that `Billing` asks for, each on a page of its own: the balance at the beginning of the
/// period, then invoices and payments with a running balance.
class PrtBilling : public VSInvoiceReport {
 public:
  static constexpr const char* kName = screen::kPrtBilling;
  explicit PrtBilling(Program& program);

 private:
  struct Statement;

  void Form_Load() override;
  void PrintSelectedClient(const Billing& criteria, const CompanyHeading& company);
  void PrintAllClients(const Billing& criteria, const CompanyHeading& company);
  void SelectClient(const Billing& criteria, int row);
  Statement ReadStatement(const Billing& criteria);
  void WriteStatement(const Statement& statement, const CompanyHeading& company);
};

}  // namespace norvane
