#pragma once

#include <cstdint>
#include <string>

#include "forms/Form.h"

namespace norvane {

class Client;

/// The criteria of billing statements: which clients, and how many days back.
class Billing : public Form {
 public:
  static constexpr const char* kName = screen::kBilling;
  explicit Billing(Program& host);

  enum Column { kCustNum, kFullName, kBalance, kLastDate, kLastAmount };

  Frame Frame1{*this, "Frame1"};
  OptionButton OptAll{*this, "OptAll", "All Clients with Balance"};
  OptionButton OptClient{*this, "OptClient", "Selected Client"};
  Label Label1{*this, "Label1", "Include transactions of previous"};
  TextBox txtDays{*this, "txtDays", {.characters = 5}};
  Label Label2{*this, "Label2", "days."};
  Button btnPrint{*this, "btnPrint", {.caption = "Print", .toolTip = "Print this invoice", .icon = "print"}};
  Grid CustList2{*this, "CustList2", GridKind::List};

  /// The number at the beginning of txtDays. Raises 6 beyond 16 bits.
  std::int16_t Days() const;

 private:
  void Form_Load() override;
  void ListClients(Client& client);
  void btnPrint_Click();
};

}  // namespace norvane
