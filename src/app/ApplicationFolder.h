#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "app/FirstStart.h"

namespace norvane {

/// The folder that holds the database and the settings, as `executable` (the name the program was started by) says.
/// Nothing if the user has chosen to open none.
///
/// It is the executable's folder if the database or the settings are there: a folder that the program has worked in
/// stays its folder when the database is taken away, so that no other business comes up in its place. Links are not
/// followed: a link to the program beside a database is a program of its own. Otherwise it is a folder of the user's
/// own. As long as that isn't there `choose` says what to open: it is made, whole or not at all, readable by no one
/// else, with copies of the delivered database and settings and a link to the help pages; or the sample business in
/// a folder beside it is opened, which is made in the same way. Nothing is ever put into a folder that exists.
std::optional<std::filesystem::path> ApplicationFolder(const char* executable,
                                                       const std::function<FirstStart()>& choose);

/// The folder of the sample business, whatever else there is.
std::filesystem::path SampleFolder();

}  // namespace norvane
