#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

namespace norvane {

class Engine;

/// Is given how much of the work is done, from 0 to 1.
using Progress = std::function<void(double)>;

/// A copy of a database file in the making, in slices between which the program may go on: whole or not there, mode
/// 0600. What a crash left in the journal of the source is undone in the copy.
///
/// A slice keeps writers out for its own length. A source that has been written to between two slices is copied from
/// its beginning again.
class DatabaseCopy {
 public:
  /// Raises 53 without a source, 76 without a folder for the target, 61, and 70 for a source that can't be read, or a
  /// target that is the source itself, is read-only, is no plain file or is in use.
  DatabaseCopy(Engine& engine, const std::filesystem::path& source, const std::filesystem::path& target);
  ~DatabaseCopy();
  DatabaseCopy(const DatabaseCopy&) = delete;
  DatabaseCopy& operator=(const DatabaseCopy&) = delete;

  /// Copies up to `bytes` more and brings them onto the disk. True when the copy has its name. Raises 61, 68, 70 for a
  /// source that stays locked, and the store's disk error; the target is then as it was.
  bool CopySlice(std::size_t bytes);
  /// Copies the rest without letting a writer in between. Raises as a slice does.
  void CopyRest(const Progress& progress = {});
  /// From 0 to 1.
  double Done() const;

 private:
  class State;
  std::unique_ptr<State> state_;
};

}  // namespace norvane
