#pragma once

#include <cstdint>
#include <string>

#include "core/Date.h"
#include "screens/clients/ClientShown.h"

namespace norvane {

/// What one screen hands to the next of an invoice.
struct InvoiceShown {
  std::int32_t number = 0;  ///< 0 for a new one
  Date date;
  std::string description;
  ClientShown client;
};

InvoiceShown SelectedInvoice(const Globals& globals);
/// Selects an invoice, and its client, for all screens.
void SelectInvoice(Program& program, const InvoiceShown& invoice);

}  // namespace norvane
