#include "store/Engine.h"

#include "store/internal/EngineState.h"

namespace norvane {

namespace {

class FileHeldAlone final : public SoleUse {
 public:
  explicit FileHeldAlone(store::KnownFile& file) : file_(file) { file_.heldAlone = true; }
  ~FileHeldAlone() override { file_.heldAlone = false; }
  FileHeldAlone(const FileHeldAlone&) = delete;
  FileHeldAlone& operator=(const FileHeldAlone&) = delete;

  bool Take(const std::filesystem::path& file, std::chrono::milliseconds patience) {
    return lock_.Take(file, store::FileLock::Kind::Sole, patience);
  }

 private:
  store::KnownFile& file_;
  store::FileLock lock_;
};

}  // namespace

Engine::Engine() : state_(std::make_unique<store::EngineState>()) {}
Engine::~Engine() = default;

int Engine::OpenConnections(const std::filesystem::path& file) const {
  const auto identity = store::FileIdentity::Of(file);
  if (!identity) return 0;
  const auto found = state_->files.find(*identity);
  return found == state_->files.end() ? 0 : found->second.connections;
}

std::unique_ptr<SoleUse> Engine::HoldAlone(const std::filesystem::path& file) {
  const auto identity = store::FileIdentity::Of(file);
  if (!identity) return std::make_unique<SoleUse>();
  store::KnownFile& use = state_->files[*identity];
  if (use.connections > 0 || use.heldAlone) return nullptr;
  auto held = std::make_unique<FileHeldAlone>(use);
  return held->Take(file, state_->patience) ? std::move(held) : nullptr;
}

void Engine::WaitForOthers(std::chrono::milliseconds patience) {
  state_->patience = patience;
}

}  // namespace norvane
