#pragma once

#include "screens/setup/TypeList.h"

namespace norvane {

/// The payment types that clients and their payments choose from.
class PaymentCategories : public TypeList {
 public:
  static constexpr const char* kName = screen::kPaymentCategories;
  explicit PaymentCategories(Program& program);
};

}  // namespace norvane
