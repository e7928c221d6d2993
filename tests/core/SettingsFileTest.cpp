#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

#include "core/SettingsFile.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

class SettingsFile : public testing::Test {
 protected:
  SettingsFile() {
    std::string name = (fs::temp_directory_path() / "norvanes-settings-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    file_ = folder_ / "norvane.ini";
  }
  ~SettingsFile() override { fs::remove_all(folder_); }

  void Put(std::string_view content) { std::ofstream(file_, std::ios::binary) << content; }
  std::string Content() const {
    std::ifstream stream(file_, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::string Get(std::string_view section, std::string_view key) const {
    return GetIniString(section, key, "default", file_);
  }
  bool Write(std::string_view section, std::string_view key, std::string_view value) const {
    return WriteIniString(section, key, value, file_);
  }

  fs::path folder_;
  fs::path file_;
};

TEST_F(SettingsFile, ReadsWhateverTheCaseAndTheBlanks) {
  Put("\xEF\xBB\xBF; LEFT=1\r\n[ customer ]\r\n  Left =  250 \r\nTOP=\r\nleft=9\r\n[GL]\r\nonly\r\nX=\"a b "
      "\"\r\n[Customer]\r\nW=7");
  EXPECT_EQ(Get("Customer", "LEFT"), "250");
  EXPECT_EQ(Get("Customer", "TOP"), "");
  EXPECT_EQ(Get("CUSTOMER", "W"), "default");
  EXPECT_EQ(Get("gl", "x"), "a b ");
  EXPECT_EQ(Get("gl", "only"), "default");
  EXPECT_EQ(Get("None", "X"), "default");
}

TEST_F(SettingsFile, CutsAValueAtACharacter) {
  Put("[A]\nK=" + std::string(254, 'x') + "\u00E9y\nNoText=" + std::string(300, '\x80'));
  EXPECT_EQ(Get("A", "K"), std::string(254, 'x'));
  EXPECT_EQ(Get("A", "NoText").size(), 255u);
  EXPECT_EQ(GetIniString("A", "None", std::string(300, 'x'), file_).size(), 255u);
}

TEST_F(SettingsFile, IsMadeByTheFirstWrite) {
  EXPECT_EQ(Get("Data", "BackUpTo"), "default");
  EXPECT_FALSE(fs::exists(file_));
  EXPECT_TRUE(Write("Data", "BackUpTo", "/home"));
  EXPECT_EQ(Content(), "[Data]\nBackUpTo=/home\n");
}

TEST_F(SettingsFile, LeavesEveryOtherByteAsItIs) {
  const std::string above = "\xEF\xBB\xBF; mine\r\n\xFF\xFE garbage\r\n[Other]\r\nLeft=1\r\n\r\n[customer]\r\n";
  const std::string below = "\r\n\r\n[GL]\r\nLEFT=3";
  Put(above + "left = 2 " + below);
  EXPECT_TRUE(Write("Customer", "LEFT", "200"));
  EXPECT_EQ(Content(), above + "left =200" + below);
  EXPECT_TRUE(Write("Customer", "TOP", "5"));
  EXPECT_EQ(Content(), above + "left =200\r\nTOP=5" + below);
  EXPECT_TRUE(Write("gl", "TOP", "6"));
  EXPECT_TRUE(Write("New", "K", "7"));
  EXPECT_EQ(Content(), above + "left =200\r\nTOP=5" + below + "\r\nTOP=6\r\n[New]\r\nK=7\r\n");
}

TEST_F(SettingsFile, RefusesWhatWouldReadBackAsSomethingElse) {
  Put("[A]\nK=1\n");
  EXPECT_FALSE(Write("A", "K", "1\n[B]"));
  EXPECT_FALSE(Write("A]", "K", "1"));
  EXPECT_FALSE(Write("A", "K=L", "1"));
  EXPECT_FALSE(Write("A", " ", "1"));
  EXPECT_FALSE(Write("A", ";K", "1"));
  EXPECT_EQ(Content(), "[A]\nK=1\n");
}

TEST_F(SettingsFile, KeepsModeAndLinkAndLeavesNothingBeside) {
  std::ofstream(folder_ / "real.ini.new") << "left by a crash";
  const fs::path real = folder_ / "real.ini";
  std::ofstream(real) << "[A]\nK=1\n";
  fs::permissions(real, fs::perms(0640));
  fs::create_symlink("real.ini", file_);
  EXPECT_TRUE(Write("A", "K", "2"));
  EXPECT_EQ(Content(), "[A]\nK=2\n");
  EXPECT_TRUE(fs::is_symlink(file_));
  EXPECT_EQ(fs::status(real).permissions(), fs::perms(0640));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 2);
  EXPECT_TRUE(WriteIniString("A", "K", "1", folder_ / "own.ini"));
  EXPECT_EQ(fs::status(folder_ / "own.ini").permissions(), fs::perms(0600));
}

TEST_F(SettingsFile, SaysSoWhenItCannotBeWritten) {
  EXPECT_FALSE(WriteIniString("A", "K", "1", folder_ / "missing" / "norvane.ini"));
  // A folder or a pipe of that name is neither read nor replaced.
  fs::create_directory(file_);
  EXPECT_EQ(Get("A", "K"), "default");
  EXPECT_FALSE(Write("A", "K", "1"));
  const fs::path pipe = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(GetIniString("A", "K", "default", pipe), "default");
  EXPECT_FALSE(WriteIniString("A", "K", "1", pipe));
}

TEST_F(SettingsFile, LeavesAReadOnlyOneAlone) {
  if (geteuid() == 0) GTEST_SKIP() << "nothing is read-only for the superuser";
  Put("[A]\nK=1\n");
  fs::permissions(folder_, fs::perms(0500));
  EXPECT_FALSE(Write("A", "K", "2"));
  fs::permissions(folder_, fs::perms(0700));
  fs::permissions(file_, fs::perms(0400));
  EXPECT_FALSE(Write("A", "K", "2"));
  EXPECT_EQ(Content(), "[A]\nK=1\n");
}

TEST_F(SettingsFile, SurvivesGarbage) {
  for (const std::string& content :
       {std::string("\0\0[\0A]\0K=\0\n", 11), std::string("["), std::string("]\n[]\n=\n==\n"), std::string("[A\nK=1"),
        std::string(1 << 20, '='), std::string("\r\r\n\r")}) {
    Put(content);
    Get("A", "K");
    EXPECT_TRUE(Write("A", "K", "value"));
    EXPECT_EQ(Get("A", "K"), "value");
  }
}

}  // namespace
}  // namespace norvane
