#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/FileLists.h"
#include "forms/TestForms.h"
#include "support/ScriptedDesktop.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class FilesForm : public Form {
 public:
  static constexpr const char* kName = "FilesForm";
  explicit FilesForm(Program& host) : Form(host, kName, {}) {
    SetLayout(layout::Column({txtFolder, Drive1, Dir1, File1}));
    Dir1.Change = [this] { ++changes; };
  }

  DriveList Drive1{*this, "Drive1", desktop};
  FolderList Dir1{*this, "Dir1", desktop};
  FileList File1{*this, "File1"};
  FolderBox txtFolder{*this, "txtFolder", desktop, Dir1};
  int changes = 0;
};

class FileListsTest : public testing::Test {
 protected:
  FileListsTest() {
    for (const char* name : {"home/Été", "home/beta/inner", "home/Alpha", "home/.hidden"}) {
      fs::create_directories(top / name);
    }
    desktop.drives = {"/", top / "home"};
    desktop.currentFolder = top / "home";
    program.screens.Add<FilesForm>();
    program.screens.Show(FilesForm::kName);
  }
  ~FileListsTest() override { fs::remove_all(top); }

  FilesForm& Screen() { return program.screens.Touch<FilesForm>(); }
  std::vector<std::string> Within() {
    std::vector<std::string> names;
    const auto& folders = Screen().Dir1.Folders();
    for (auto i = static_cast<std::size_t>(Screen().Dir1.Current()); i < folders.size(); ++i) {
      names.push_back(folders[i].name);
    }
    return names;
  }
  static fs::path NewFolder() {
    std::string pattern = fs::temp_directory_path() / "norvanes-XXXXXX";
    return mkdtemp(pattern.data());
  }

  const fs::path top = NewFolder();
  test::ScriptedDesktop desktop;
  Program program{desktop, {}, top};
};

TEST_F(FileListsTest, AFolderIsShownBelowItsParentsAndOpenedByADoubleClick) {
  FolderList& list = Screen().Dir1;
  EXPECT_EQ(list.Folders().front().name, "/");
  EXPECT_THAT(Within(), ElementsAre("home", "Alpha", "beta", "Été"));
  list.UserMark(list.Current() + 2);
  EXPECT_EQ(Screen().changes, 0) << "a click only marks";
  list.UserOpen(list.Current() + 2);
  EXPECT_THAT(Within(), ElementsAre("beta", "inner"));
  EXPECT_EQ(Screen().changes, 1);
  list.UserOpenParent();
  EXPECT_EQ(list.Path(), top / "home");
}

TEST_F(FileListsTest, APathThatCannotBeReadChangesNothing) {
  FolderList& list = Screen().Dir1;
  desktop.drives.push_back(top / "pulled out");
  const std::pair<fs::path, int> cases[] = {{"missing", 76}, {top / "pulled out", 68}, {top / "home" / "file", 76}};
  for (const auto& [path, number] : cases) {
    try {
      list.SetPath(path.string());
      ADD_FAILURE() << path;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), number) << path;
    }
  }
  EXPECT_EQ(list.Path(), top / "home");
  EXPECT_EQ(Screen().changes, 0);
  Screen().Drive1.SetDrive("c:");
  EXPECT_EQ(Screen().Drive1.Drive(), "/");
  list.SetPath("C");
  EXPECT_EQ(list.Path(), "/");
}

TEST_F(FileListsTest, ATypedFolderIsFoundAndCompleted) {
  FolderBox& box = Screen().txtFolder;
  const std::pair<std::string, fs::path> names[] = {{"", ""},
                                                    {"beta", top / "home" / "beta"},
                                                    {"~/beta", top / "home" / "beta"},
                                                    {"C:\\tmp\\\\x", "/tmp/x"},
                                                    {"/tmp//x", "/tmp/x"}};
  for (const auto& [text, folder] : names) {
    box.UserType(text);
    EXPECT_EQ(box.Folder(), folder) << text;
  }
  box.UserType("~/be");
  EXPECT_THAT(box.Completions(), ElementsAre("~/beta"));
  box.UserType((top / "home").string() + "/");
  EXPECT_EQ(box.Completions().size(), 3u);
}

}  // namespace
}  // namespace norvane
