#pragma once

#include "forms/Form.h"

namespace norvane {

/// Kinds of register entries to choose from. What an entry is called is typed in the register, so no button but Cancel
/// has an effect.
class LedgerTypes : public Form {
 public:
  static constexpr const char* kName = screen::kLedgerTypes;
  explicit LedgerTypes(Program& program);

  Button btnNextCheckNum{*this, "btnNextCheckNum", {.caption = "&Next Check #"}};
  Button btnDeposit{*this, "btnDeposit", {.caption = "&Deposit"}};
  Button btnATM{*this, "btnATM", {.caption = "&ATM"}};
  Button btnTransfer{*this, "btnTransfer", {.caption = "&Transfer"}};
  Button btnOther{*this, "btnOther", {.caption = "Other"}};
  TextBox txtOther{*this, "txtOther"};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .isCancel = true}};
};

}  // namespace norvane
