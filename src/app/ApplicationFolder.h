#pragma once

#include <filesystem>

namespace norvane {

/// The folder that holds the database and the settings, as `executable` (the name the program was started by) says.
///
/// It is the executable's folder if the database or the settings are there: a folder that the program has worked in
/// stays its folder when the database is taken away, so that no other business comes up in its place. Links are not
/// followed: a link to the program beside a database is a program of its own. Otherwise it is a folder of the user's
/// own, which is made at the first start, whole or not at all, readable by no one else, with copies of the delivered
/// database and settings and a link to the help pages. Once that folder exists nothing is ever put into it.
std::filesystem::path ApplicationFolder(const char* executable);

}  // namespace norvane
