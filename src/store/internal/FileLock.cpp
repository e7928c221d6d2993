#include "store/internal/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace norvane::store {
namespace {

/// SQLite locks the 512 bytes from 1 GiB on, whatever the file's size.
constexpr off_t kLockedByte = 0x40000000 + 512;
constexpr std::chrono::milliseconds kPause{10};

/// Set by the open file, not by the process as SQLite's locks are, so that both kinds live side by side.
bool Lock(int descriptor, short type) {
  struct flock lock = {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = kLockedByte;
  lock.l_len = 1;
  return fcntl(descriptor, F_OFD_SETLK, &lock) == 0;
}

bool IsExcluded(int error) {
  return error == EAGAIN || error == EACCES;
}

}  // namespace

std::optional<FileIdentity> FileIdentity::Of(const std::filesystem::path& file) {
  struct statx status = {};
  if (statx(AT_FDCWD, file.c_str(), 0, STATX_INO | STATX_BTIME, &status) != 0) return std::nullopt;
  const std::int64_t birth = status.stx_btime.tv_sec * 1'000'000'000 + status.stx_btime.tv_nsec;
  return FileIdentity{makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino, birth};
}

void FileLock::Release() {
  if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
}

bool FileLock::Take(const std::filesystem::path& file, Kind kind, std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (true) {
    const Attempt attempt = Try(file, kind);
    if (attempt == Attempt::Held) return true;
    Release();
    if (attempt == Attempt::Replaced) continue;
    if (attempt == Attempt::Refused || std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(kPause);
  }
}

FileLock::Attempt FileLock::Try(const std::filesystem::path& file, Kind kind) {
  const bool sole = kind == Kind::Sole;
  descriptor_ = ::open(file.c_str(), (sole ? O_RDWR : O_RDONLY) | O_NONBLOCK | O_CLOEXEC);
  if (descriptor_ < 0) return sole && errno != ENOENT ? Attempt::Refused : Attempt::Held;
  if (!Lock(descriptor_, sole ? F_WRLCK : F_RDLCK)) return IsExcluded(errno) ? Attempt::Excluded : Attempt::Held;
  // The program that held it may have put another file in its place.
  struct stat opened = {};
  struct stat named = {};
  const bool same = ::fstat(descriptor_, &opened) == 0 && ::stat(file.c_str(), &named) == 0 &&
                    opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
  return same ? Attempt::Held : Attempt::Replaced;
}

}  // namespace norvane::store
