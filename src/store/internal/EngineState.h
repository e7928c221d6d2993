#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>

#include "store/internal/Catalog.h"
#include "store/internal/FileLock.h"
#include "store/internal/Translator.h"

namespace norvane::store {

/// What one state of a file's schema says, and the statements translated against it.
struct FileKnowledge {
  std::int32_t schemaVersion = 0;
  Catalog catalog;
  std::unordered_map<std::string, std::shared_ptr<const Translation>> translations;  ///< by the statement's fingerprint
};

/// One file as this program uses it.
struct KnownFile {
  std::shared_ptr<FileKnowledge> knowledge;  ///< nothing until a connection has been open
  int connections = 0;
  FileLock lock;  ///< shared by all connections
  bool heldAlone = false;
};

struct EngineState {
  std::map<FileIdentity, KnownFile> files;
  std::chrono::milliseconds patience{2000};
};

/// A connection's part in the use of a file: counted, and seen by other instances of the program.
class Participation {
 public:
  /// Raises -2147467259 if the file is held alone. `name` is what the error's text shows.
  Participation(EngineState& engine, const std::filesystem::path& file, const std::string& name);
  ~Participation();
  Participation(const Participation&) = delete;
  Participation& operator=(const Participation&) = delete;

  KnownFile& File() const { return file_; }

 private:
  KnownFile& file_;
};

}  // namespace norvane::store
