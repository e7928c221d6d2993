#include "maintenance/KeptCopies.h"

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include "core/Characters.h"
#include "core/DateText.h"
#include "core/FileNames.h"
#include "core/FileSystem.h"
#include "forms/Form.h"
#include "maintenance/Working.h"
#include "store/DatabaseCopy.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kKeptInAll = 20;
constexpr std::size_t kSlice = 1 << 20;
constexpr std::size_t kDay = 10;   // characters of "2026-11-22"
constexpr std::size_t kMonth = 7;  // of "2026-11"

/// Sorts as the moments do, and is a name that any file system takes.
std::string Stamp(Date moment) {
  return FormatDate(moment, "yyyy-MM-dd HH.mm.ss", {});
}

bool IsStamped(std::string_view name) {
  constexpr std::string_view kForm = "0000-00-00 00.00.00 ";
  const auto fits = [](char form, char c) { return form == '0' ? IsDigit(c) : c == form; };
  return name.size() > kForm.size() && std::equal(kForm.begin(), kForm.end(), name.begin(), fits);
}

fs::path CopiesOf(const Program& program) {
  return program.workspace.applicationFolder / kCopiesFolder;
}

bool HasDatabase(const Program& program) {
  return FileExists(Located(program.workspace.File(kDatabaseFile)));
}

/// The subfolders that the program made, the oldest first.
std::vector<std::string> KeptIn(const fs::path& copies) {
  std::vector<std::string> names;
  IgnoringErrors([&] { names = SubfoldersOf(copies); });
  std::erase_if(names, [](const std::string& name) { return !IsStamped(name); });
  return names;
}

/// Only what the program put there; a folder with anything else in it stays.
void Discard(const fs::path& folder) {
  ::unlink((folder / kDatabaseFile).c_str());
  ::rmdir(folder.c_str());
}

constexpr int kNotePanel = 3;  // after the clock and the number of clients

void ShowNote(StatusBar& bar, const std::string& note) {
  const bool hasNote = bar.Panels().size() >= static_cast<std::size_t>(kNotePanel);
  hasNote ? bar.SetPanelText(kNotePanel, note) : bar.AddPanel(note, 0);
}

}  // namespace

KeptCopy::KeptCopy(Program& program, std::string_view reason)
    : copies_(CopiesOf(program)), folder_(copies_ / (Stamp(program.desktop.Now()) + " " + std::string(reason))) {
  if (!FolderExists(copies_)) CreateFolder(copies_);
  if (!FolderExists(folder_)) CreateFolder(folder_);
  try {
    copy_ =
        std::make_unique<DatabaseCopy>(program.engine, program.workspace.File(kDatabaseFile), folder_ / kDatabaseFile);
  } catch (const RuntimeError&) {
    ::rmdir(folder_.c_str());
    throw;
  }
}

KeptCopy::~KeptCopy() {
  copy_.reset();
  // Fails if the copy is there.
  ::rmdir(folder_.c_str());
}

void KeptCopy::Complete(const Progress& progress) {
  copy_->CopyRest(progress);
  DiscardOldCopies(copies_);
}

bool KeptCopy::CopySlice() {
  if (!copy_->CopySlice(kSlice)) return false;
  DiscardOldCopies(copies_);
  return true;
}

void KeepCopy(Program& program, std::string_view reason) {
  if (!HasDatabase(program)) return;
  try {
    WorkingNotice notice(program, "Keeping a copy");
    KeptCopy(program, reason).Complete(notice.Report());
  } catch (const RuntimeError& error) {
    SayNoCopyKept(program, error);
  }
}

bool NeedsCopyOfToday(const Program& program, std::string_view reason) {
  if (!HasDatabase(program)) return false;
  const fs::path copies = CopiesOf(program);
  const std::string today = Stamp(program.desktop.Now()).substr(0, kDay);
  const std::vector<std::string> kept = KeptIn(copies);
  return std::ranges::none_of(kept, [&](const std::string& name) {
    return name.starts_with(today) && name.ends_with(reason) && FileExists(copies / name / kDatabaseFile);
  });
}

void SayNoCopyKept(Program& program, const RuntimeError& error) {
  const Form* main = program.screens.Find(program.StartUpScreen());
  if (!main) return;
  for (Control* control : main->Controls()) {
    if (auto* bar = dynamic_cast<StatusBar*>(control)) ShowNote(*bar, "No copy kept: " + error.Text());
  }
}

void DiscardOldCopies(const fs::path& copies) {
  std::vector<std::string> kept = KeptIn(copies);
  std::set<std::string> months;
  // From the latest on, so that the first one met is the last of its month.
  std::ranges::reverse(kept);
  for (std::size_t i = 0; i < kept.size(); ++i) {
    const bool isLastOfMonth = months.insert(kept[i].substr(0, kMonth)).second;
    if (i >= kKeptInAll && !isLastOfMonth) Discard(copies / kept[i]);
  }
}

}  // namespace norvane
