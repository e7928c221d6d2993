#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/Desktop.h"

namespace norvane {

enum class DriveKind { Home, System, Medium };

/// Where a user looks for folders: the home folder, the root of the file system, a mounted medium.
struct Drive {
  DriveKind kind;
  std::filesystem::path root;

  /// What the user knows it by: "Home", "File System", a medium's name.
  std::string Caption() const;
};

/// A drop-down list of the drives. It begins at the drive of the current folder.
class DriveList : public Control {
 public:
  DriveList(Form& form, std::string name, const Desktop& desktop);
  const std::vector<norvane::Drive>& Drives() const { return drives_; }
  /// Reads the drives again, as opening the list does.
  void Refresh();
  /// The root of the drive shown, as text.
  const std::string& Drive() const { return drive_; }
  /// Raises 68 if there is no such drive, and Change if it differs. "C" and "C:" are "/".
  void SetDrive(const std::string& drive);
  /// Shows a drive without raising Change, after one that turned out not to be readable.
  void GoBackTo(const std::string& drive);
  /// The place in Drives() of the drive shown, -1 once it is no longer there.
  int ListIndex() const;
  bool TakesFocus() const override { return true; }

  void UserPick(int index);

  Event<> Change{Parent()};

 private:
  const Desktop& desktop_;
  std::vector<norvane::Drive> drives_;
  std::string drive_;
};

/// Shows a folder below those that it is in, and above those that are in it. It begins at the current folder.
class FolderList : public Control {
 public:
  struct Folder {
    std::string name;
    std::filesystem::path path;
    int depth;  ///< 0 for the root
  };

  FolderList(Form& form, std::string name, const Desktop& desktop);
  const std::filesystem::path& Path() const { return path_; }
  /// Raises Change if the folder differs. A drive is its root; a path that isn't absolute is below the folder shown.
  /// Raises 68 for a drive that can't be read, 76 if there is no such folder, 70 if it can't be read; the folder shown
  /// stays.
  void SetPath(const std::string& path);
  const std::vector<Folder>& Folders() const { return folders_; }
  /// The place in Folders() of the folder shown.
  int Current() const { return current_; }
  /// The place in Folders() of the folder marked.
  int ListIndex() const { return marked_; }
  bool TakesFocus() const override { return true; }

  /// A click, or a move by the keyboard, marks a folder.
  void UserMark(int index);
  /// A double click or Enter opens it.
  void UserOpen(int index);
  void UserOpenParent();

  Event<> Change{Parent()};

 private:
  void Show(const std::filesystem::path& path);
  bool IsDrive(const std::filesystem::path& path) const;

  const Desktop& desktop_;
  std::filesystem::path path_;
  std::vector<Folder> folders_;
  int current_ = 0;
  int marked_ = 0;
};

/// Lists the plain files of a folder that match a pattern, in any case; the exact name comes first.
class FileList : public Control {
 public:
  FileList(Form& form, std::string name) : Control(form, std::move(name)) {}
  const std::filesystem::path& Path() const { return path_; }
  /// Path and pattern each read the folder again, and mark nothing. One that can't be read has no files.
  void SetPath(const std::filesystem::path& path);
  void SetPattern(const std::string& pattern);
  const std::vector<std::string>& Files() const { return files_; }
  /// The file marked, -1 for none.
  int ListIndex() const { return marked_; }
  bool TakesFocus() const override { return true; }

  /// A click, or a move by the keyboard, marks a file; then comes Click.
  void UserMark(int index);

  Event<> Click{Parent()};

 private:
  void Read();

  std::filesystem::path path_;
  std::string pattern_ = "*";
  std::vector<std::string> files_;
  int marked_ = -1;
};

/// A text box for the path of a folder, which offers the folders that begin with what is typed.
class FolderBox : public TextBox {
 public:
  FolderBox(Form& form, std::string name, const Desktop& desktop, const FolderList& shown);
  /// What the text names: "~" is the home folder, and a path that isn't absolute is below the folder that the list
  /// shows. Empty for an empty text.
  std::filesystem::path Folder() const { return Resolve(Text()); }
  std::vector<std::string> Completions() const;

 private:
  std::filesystem::path Resolve(const std::string& text) const;
  std::filesystem::path Home() const;

  const Desktop& desktop_;
  const FolderList& shown_;
};

}  // namespace norvane
