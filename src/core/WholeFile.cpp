#include "core/WholeFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFileMode = 0600;

class FileHandle {
 public:
  explicit FileHandle(int handle) : handle_(handle) {}
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() {
    if (handle_ >= 0) ::close(handle_);
  }

  explicit operator bool() const { return handle_ >= 0; }
  int Get() const { return handle_; }

 private:
  int handle_;
};

/// Reads or writes go on until done: one that a signal cuts short has done a part or nothing.
bool ReadAll(int handle, std::string& content) {
  char buffer[4096];
  while (true) {
    const ssize_t count = ::read(handle, buffer, sizeof buffer);
    if (count > 0) content.append(buffer, static_cast<std::size_t>(count));
    if (count == 0) return true;
    if (count < 0 && errno != EINTR) return false;
  }
}

bool WriteAll(int handle, std::string_view content) {
  while (!content.empty()) {
    const ssize_t count = ::write(handle, content.data(), content.size());
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) content.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool IsSameFile(int handle, const fs::path& file) {
  struct stat opened = {};
  struct stat named = {};
  return ::fstat(handle, &opened) == 0 && ::stat(file.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
         opened.st_ino == named.st_ino;
}

/// The file to write, empty and for this process alone; -1 if that is not possible. It has one name, so that what a
/// process left that ended too early is used again; one that another process is writing is waited for.
int OpenUnfinished(const fs::path& file) {
  while (true) {
    const int handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kNewFileMode);
    if (handle < 0) return handle;
    ::flock(handle, LOCK_EX);
    // The other process has given it its name meanwhile if this is no longer the file of that name.
    if (IsSameFile(handle, file) && ::ftruncate(handle, 0) == 0) return handle;
    const bool renamed = !IsSameFile(handle, file);
    ::close(handle);
    if (!renamed) return -1;
  }
}

bool WriteUnfinished(int handle, std::string_view content, const struct stat* model) {
  const mode_t mode = model ? model->st_mode & 07777 : kNewFileMode;
  // A file system without modes is no reason to lose the content.
  ::fchmod(handle, mode);
  return WriteAll(handle, content) && ::fsync(handle) == 0;
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
  std::error_code error;
  const fs::path resolved = fs::canonical(file, error);
  const fs::path target = error ? file : resolved;
  struct stat status = {};
  const bool exists = ::stat(target.c_str(), &status) == 0;
  if (exists && (!S_ISREG(status.st_mode) || ::access(target.c_str(), W_OK) != 0)) return false;
  fs::path beside = target;
  beside += ".new";
  const FileHandle handle(OpenUnfinished(beside));
  if (!handle) return false;
  if (!WriteUnfinished(handle.Get(), content, exists ? &status : nullptr) ||
      ::rename(beside.c_str(), target.c_str()) != 0) {
    ::unlink(beside.c_str());
    return false;
  }
  SynchronizeFolder(target.parent_path());
  return true;
}

}  // namespace norvane
