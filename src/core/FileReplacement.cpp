#include "core/FileReplacement.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

#include "core/FileSystem.h"
#include "core/WholeFile.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerAlone = 0600;  // until the file is complete
constexpr mode_t kPermissions = 07777;
constexpr int kMostLinks = 40;
constexpr std::chrono::seconds kPatience(2);
constexpr std::chrono::milliseconds kBetweenAttempts(10);
using Clock = std::chrono::steady_clock;

fs::path FollowLinks(fs::path file) {
  std::error_code failed;
  for (int links = 0; links < kMostLinks && fs::is_symlink(file, failed); ++links) {
    file = file.parent_path() / fs::read_symlink(file, failed);
  }
  return file;
}

/// The write bits count for every user, so that a file that was made read-only isn't replaced by root either.
bool MayBeReplaced(const fs::path& file) {
  struct stat status = {};
  if (::stat(file.c_str(), &status) != 0) return true;
  constexpr mode_t kWritable = S_IWUSR | S_IWGRP | S_IWOTH;
  return S_ISREG(status.st_mode) && (status.st_mode & kWritable) != 0 && ::access(file.c_str(), W_OK) == 0;
}

/// Whether the name still is that of the open file, which another program may have renamed while this one waited.
bool IsNameOf(const fs::path& file, int handle) {
  struct stat named = {};
  struct stat open = {};
  return ::stat(file.c_str(), &named) == 0 && ::fstat(handle, &open) == 0 && named.st_dev == open.st_dev &&
         named.st_ino == open.st_ino;
}

}  // namespace

FileReplacement::FileReplacement(const fs::path& target, mode_t mode)
    : target_(FollowLinks(target)), unfinished_(target_) {
  unfinished_ += ".new";
  if (!FolderExists(target_.has_parent_path() ? target_.parent_path() : fs::path("."))) {
    Raise(ErrorNumber::PathNotFound);
  }
  if (!MayBeReplaced(target_)) Raise(ErrorNumber::PermissionDenied);
  Open(mode);
}

FileReplacement::~FileReplacement() {
  if (!committed_ && handle_) ::unlink(unfinished_.c_str());
}

// Another program that writes the same file may finish it meanwhile, and this one begins a new one.
void FileReplacement::Open(mode_t mode) {
  for (const auto start = Clock::now(); !OpenUnfinished();) {
    if (Clock::now() - start > kPatience) Raise(ErrorNumber::PermissionDenied);
    std::this_thread::sleep_for(kBetweenAttempts);
  }
  ::fchmod(handle_.Get(), mode & kPermissions);
  StartOver();
}

/// False while another program has it.
bool FileReplacement::OpenUnfinished() {
  handle_ =
      FileHandle(::open(unfinished_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kOwnerAlone));
  if (!handle_) RaiseFileError(errno);
  struct stat status = {};
  if (::fstat(handle_.Get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_nlink > 1) {
    handle_.Close();
    Raise(ErrorNumber::PermissionDenied);
  }
  const bool isLocked = ::flock(handle_.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
  if (isLocked && IsNameOf(unfinished_, handle_.Get())) return true;
  handle_.Close();
  return false;
}

void FileReplacement::StartOver() {
  if (::ftruncate(handle_.Get(), 0) != 0 || ::lseek(handle_.Get(), 0, SEEK_SET) != 0) RaiseFileError(errno);
}

void FileReplacement::Write(std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(handle_.Get(), bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) RaiseFileError(errno);
    if (count > 0) bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
}

void FileReplacement::Synchronize() {
  if (::fsync(handle_.Get()) != 0) RaiseFileError(errno);
}

void FileReplacement::Commit() {
  Synchronize();
  if (::rename(unfinished_.c_str(), target_.c_str()) != 0) RaiseFileError(errno);
  committed_ = true;
  SynchronizeFolder(target_.parent_path());
}

}  // namespace norvane
