#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/DataObject.h"

namespace norvane {

/// The texts entered so far, each once and in order, for completing what the user types. Where they can't be read there
/// are none, and nothing is reported.
class UsedTexts : public DataObject {
 public:
  explicit UsedTexts(Workspace& workspace);

  std::vector<std::string> Terms();
  std::vector<std::string> SalesReps();
  std::vector<std::string> Cities();

 private:
  std::vector<std::string> TextsOf(std::string_view column, std::string_view statement);
};

}  // namespace norvane
