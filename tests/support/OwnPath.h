#pragma once

#include <filesystem>
#include <string>
#include <unistd.h>

namespace norvane::test {

/// A path in the temporary folder that no other test running at the same time uses.
inline std::filesystem::path OwnPath(const std::string& name) {
  return std::filesystem::temp_directory_path() / ("norvane-" + std::to_string(getpid()) + "-" + name);
}

}  // namespace norvane::test
