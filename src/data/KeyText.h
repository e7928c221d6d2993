#pragma once

#include <cstdint>
#include <string>

namespace norvane {

/// A key held as its text, empty until one is written. Reading it while it is empty raises 13; joined into a
/// statement it leaves a gap there, which the store refuses.
class KeyText {
 public:
  KeyText() = default;
  KeyText& operator=(std::int32_t number);
  operator std::int32_t() const;

  const std::string& Text() const { return text_; }
  void Clear() { text_.clear(); }

 private:
  std::string text_;
};

}  // namespace norvane
