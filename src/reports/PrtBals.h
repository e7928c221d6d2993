#pragma once

#include "reports/ReportForm.h"

namespace norvane {

/// Lists all clients with their balances and a grand total.
class PrtBals : public VSInvoiceReport {
 public:
  static constexpr const char* kName = screen::kPrtBals;
  explicit PrtBals(Program& program);

 private:
  void Form_Load() override;
};

}  // namespace norvane
