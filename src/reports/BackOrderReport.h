#pragma once

#include "reports/ReportForm.h"

namespace norvane {

/// What the two lists of back orders share: they print the rows that the opener has put into rsBackOrders.
class BackOrderReport : public VSregistryReport {
 public:
  struct Kind {
    const char* name;
    const char* caption;
    const char* title;
    const char* heading;    ///< of the table
    const char* dateField;  ///< shown in its first column
    const char* label;
  };

 protected:
  BackOrderReport(Program& host, const Kind& kind);

 private:
  void Form_Load() override { BackOrderItemsPreview(); }
  void BackOrderItemsPreview();

  const Kind& kind_;
};

/// The lines of invoices that are still to be ordered.
class PrtBackOrders : public BackOrderReport {
 public:
  static constexpr const char* kName = screen::kPrtBackOrders;
  explicit PrtBackOrders(Program& program);

  Button btnOrder{*this, "btnOrder", {.caption = "Set as &Ordered"}};

 private:
  void Form_Resize() override;
};

/// The lines of invoices that are on order.
class PrtBackOrdered : public BackOrderReport {
 public:
  static constexpr const char* kName = screen::kPrtBackOrdered;
  explicit PrtBackOrdered(Program& program);
};

}  // namespace norvane
