#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

namespace norvane {

namespace store {
struct EngineState;
}  // namespace store

/// Sole use of a database file, for as long as this lives: until then no connection to it can be opened, by this
/// program or by another.
class SoleUse {
 public:
  virtual ~SoleUse() = default;
};

/// The store behind all connections of one program: what is known of each file's tables, the translations of statements
/// seen before, and how many connections each file has.
class Engine {
 public:
  Engine();
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  /// How many connections of this program are open on the file.
  int OpenConnections(const std::filesystem::path& file) const;

  /// Takes the file alone, for what replaces, deletes, repairs or compacts it. Nothing if a connection of this program
  /// is open on it, if another program doesn't let it go in time, or if it can't be written. A file that isn't there is
  /// held by no one.
  std::unique_ptr<SoleUse> HoldAlone(const std::filesystem::path& file);

  /// How long a statement or an opening waits for another program that holds the file; two seconds unless set.
  void WaitForOthers(std::chrono::milliseconds patience);

  store::EngineState& Internals() { return *state_; }

 private:
  std::unique_ptr<store::EngineState> state_;
};

}  // namespace norvane
