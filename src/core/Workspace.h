#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <utility>

#include "core/Globals.h"

namespace norvane {

class Clock;
class Conversions;
class Engine;
class Reporter;

/// What every record class works within. Owned by the program.
struct Workspace {
  Globals& globals;
  Engine& engine;      ///< the store
  Reporter& reporter;  ///< where trapped errors go
  const Clock& clock;
  const Conversions& convert;               ///< under the machine's regional settings
  std::filesystem::path applicationFolder;  ///< holds norvane.mdb and norvane.ini
  /// Numbers of rows that a refused save has removed, by table: a screen still shows such a row under its number, so no
  /// other row gets that number while the program runs.
  std::set<std::pair<std::string, std::int32_t>> numbersInUse = {};

  /// The application's folder followed by `name`, as in "norvane.mdb".
  std::filesystem::path File(const char* name) const { return applicationFolder / name; }
};

}  // namespace norvane
