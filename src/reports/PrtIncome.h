#pragma once

#include <string>
#include <vector>

#include "reports/PeriodReport.h"

namespace norvane {

/// The income statement of a period: what was received, and what the ledger shows as paid for each expense type.
class PrtIncome : public PeriodReport {
 public:
  static constexpr const char* kName = screen::kPrtIncome;
  explicit PrtIncome(Program& program);

  Frame Frame1{*this, "Frame1", "Print Income for period"};

 private:
  struct Expense {
    std::string name;
    Currency amount;
  };
  struct Figures {
    Currency TotalSales, Receipts, TotalExpenses;
    std::vector<Expense> expenses;
  };

  void Form_Load() override;
  void btnGo_Click() override;
  Figures ReadFigures();
  void IncomePreview(const Figures& figures);
};

}  // namespace norvane
