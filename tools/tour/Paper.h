#pragma once

#include <filesystem>
#include <string>

#include "forms/Form.h"

namespace norvane::tour {

/// How many of a report's pages become pictures; the PDF has them all.
inline constexpr std::size_t kPicturedPages = 3;

/// Writes what the form would print into `folder`: `name`.pdf, and pictures `name`-1.png and so on of its first pages.
/// Gives how many pictures there are: 0 for a form that prints nothing. Throws std::runtime_error if a file can't be
/// written.
std::size_t WritePaper(const Form& form, const std::filesystem::path& folder, const std::string& name);

}  // namespace norvane::tour
