#pragma once

#include "forms/DatePair.h"
#include "reports/ReportForm.h"

namespace norvane {

/// A report over a period. Each date is a masked box with a picker over it; the picker writes into the box and never
/// the other way round. After typing the two may differ: each report says which of them it reads.
class PeriodReport : public VSregistryReport {
 public:
  MaskedBox txtBegDate{*this, "txtBegDate"};
  DatePicker DTbegdate{*this, "DTbegdate"};
  MaskedBox txtEndDate{*this, "txtEndDate"};
  DatePicker dtEndDate{*this, "dtEndDate"};
  Button btnGo{*this, "btnGo", {.caption = "&Preview"}};

 protected:
  PeriodReport(Program& host, std::string name, std::string caption);

  layout::Node BeginningField(std::string label) { return DateField(std::move(label), txtBegDate, DTbegdate); }
  layout::Node EndingField(std::string label) { return DateField(std::move(label), txtEndDate, dtEndDate); }
  /// Puts the period into both halves of its dates.
  void SetPeriod(Date beginning, Date ending);

 private:
  virtual void btnGo_Click() = 0;
};

}  // namespace norvane
