#pragma once

#include <string>

namespace norvane {

class Program;

/// For a file of the application's folder that can't be repaired: asks whether to save what can be read, and reports
/// what came over. The damaged file is kept beside it under a name with the date.
void OfferRescue(Program& program, const std::string& fileName);

}  // namespace norvane
