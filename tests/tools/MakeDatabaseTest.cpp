#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class MakeDatabaseTest : public testing::Test {
 protected:
  MakeDatabaseTest() {
    std::string pattern = fs::temp_directory_path() / "norvanes-XXXXXX";
    folder_ = mkdtemp(pattern.data());
  }
  ~MakeDatabaseTest() override { fs::remove_all(folder_); }

  fs::path Target() const { return folder_ / "norvane.mdb"; }

  /// True if the tool says that it went well.
  bool Make(const std::string& schema = NORVANES_SCHEMA) const {
    const std::string command =
        std::string(NORVANES_MAKE_DATABASE) + " " + schema + " " + Target().string() + " 2>/dev/null";
    return std::system(command.c_str()) == 0;
  }

  std::string Content() const {
    std::stringstream text;
    text << std::ifstream(Target(), std::ios::binary).rdbuf();
    return text.str();
  }

  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path folder_;
};

TEST_F(MakeDatabaseTest, MakesAFileForItsOwnerAlone) {
  ASSERT_TRUE(Make());
  struct stat status {};
  ASSERT_EQ(stat(Target().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
  EXPECT_EQ(Content().substr(0, 15), "SQLite format 3");
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(MakeDatabaseTest, NeverTouchesAFileThatIsThere) {
  std::ofstream(Target()) << "a year's work";
  EXPECT_FALSE(Make());
  EXPECT_EQ(Content(), "a year's work");
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(MakeDatabaseTest, LeavesNothingBehindWhenItFails) {
  const fs::path broken = folder_ / "broken.sql";
  std::ofstream(broken) << "create table a (b); create nonsense;";
  EXPECT_FALSE(Make(broken.string()));
  EXPECT_FALSE(Make((folder_ / "none.sql").string()));
  EXPECT_EQ(FilesInFolder(), 1U);
}

}  // namespace
