#include "store/Engine.h"

#include <sys/stat.h>

#include "store/internal/EngineState.h"

namespace norvane {

std::optional<FileIdentity> FileIdentity::Of(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return std::nullopt;
  return FileIdentity{status.st_dev, status.st_ino};
}

Engine::Engine() : state_(std::make_unique<State>()) {}
Engine::~Engine() = default;

int Engine::OpenConnections(const std::filesystem::path& file) const {
  const auto identity = FileIdentity::Of(file);
  if (!identity) return 0;
  const auto found = state_->openConnections.find(*identity);
  return found == state_->openConnections.end() ? 0 : found->second;
}

}  // namespace norvane
