#include "core/WholeFile.h"

#include <cerrno>
#include <fcntl.h>
#include <span>
#include <sys/stat.h>
#include <unistd.h>

#include "core/FileHandle.h"
#include "core/FileReplacement.h"
#include "core/RuntimeError.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFileMode = 0600;

/// Reading goes on until the end: a call that a signal cuts short has read a part or nothing.
bool ReadAll(int handle, std::string& content) {
  char buffer[4096];
  while (true) {
    const ssize_t count = ::read(handle, buffer, sizeof buffer);
    if (count > 0) content.append(buffer, static_cast<std::size_t>(count));
    if (count == 0) return true;
    if (count < 0 && errno != EINTR) return false;
  }
}

mode_t ModeOf(const fs::path& file) {
  struct stat status = {};
  return ::stat(file.c_str(), &status) == 0 ? status.st_mode : kNewFileMode;
}

}  // namespace

void SynchronizeFolder(const fs::path& folder) {
  const FileHandle handle(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle) ::fsync(handle.Get());
}

std::optional<std::string> ReadWholeFile(const fs::path& file) {
  // Not blocking, so that a pipe of that name is refused instead of waited for.
  const FileHandle handle(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status = {};
  if (!handle || ::fstat(handle.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  std::string content;
  if (!ReadAll(handle.Get(), content)) return std::nullopt;
  return content;
}

bool WriteFileAtomically(const fs::path& file, std::string_view content) {
  try {
    FileReplacement replacement(file, ModeOf(file));
    replacement.Write(std::as_bytes(std::span(content)));
    replacement.Commit();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace norvane
