#pragma once

#include <cstdint>
#include <string>

#include "data/FindTable.h"

namespace norvane {

class Program;

/// A record to go to.
struct Place {
  FindKind kind;
  std::int32_t number;
  std::string name;  ///< of a vendor its company, by which vendors are opened
};

/// Opens the screen of a record on that record. What is open there with unsaved changes asks first. False if the user
/// keeps that, or if the record has gone, which is said. Reports no errors itself.
bool GoTo(Program& program, const Place& place);

/// An income statement leaves no shared invoice, which other screens work with: makes one if there is none.
void ProvideInvoice(Program& program);

}  // namespace norvane
