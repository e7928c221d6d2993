#include "forms/FileLists.h"

#include <algorithm>

#include "core/Characters.h"
#include "core/FileSystem.h"
#include "forms/Form.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// Without "." and "..", and without a separator at its end.
fs::path Normal(const fs::path& path) {
  const fs::path normal = path.lexically_normal();
  return normal.has_filename() || normal == normal.root_path() ? normal : normal.parent_path();
}

fs::path RootOf(const std::string& drive) {
  return EqualNoCase(drive, "C") ? fs::path("/") : Normal(PathOf(drive));
}

bool IsWithin(const fs::path& path, const fs::path& root) {
  return std::mismatch(root.begin(), root.end(), path.begin(), path.end()).first == root.end();
}

/// Media are mounted below one of these, in a folder of their name.
bool IsMedium(const fs::path& root) {
  return IsWithin(root, "/media") || IsWithin(root, "/run/media") || IsWithin(root, "/mnt");
}

std::vector<Drive> DrivesOf(const Desktop& desktop) {
  std::vector<Drive> drives;
  for (const fs::path& root : desktop.Drives()) {
    const DriveKind kind = IsMedium(root) ? DriveKind::Medium : DriveKind::Home;
    drives.push_back({root == root.root_path() ? DriveKind::System : kind, root});
  }
  return drives;
}

fs::path CurrentFolder(const Desktop& desktop) {
  const fs::path folder = Normal(desktop.CurrentFolder());
  return FolderExists(folder) ? folder : fs::path("/");
}

}  // namespace

std::string Drive::Caption() const {
  switch (kind) {
    case DriveKind::Home:
      return "Home";
    case DriveKind::System:
      return "File System";
    case DriveKind::Medium:
      return root.filename().string();
  }
  return "";
}

DriveList::DriveList(Form& form, std::string name, const Desktop& desktop)
    : Control(form, std::move(name)), desktop_(desktop), drives_(DrivesOf(desktop)) {
  const fs::path folder = norvane::CurrentFolder(desktop);
  for (const auto& [kind, root] : drives_) {
    if (IsWithin(folder, root) && root.string().size() > drive_.size()) drive_ = root.string();
  }
}

void DriveList::Refresh() {
  drives_ = DrivesOf(desktop_);
  Notify(Aspect::Items);
}

void DriveList::SetDrive(const std::string& drive) {
  Refresh();
  const fs::path root = RootOf(drive);
  if (std::ranges::find(drives_, root, &norvane::Drive::root) == drives_.end()) Raise(ErrorNumber::DeviceUnavailable);
  if (root.string() == drive_) return;
  drive_ = root.string();
  const Dispatch dispatch(Parent());
  Notify(Aspect::State);
  Change.Raise();
}

void DriveList::GoBackTo(const std::string& drive) {
  drive_ = drive;
  Notify(Aspect::State);
}

int DriveList::ListIndex() const {
  const auto found = std::ranges::find(drives_, fs::path(drive_), &norvane::Drive::root);
  return found == drives_.end() ? -1 : static_cast<int>(found - drives_.begin());
}

void DriveList::UserPick(int index) {
  if (!Enabled() || index < 0 || index >= static_cast<int>(drives_.size())) return;
  const Dispatch dispatch(Parent());
  const std::string picked = drives_[static_cast<std::size_t>(index)].root.string();
  SetFocus();
  if (Parent().IsLoaded()) detail::RunAsEvent(Parent(), [&] { SetDrive(picked); });
}

FolderList::FolderList(Form& form, std::string name, const Desktop& desktop)
    : Control(form, std::move(name)), desktop_(desktop) {
  try {
    Show(CurrentFolder(desktop));
  } catch (const RuntimeError&) {
    Show("/");
  }
}

bool FolderList::IsDrive(const fs::path& path) const {
  const auto drives = desktop_.Drives();
  return std::ranges::find(drives, path) != drives.end();
}

void FolderList::SetPath(const std::string& text) {
  const fs::path path = Normal(path_ / RootOf(text));
  const bool differs = path != path_;
  try {
    Show(path);
  } catch (const RuntimeError&) {
    if (IsDrive(path)) Raise(ErrorNumber::DeviceUnavailable);
    throw;
  }
  const Dispatch dispatch(Parent());
  Notify(Aspect::Items);
  if (differs) Change.Raise();
}

void FolderList::Show(const fs::path& path) {
  const std::vector<std::string> within = SubfoldersOf(path);
  path_ = path;
  folders_.clear();
  fs::path parent;
  for (const fs::path& part : path) {
    parent /= part;
    folders_.push_back({part.string(), parent, static_cast<int>(folders_.size())});
  }
  current_ = marked_ = static_cast<int>(folders_.size()) - 1;
  for (const std::string& name : within) folders_.push_back({name, path / name, current_ + 1});
}

void FolderList::UserMark(int index) {
  if (!Enabled() || index < 0 || index >= static_cast<int>(folders_.size())) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded()) return;
  marked_ = index;
  Notify(Aspect::State);
}

void FolderList::UserOpen(int index) {
  const Dispatch dispatch(Parent());
  UserMark(index);
  if (!Parent().IsLoaded() || marked_ != index) return;
  detail::RunAsEvent(Parent(), [&] { SetPath(folders_[static_cast<std::size_t>(index)].path.string()); });
}

void FolderList::UserOpenParent() {
  if (current_ > 0) UserOpen(current_ - 1);
}

void FileList::SetPath(const fs::path& path) {
  path_ = path;
  Read();
}

void FileList::SetPattern(const std::string& pattern) {
  pattern_ = pattern;
  Read();
}

void FileList::Read() {
  files_ = FilesLike(path_, pattern_);
  marked_ = -1;
  Notify(Aspect::Items);
}

void FileList::UserMark(int index) {
  if (!Enabled() || index < 0 || index >= static_cast<int>(files_.size())) return;
  const Dispatch dispatch(Parent());
  SetFocus();
  if (!Parent().IsLoaded()) return;
  marked_ = index;
  Notify(Aspect::State);
  Click.Raise();
}

FolderBox::FolderBox(Form& form, std::string name, const Desktop& desktop, const FolderList& shown)
    : TextBox(form, std::move(name), {.characters = 48}), desktop_(desktop), shown_(shown) {}

fs::path FolderBox::Home() const {
  const auto drives = DrivesOf(desktop_);
  const auto home = std::ranges::find(drives, DriveKind::Home, &Drive::kind);
  return home == drives.end() ? fs::path("/") : home->root;
}

fs::path FolderBox::Resolve(const std::string& text) const {
  if (text.empty()) return {};
  const fs::path path = PathOf(text);
  const fs::path rest = path.lexically_relative("~");
  return *path.begin() == "~" ? Home() / rest : shown_.Path() / path;
}

std::vector<std::string> FolderBox::Completions() const {
  const std::size_t begun = Text().find_last_of("/\\");
  if (begun == std::string::npos) return {};
  const std::string above = Text().substr(0, begun + 1);
  const std::string start = Text().substr(begun + 1);
  std::vector<std::string> folders;
  IgnoringErrors([&] { folders = SubfoldersOf(Resolve(above)); });
  std::erase_if(folders, [&](const std::string& name) { return !start.empty() && !StartsWithNoCase(name, start); });
  for (std::string& name : folders) name.insert(0, above);
  return folders;
}

}  // namespace norvane
