#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace norvane::sample {

/// Numbers that look random and are the same for a seed with every compiler and library, which the standard
/// distributions are not. (SplitMix64.)
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t mixed = (state_ += 0x9E3779B97F4A7C15u);
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
  }

  /// 0 up to, not including, `limit`, which is above 0.
  int Below(int limit) { return static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
  /// `low` up to and including `high`.
  int Between(int low, int high) { return low + Below(high - low + 1); }
  /// True `percent` times in a hundred.
  bool Chance(int percent) { return Below(100) < percent; }
  /// One of a list that isn't empty.
  template <class List>
  const auto& Pick(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace norvane::sample
