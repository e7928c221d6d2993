#pragma once

#include <string_view>

#include "forms/ScreenTable.h"

namespace norvane {

/// Closes a screen as its exit button does, which may ask about unsaved changes. True if it is gone or was never there,
/// false if the user keeps it.
bool CloseByItsExit(const ScreenTable& screens, std::string_view name);

/// Shows a screen that keeps nothing unsaved, made anew if it is open, so that it reads what is asked for now.
void ShowAnew(ScreenTable& screens, std::string_view name, ShowOptions options = {});

}  // namespace norvane
