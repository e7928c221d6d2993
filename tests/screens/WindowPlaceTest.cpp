#include <fstream>
#include <sstream>

#include "Office.h"
#include "screens/start/About.h"

namespace norvane::test {
namespace {

class WindowPlaceTest : public Office {
 protected:
  WindowPlaceTest() { AddClients(); }
  std::string Place() {
    std::ostringstream text;
    text << Main().Left() << " " << Main().Top() << " " << Main().Width() << " " << Main().Height();
    return text.str();
  }
};

TEST_F(WindowPlaceTest, TakesGarbledValuesAsZeroAndIsKeptAtTheExit) {
  const auto ini = database.Folder() / "norvane.ini";
  std::ofstream(ini) << "[Customer]\nLEFT=left\nTOP=20up\nWIDTH=7%\nHEIGHT=tall\n";
  Start();
  EXPECT_EQ(Place(), "0 20 7 0");
  Main().UserMove(300, 450);
  Main().UserResize(9000.5, 7000);
  Main().btnExit.Press();
  std::ostringstream written;
  written << std::ifstream(ini).rdbuf();
  std::string text = written.str();
  std::erase(text, '\r');
  EXPECT_THAT(text, HasSubstr("[Customer]\nLEFT=300\nTOP=450\nWIDTH=9000.5\nHEIGHT=7000\n"));
}

TEST_F(WindowPlaceTest, JumpsBackWhenTheAboutBoxOpensAndIsNotKeptWhileMinimized) {
  Start();
  Main().UserMove(300, 450);
  Main().UserResize(9000, 7000);
  Main().mnuAbout.Choose();
  EXPECT_EQ(Place(), "100 100 8000 6000");
  The<About>().Command1.Press();
  EXPECT_FALSE(IsOpen("About"));

  Main().UserMove(500, 500);
  Main().UserWindowState(WindowState::Minimized);
  Main().btnExit.Press();
  EXPECT_FALSE(std::filesystem::exists(database.Folder() / "norvane.ini")) << "a minimized window's place is not kept";
}

}  // namespace
}  // namespace norvane::test
