#pragma once

#include "forms/Form.h"

namespace norvane {

/// The calendar beside a date cell of the payments or of the registry. The day picked goes into the current row of
/// the screen that opened it.
class PaymentDate : public Form {
 public:
  static constexpr const char* kName = screen::kPaymentDate;
  // What PayDateCaller says of who opens it.
  static constexpr const char* kForReceipts = "Receipts";
  static constexpr const char* kForRegistry = "Payments";
  explicit PaymentDate(Program& program);

  MonthView PayDate{*this, "PayDate"};
  Button Command1{*this, "Command1", {.caption = "&Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void PlaceBeside(const Form& caller, const Grid& grid);
  void PayDate_DateClick(Date date);
  void PayDate_KeyDown(int keyCode);
};

}  // namespace norvane
