#pragma once

namespace norvane {

/// The platform's key codes, as KeyDown delivers them.
enum class Key : int {
  Tab = 9,
  Enter = 13,
  Escape = 27,
  Space = 32,
  PageUp = 33,
  PageDown = 34,
  End = 35,
  Home = 36,
  Left = 37,
  Up = 38,
  Right = 39,
  Down = 40,
  F2 = 113,
  F4 = 115,
};

struct KeyModifiers {
  bool shift = false;
  bool control = false;
  bool alt = false;
};

}  // namespace norvane
