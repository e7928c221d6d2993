#pragma once

#include <string_view>

#include "core/Date.h"
#include "forms/Program.h"

namespace norvane {

/// Keeps the windows painted during long work, and shows how far it is: once it takes longer than half a second, in the
/// bar of a notice, if that is open and has one.
class LongWork {
 public:
  explicit LongWork(Program& program) : LongWork(program, 0, {}) {}
  LongWork(Program& program, int steps, std::string_view notice);
  /// To be called after each step.
  void Step();

 private:
  double SecondsSince(Date time) const;
  void ShowBar() const;

  Program& program_;
  std::string_view notice_;
  int steps_;
  int done_ = 0;
  Date start_;
  Date painted_;
};

}  // namespace norvane
