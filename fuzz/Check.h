#pragma once

#include <cstdlib>

/// Stops the fuzzer at an input that breaks a promise.
inline void Check(bool promise) {
  if (!promise) std::abort();
}
