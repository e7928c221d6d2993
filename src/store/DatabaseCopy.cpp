#include "store/DatabaseCopy.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "core/FileReplacement.h"
#include "core/FileSystem.h"
#include "store/DatabaseFile.h"
#include "store/Engine.h"
#include "store/internal/EngineState.h"
#include "store/internal/Journal.h"
#include "store/internal/SourceFile.h"

namespace norvane {

using namespace store;

namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerAlone = 0600;
constexpr std::size_t kBuffer = 1 << 20;
constexpr std::size_t kHeader = 100;  // holds the counter that each change of the database raises

/// Sole use of the file that is to be replaced.
std::unique_ptr<SoleUse> HoldTarget(Engine& engine, const fs::path& source, const fs::path& target) {
  const auto replaced = FileIdentity::Of(target);
  if (replaced && replaced == FileIdentity::Of(source)) Raise(ErrorNumber::PermissionDenied);
  auto use = engine.HoldAlone(target);
  if (!use) Raise(ErrorNumber::PermissionDenied);
  return use;
}

}  // namespace

class DatabaseCopy::State {
 public:
  State(Engine& engine, const fs::path& source, const fs::path& target)
      : patience_(engine.Internals().patience),
        use_(HoldTarget(engine, source, target)),
        source_(source, patience_),
        target_(target, kOwnerAlone) {}

  SourceFile& Source() { return source_; }
  void Synchronize() { target_.Synchronize(); }

  /// Begins again if the source isn't what it was.
  void CheckSource() {
    const std::uint64_t size = source_.Size();
    std::array<std::byte, kHeader> header = {};
    source_.Read(0, std::span(header).first(std::min<std::uint64_t>(size, kHeader)));
    if (size == size_ && header == header_) return;
    size_ = size;
    header_ = header;
    copied_ = 0;
    target_.StartOver();
  }

  void Copy(std::size_t bytes) {
    for (std::uint64_t end = std::min(size_, copied_ + bytes); copied_ < end;) {
      const auto part = std::span(buffer_).first(std::min<std::uint64_t>(end - copied_, kBuffer));
      source_.Read(copied_, part);
      target_.Write(part);
      copied_ += part.size();
    }
  }

  bool IsComplete() const { return copied_ == size_; }
  double Done() const { return size_ == 0 ? 0 : static_cast<double>(copied_) / static_cast<double>(size_); }

  void Finish() {
    if (const auto journal = source_.Journal()) UndoIn(target_.Unfinished(), *journal);
    const DatabaseHandle replaced = KeepOthersOut(target_.Target(), patience_);
    PutInPlace(target_);
  }

 private:
  void UndoIn(const fs::path& database, const fs::path& journal) {
    std::error_code failed;
    fs::copy_file(journal, JournalOf(database), fs::copy_options::overwrite_existing, failed);
    if (failed) RaiseFileError(failed.value());
    RollBackJournal(database);
  }

  std::chrono::milliseconds patience_;
  std::unique_ptr<SoleUse> use_;
  SourceFile source_;
  FileReplacement target_;
  NoJournal noJournal_{target_.Unfinished()};
  std::vector<std::byte> buffer_ = std::vector<std::byte>(kBuffer);
  std::array<std::byte, kHeader> header_ = {};
  std::uint64_t size_ = 0;
  std::uint64_t copied_ = 0;
};

DatabaseCopy::DatabaseCopy(Engine& engine, const fs::path& source, const fs::path& target)
    : state_(std::make_unique<State>(engine, Located(source), Located(target))) {}

DatabaseCopy::~DatabaseCopy() = default;

double DatabaseCopy::Done() const {
  return state_->Done();
}

bool DatabaseCopy::CopySlice(std::size_t bytes) {
  const SourceLock lock(state_->Source());
  state_->CheckSource();
  state_->Copy(bytes);
  state_->Synchronize();
  const bool isComplete = state_->IsComplete();
  if (isComplete) state_->Finish();
  return isComplete;
}

void DatabaseCopy::CopyRest(const Progress& progress) {
  const SourceLock lock(state_->Source());
  state_->CheckSource();
  while (!state_->IsComplete()) {
    state_->Copy(kBuffer);
    if (progress) progress(state_->Done());
  }
  state_->Finish();
}

}  // namespace norvane
