#pragma once

/// The names under which actions are in the screens' table that a program may do without.
namespace norvane::action {

inline constexpr char kKeepCopyBeforeDeletion[] = "KeepCopyBeforeDeletion";

}  // namespace norvane::action
