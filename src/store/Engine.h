#pragma once

#include <filesystem>
#include <memory>

namespace norvane {

/// The store behind all connections of one program: what is known of each file's tables, the translations of statements
/// seen before, and how many connections stand open on which file.
class Engine {
 public:
  Engine();
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  /// How many connections of this program stand open on the file.
  int OpenConnections(const std::filesystem::path& file) const;

  struct State;
  State& Internals() { return *state_; }

 private:
  std::unique_ptr<State> state_;
};

}  // namespace norvane
