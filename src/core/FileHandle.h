#pragma once

#include <unistd.h>
#include <utility>

namespace norvane {

/// An open file of the system's; closed when this object goes.
class FileHandle {
 public:
  explicit FileHandle(int handle = -1) : handle_(handle) {}
  FileHandle(FileHandle&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~FileHandle() { Close(); }

  explicit operator bool() const { return handle_ >= 0; }
  int Get() const { return handle_; }
  /// False if what was written last could not be stored.
  bool Close() { return handle_ < 0 || ::close(std::exchange(handle_, -1)) == 0; }

 private:
  int handle_;
};

}  // namespace norvane
