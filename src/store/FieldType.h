#pragma once

#include <string>

namespace norvane {

enum class FieldType { Long = 3, Double = 5, Currency = 6, Date = 7, Boolean = 11, Text = 200 };

/// One column of a result.
struct ResultColumn {
  std::string name;
  FieldType type = FieldType::Text;
  int size = 0;  ///< the most characters an appended text field takes, 0 for any number
};

}  // namespace norvane
