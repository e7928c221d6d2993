#pragma once

#include <string>

namespace norvane {

class Program;

/// A deletion that was cut short leaves invoices and payments of a client that is gone, and lines of such invoices or
/// of an invoice that is gone; a later record of the same number would inherit them. If there are any, says so and
/// offers to remove them. Raises what the store does.
void OfferToRemoveLeftovers(Program& program, const std::string& fileName);

}  // namespace norvane
