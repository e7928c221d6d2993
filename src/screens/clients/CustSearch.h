#pragma once

#include "forms/Form.h"

namespace norvane {

/// Picks the client of a payment, out of the list that the main screen read last.
class CustSearch : public Form {
 public:
  static constexpr const char* kName = screen::kCustSearch;
  explicit CustSearch(Program& program);

  /// The columns of CustList.
  enum ClientColumn { kClient, kCustNum };

  Grid CustList{*this, "CustList", GridKind::List};
  Button btnOK{*this, "btnOK", {.caption = "&OK", .isDefault = true}};
  Button btnCancel{*this, "btnCancel", {.caption = "&Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void btnOK_Click();

  int row_ = 0;  ///< the payment that asks for its client
};

}  // namespace norvane
