#include "store/Command.h"

#include <algorithm>

#include "core/Characters.h"
#include "store/internal/StoreError.h"

namespace norvane {

void Command::AppendParameter(std::string name, ParameterType type, int size) {
  parameters_.push_back({std::move(name), type, size});
}

Parameter& Command::Parameters(std::string_view name) {
  const auto found = std::find_if(parameters_.begin(), parameters_.end(),
                                  [&](const Parameter& each) { return EqualNoCase(each.name, name); });
  if (found == parameters_.end()) throw store::error::ItemNotFound();
  return *found;
}

void Command::Execute() {
  if (!connection_) throw store::error::ConnectionInvalid();
  throw store::error::NoServer();
}

}  // namespace norvane
