#include "core/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fnmatch.h>
#include <limits>
#include <memory>
#include <sys/stat.h>

#include "core/Characters.h"
#include "core/WholeFile.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFolderMode = 0700;

bool IsDriveC(std::string_view text) {
  return StartsWithNoCase(text, "C:") && (text.size() == 2 || text[2] == '/');
}

void SortNoCase(std::vector<std::string>& names) {
  const auto order = [](char c) { return static_cast<unsigned char>(ToLower(c)); };
  const auto lower = [&](char a, char b) { return order(a) < order(b); };
  std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), lower);
  });
}

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};

/// The names in a folder but "." and "..". The value of errno says why there are none.
std::vector<std::string> NamesIn(const fs::path& folder) {
  const std::unique_ptr<DIR, CloseFolder> open(opendir(folder.c_str()));
  std::vector<std::string> names;
  if (!open) return names;
  errno = 0;
  while (const dirent* entry = readdir(open.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  return names;
}

}  // namespace

fs::path PathOf(std::string_view text) {
  std::string path(text);
  std::replace(path.begin(), path.end(), '\\', '/');
  if (IsDriveC(path)) path.replace(0, 2, "/");
  path.erase(std::unique(path.begin(), path.end(), [](char a, char b) { return a == '/' && b == '/'; }), path.end());
  return path;
}

bool FolderExists(const fs::path& folder) {
  std::error_code failed;
  return fs::is_directory(folder, failed);
}

bool FileExists(const fs::path& file) {
  std::error_code failed;
  return fs::is_regular_file(file, failed);
}

void CreateFolder(const fs::path& folder) {
  if (folder.empty()) Raise(ErrorNumber::InvalidProcedureCall);
  if (::mkdir(folder.c_str(), kNewFolderMode) == 0) return SynchronizeFolder(folder.parent_path());
  if (errno == EEXIST) Raise(ErrorNumber::FileAlreadyExists);
  RaiseFileError(errno);
}

std::int32_t FileSize(const fs::path& file) {
  struct stat status = {};
  if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) Raise(ErrorNumber::FileNotFound);
  if (status.st_size > std::numeric_limits<std::int32_t>::max()) Raise(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(status.st_size);
}

fs::path Located(const fs::path& file) {
  std::error_code failed;
  if (fs::exists(fs::symlink_status(file, failed))) return file;
  for (const std::string& name : NamesIn(file.parent_path())) {
    if (EqualNoCase(name, file.filename().string())) return file.parent_path() / name;
  }
  return file;
}

std::vector<std::string> SubfoldersOf(const fs::path& folder) {
  errno = 0;
  std::vector<std::string> names = NamesIn(folder);
  if (errno != 0) RaiseFileError(errno);
  std::erase_if(names, [&](const std::string& name) { return name.front() == '.' || !FolderExists(folder / name); });
  SortNoCase(names);
  return names;
}

std::vector<std::string> FilesLike(const fs::path& folder, const std::string& pattern) {
  std::vector<std::string> names = NamesIn(folder);
  std::erase_if(names, [&](const std::string& name) {
    return ::fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) != 0 || !FileExists(folder / name);
  });
  SortNoCase(names);
  std::stable_partition(names.begin(), names.end(), [&](const std::string& name) { return name == pattern; });
  return names;
}

void RaiseFileError(int code, ErrorNumber missing) {
  switch (code) {
    case ENOENT:
    case ENOTDIR:
      Raise(missing);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      Raise(ErrorNumber::DiskFull);
    case EIO:
    case ENODEV:
    case ENXIO:
    case ENOMEDIUM:
      Raise(ErrorNumber::DeviceUnavailable);
    default:
      Raise(ErrorNumber::PermissionDenied);
  }
}

}  // namespace norvane
