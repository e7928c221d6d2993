#include <fstream>
#include <sstream>

#include "Office.h"
#include "screens/About.h"

namespace norvane::test {
namespace {

using ::testing::HasSubstr;

class WindowPlaceTest : public Office {
 protected:
  WindowPlaceTest() { AddClients(); }
  std::string Place() {
    std::ostringstream text;
    text << Main().Left() << " " << Main().Top() << " " << Main().Width() << " " << Main().Height();
    return text.str();
  }
  void WriteIni(const std::string& text) { std::ofstream(Ini()) << text; }
  std::string ReadIni() {
    std::ostringstream text;
    text << std::ifstream(Ini()).rdbuf();
    return text.str();
  }
  std::filesystem::path Ini() { return database.Folder() / "norvane.ini"; }
};

TEST_F(WindowPlaceTest, StartsAtADefaultAndIsKeptAtTheExit) {
  Start();
  EXPECT_EQ(Place(), "100 100 8000 6000");
  EXPECT_FALSE(std::filesystem::exists(Ini()));
  Main().UserMove(300, 450);
  Main().UserResize(9000.5, 7000);
  Main().btnExit.Press();
  std::string written = ReadIni();
  std::erase(written, '\r');
  EXPECT_THAT(written, HasSubstr("[Customer]\nLEFT=300\nTOP=450\nWIDTH=9000.5\nHEIGHT=7000\n"));
}

TEST_F(WindowPlaceTest, IsLeftAloneByAMinimizedExit) {
  WriteIni("[Customer]\nLEFT=1\nTOP=2\nWIDTH=9000\nHEIGHT=7000\n");
  Start();
  EXPECT_EQ(Place(), "1 2 9000 7000");
  Main().UserMove(500, 500);
  Main().UserWindowState(WindowState::Minimized);
  Main().btnExit.Press();
  EXPECT_THAT(ReadIni(), HasSubstr("LEFT=1\n"));
}

TEST_F(WindowPlaceTest, TakesGarbledValuesAsZero) {
  WriteIni("[Customer]\nLEFT=left\nTOP=20up\nWIDTH=7%\nHEIGHT=tall\n");
  Start();
  EXPECT_EQ(Place(), "0 20 7 0");
}

TEST_F(WindowPlaceTest, JumpsBackWhenTheAboutBoxOpens) {
  Start();
  Main().UserMove(300, 450);
  Main().UserResize(9000, 7000);
  Main().mnuAbout.Choose();
  EXPECT_EQ(Place(), "100 100 8000 6000");
  program.screens.Touch<About>().Command1.Press();
  EXPECT_FALSE(IsOpen("About"));
}

TEST_F(WindowPlaceTest, StretchesTheListAndKeepsTheRightStripFlush) {
  Start();
  Main().UserResize(10000, 7000);
  const auto& list = Main().CustList2;
  EXPECT_EQ(list.Width(), 9840);
  EXPECT_EQ(list.Height(), 5400);
  EXPECT_EQ(list.Left(), 20);
  EXPECT_EQ(list.Top(), 620);
  EXPECT_EQ(Main().Frame1.Left() + Main().Frame1.Width(), Main().Frame2.Width());

  Main().UserResize(160, 1600);
  EXPECT_EQ(list.Width(), 9840) << "at the limit nothing follows";
  EXPECT_EQ(list.Height(), 5400);
  Main().UserResize(161, 1601);
  EXPECT_EQ(list.Width(), 1);
  EXPECT_EQ(list.Height(), 1);

  Main().UserWindowState(WindowState::Minimized);
  Main().UserResize(10000, 7000);
  EXPECT_EQ(list.Width(), 1);
}

}  // namespace
}  // namespace norvane::test
