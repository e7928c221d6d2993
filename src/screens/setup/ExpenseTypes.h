#pragma once

#include "screens/setup/TypeList.h"

namespace norvane {

/// The expense types that registry entries choose from.
class ExpenseTypes : public TypeList {
 public:
  static constexpr const char* kName = screen::kExpenseTypes;
  explicit ExpenseTypes(Program& program);

 private:
  void btnExit_Click() override;
};

}  // namespace norvane
