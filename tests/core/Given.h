#pragma once

#include <gtest/gtest.h>

#include "core/RuntimeError.h"
#include "support/Machines.h"

namespace norvane {

/// The number of the error that `body` raises, 0 if none.
template <class Body>
int ErrorOf(Body&& body) {
  try {
    body();
    return 0;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

}  // namespace norvane
