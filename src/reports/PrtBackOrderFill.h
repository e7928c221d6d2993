#pragma once

#include "reports/ReportForm.h"

namespace norvane {

/// The picking list: the lines that are marked in BackOrderFill.
class PrtBackOrderFill : public VSregistryReport {
 public:
  static constexpr const char* kName = screen::kPrtBackOrderFill;
  explicit PrtBackOrderFill(Program& program);

  /// Whether the list holds all of the lines.
  bool IsComplete() const { return complete_; }

 private:
  void Form_Load() override;

  bool complete_ = false;
};

}  // namespace norvane
