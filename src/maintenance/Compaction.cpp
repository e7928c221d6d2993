#include "maintenance/Compaction.h"

#include <algorithm>
#include <cctype>

#include "core/FileSystem.h"
#include "forms/Program.h"
#include "maintenance/KeptCopies.h"
#include "maintenance/Leftovers.h"
#include "maintenance/Rescue.h"
#include "maintenance/Working.h"
#include "store/DatabaseFile.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kUnrecognized = 3343;
constexpr double kKilobyte = 1024;
constexpr double kMegabyte = kKilobyte * 1024;
constexpr double kGigabyte = kMegabyte * 1024;

struct Sizes {
  std::string before;
  std::string after;
};

void Compact(Program& program, const fs::path& from, const fs::path& to) {
  CompactDatabase(program.engine, from, to, WorkingNotice(program, "Compacting").Report());
}

Sizes RepairAndCompact(Program& program, const fs::path& database, const fs::path& backup) {
  Sizes sizes;
  RepairDatabase(program.engine, database, WorkingNotice(program, "Checking").Report());
  sizes.before = FormatFileSize(program.convert, Located(database));
  KeepCopy(program, kBeforeCompaction);
  if (FileExists(Located(backup))) DeleteDatabase(program.engine, backup);
  Compact(program, database, backup);
  if (FileExists(Located(database))) DeleteDatabase(program.engine, database);
  Compact(program, backup, database);
  if (FileExists(Located(backup))) DeleteDatabase(program.engine, backup);
  sizes.after = FormatFileSize(program.convert, database);
  return sizes;
}

std::string UpperCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

void ShowSizes(Desktop& desktop, const std::string& fileName, const Sizes& sizes) {
  desktop.Ask({.text = UpperCase(fileName) + " compacted/repaired successfully.\r\n\r\nSize before compacting:\t" +
                       sizes.before + "\r\nSize after compacting:\t" + sizes.after,
               .title = "Compact Successful",
               .icon = Icon::Information});
}

void ShowError(Desktop& desktop, const RuntimeError& error) {
  desktop.Ask({.text = std::to_string(error.Number()) + ": " + error.Text(),
               .title = "CompactDatabase Error",
               .icon = Icon::Critical});
}

}  // namespace

bool CompactDatabaseFile(Program& program, const std::string& fileName) {
  Desktop& desktop = program.desktop;
  desktop.SetMousePointer(MousePointer::Hourglass);
  const fs::path database = program.workspace.applicationFolder / fileName;
  const fs::path backup = program.workspace.applicationFolder / ("BackupOf" + fileName);
  bool succeeded = false;
  std::int32_t failure = 0;
  try {
    const Sizes sizes = RepairAndCompact(program, database, backup);
    succeeded = true;
    ShowSizes(desktop, fileName, sizes);
    OfferToRemoveLeftovers(program, fileName);
  } catch (const RuntimeError& error) {
    failure = error.Number();
    ShowError(desktop, error);
  }
  if (!succeeded && failure == kUnrecognized && FileExists(Located(database))) OfferRescue(program, fileName);
  desktop.SetMousePointer(MousePointer::Default);
  return succeeded;
}

std::string FormatFileSize(const Conversions& convert, const fs::path& file) {
  const std::int32_t size = FileSize(file);
  if (size < kKilobyte) return convert.ToText(size) + " bytes";
  if (size < kMegabyte) return convert.TwoDecimals(size / kKilobyte) + " KB";
  if (size < kGigabyte) return convert.TwoDecimals(size / kMegabyte) + " MB";
  return convert.TwoDecimals(size / kGigabyte) + " GB";
}

}  // namespace norvane
