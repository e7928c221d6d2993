#pragma once

#include "reports/ReportForm.h"

namespace norvane {

/// Prints the payments of the client CurCustNum from ReceiptDate on, with the balance after each.
class PrtReceipt : public VSInvoiceReport {
 public:
  static constexpr const char* kName = screen::kPrtReceipt;
  explicit PrtReceipt(Program& program);

 private:
  void Form_Load() override;
};

}  // namespace norvane
