#pragma once

namespace norvane {

// What the application's folder holds.

inline constexpr char kDatabaseFile[] = "norvane.mdb";
inline constexpr char kSettingsFile[] = "norvane.ini";
inline constexpr char kHelpFolder[] = "help";

}  // namespace norvane
