#pragma once

#include <compare>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <unordered_map>

#include "store/Engine.h"
#include "store/internal/Catalog.h"
#include "store/internal/Translator.h"

namespace norvane {

/// A file by what it is, whatever name or link it is reached by.
struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;
  auto operator<=>(const FileIdentity&) const = default;

  /// Nothing if there is no such file.
  static std::optional<FileIdentity> Of(const std::filesystem::path& file);
};

/// What one state of a file's schema says, and the statements translated against it.
struct FileKnowledge {
  std::int32_t schemaVersion = 0;
  Catalog catalog;
  std::unordered_map<std::string, std::shared_ptr<const Translation>> translations;  ///< by the statement's shape
};

struct Engine::State {
  std::map<FileIdentity, std::shared_ptr<FileKnowledge>> knowledge;
  std::map<FileIdentity, int> openConnections;
};

}  // namespace norvane
