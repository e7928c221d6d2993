#pragma once

#include <filesystem>
#include <string>

namespace norvane {

class Conversions;
class Program;

/// Repairs and compacts a file of the application's folder in place, and shows how its size changed, or what failed.
/// True on success.
///
/// It is compacted into "BackupOf" followed by its name and from there back. In between that copy is all there is: if
/// the second pass fails it stays, under that name.
bool CompactDatabaseFile(Program& program, const std::string& fileName);

/// The size of a file in bytes, KB, MB or GB. Raises 53 if there is no such file, 6 from 2 GB on.
std::string FormatFileSize(const Conversions& convert, const std::filesystem::path& file);

}  // namespace norvane
