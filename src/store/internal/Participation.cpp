#include "store/internal/EngineState.h"
#include "store/internal/StoreError.h"

namespace norvane::store {

Participation::Participation(EngineState& engine, const std::filesystem::path& file, const std::string& name)
    : file_(engine.files[FileIdentity::Of(file).value_or(FileIdentity{})]) {
  if (file_.heldAlone) throw store::error::FileInUse(name);
  if (file_.connections == 0 && !file_.lock.Take(file, FileLock::Kind::Shared, engine.patience)) {
    throw store::error::FileInUse(name);
  }
  ++file_.connections;
}

Participation::~Participation() {
  if (--file_.connections == 0) file_.lock.Release();
}

}  // namespace norvane::store
