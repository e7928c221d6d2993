#pragma once

#include <filesystem>

#include "store/DatabaseCopy.h"

namespace norvane {

class Engine;

// The operations on the database file as a whole. A file is found by its name in any case.

/// Raises 53 if there is no such file, 3343 if it doesn't begin as a database does. Nothing deeper is checked.
void RequireDatabase(const std::filesystem::path& file);

/// Undoes what a crash left incomplete. A file that the store can't read stays as it is.
void RollBackJournal(const std::filesystem::path& file);

/// Copies the database whole or not at all; errors as in DatabaseCopy.
void CopyDatabase(Engine& engine, const std::filesystem::path& source, const std::filesystem::path& target,
                  const Progress& progress = {});

/// Deletes the file and its journal. Raises 53 if there is none, 70 if it is in use or can't be deleted.
void DeleteDatabase(Engine& engine, const std::filesystem::path& file);

/// Undoes what a crash left incomplete and, if the check of the file finds faults, rebuilds the indexes and checks
/// again. Raises 3024 if there is no such file, 3045 if it is in use, 3026, and 3343 if the check isn't passed; the
/// file is then as it was.
void RepairDatabase(Engine& engine, const std::filesystem::path& file, const Progress& progress = {});

/// Writes a compacted copy, mode 0600, which is checked and on the disk before this returns; nothing is left of one
/// that fails. Raises 3024 without a source, 3045 if it is in use, 3204 if the target exists, 3026, 3343.
void CompactDatabase(Engine& engine, const std::filesystem::path& source, const std::filesystem::path& target,
                     const Progress& progress = {});

}  // namespace norvane
