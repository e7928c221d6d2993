#include <fstream>

#include "TestForms.h"
#include "support/OwnPath.h"

namespace norvane::test {
namespace {

class GeometryTest : public FormsTest {
 protected:
  void SetUp() override {
    program.globals.IniPath = OwnPath("geometry.ini");
    std::filesystem::remove(program.globals.IniPath);
  }
  void TearDown() override { std::filesystem::remove(program.globals.IniPath); }
  std::string File() const {
    std::ifstream file(program.globals.IniPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::array<Twips, 4> Place(const Form& form) { return {form.Left(), form.Top(), form.Width(), form.Height()}; }
};

TEST_F(GeometryTest, ReadsDefaultsAndWhatWasWritten) {
  Add("A");
  TestForm& a = Touch("A");
  a.ReadGeometry("GL");
  EXPECT_EQ(Place(a), (std::array<Twips, 4>{100, 100, 8000, 6000}));
  a.UserMove(-15, 1234.5);
  a.UserResize(1e6, 100.0 / 3);
  a.WriteGeometry("GL");
  EXPECT_THAT(File(), testing::MatchesRegex("\\[GL\\]\r?\nLEFT=-15\r?\nTOP=1234.5\r?\nWIDTH=1000000\r?\nHEIGHT=33.33333"
                                            "\r?\n"));
  a.UserMove(0, 0);
  a.ReadGeometry("gl");
  EXPECT_EQ(Place(a), (std::array<Twips, 4>{-15, 1234.5, 1e6, 33.33333}));
}

TEST_F(GeometryTest, ResizesOfAVisibleFormAreTold) {
  Add("A", {.load = [](TestForm& form) { form.SetWidth(5000); }});
  TestForm& a = Show("A");
  EXPECT_THAT(Taken(), ElementsAre("A Load", "A Resize", "A first.GotFocus"));
  EXPECT_EQ(a.ScaleWidth(), 5000 - 120);
  EXPECT_EQ(a.ScaleHeight(), 3000 - 405);
  a.UserResize(6000, 4000);
  a.UserResize(6000, 4000);
  a.UserWindowState(WindowState::Maximized);
  EXPECT_THAT(Taken(), ElementsAre("A Resize", "A Resize"));
}

struct MenuForm : Form {
  static constexpr const char* kName = "MenuForm";
  explicit MenuForm(Program& program_) : Form(program_, kName, {.width = 4000, .height = 3000}) {
    using namespace layout;
    SetLayout(Column({Strip({button, Space()}),
                      Tabs(tabs, {{"One", Group(frame, Field("&Name:", second))}, {"Two", Stretch(Row({first}))}})}));
  }
  MenuEntry menu{*this, "mnuFile", "&File"};
  TextBox first{*this, "first"};
  TextBox second{*this, "second"};
  Button button{*this, "button", {}};
  Frame frame{*this, "frame"};
  TabControl tabs{*this, "tabs"};
};

TEST_F(GeometryTest, AMenuBarTakesFromTheInnerHeightAndTheLayoutGivesTheTabOrder) {
  program.screens.Add<MenuForm>();
  auto& a = program.screens.Touch<MenuForm>();
  EXPECT_EQ(a.ScaleHeight(), 3000 - 405 - 285);
  EXPECT_THAT(a.TabOrder(), ElementsAre(&a.button, &a.tabs, &a.second, &a.first));
  a.tabs.SetVisible(false);
  a.second.SetEnabled(false);
  EXPECT_THAT(a.TabOrder(), ElementsAre(&a.button, &a.first));
}

}  // namespace
}  // namespace norvane::test
