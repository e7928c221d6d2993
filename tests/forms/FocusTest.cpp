#include "TestForms.h"

namespace norvane::test {
namespace {

class FocusTest : public FormsTest {};

TEST_F(FocusTest, OfAFormThatIsShown) {
  Add("A", {.load = [](TestForm& form) { form.second.SetFocus(); }});
  Show("A");
  EXPECT_THAT(Taken(), ElementsAre("A Load", "A Resize", "A second.GotFocus")) << "where its load has put it";

  Add("B", {.load = [](TestForm& form) {
        form.first.SetVisible(false);
        form.second.SetEnabled(false);
        form.button.SetEnabled(false);
        form.second.SetFocus();
      }});
  Show("B");
  EXPECT_THAT(Taken(), ElementsAre("B Load", "B Resize", "A second.LostFocus", "B GotFocus"))
      << "no control can have it";
}

TEST_F(FocusTest, MovesBetweenControlsAndWindows) {
  Add("A");
  Add("B");
  TestForm& a = Show("A");
  TestForm& b = Show("B");
  Taken();
  b.second.SetFocus();
  b.second.SetFocus();
  EXPECT_THAT(Taken(), ElementsAre("B first.LostFocus", "B second.GotFocus"));
  a.UserActivate();
  EXPECT_THAT(Taken(), ElementsAre("B second.LostFocus", "A first.GotFocus"));
  b.first.SetFocus();
  EXPECT_THAT(Taken(), ElementsAre("A first.LostFocus", "B first.GotFocus"));
  EXPECT_EQ(desktop.log.back(), "front B");
  b.Unload();
  EXPECT_THAT(Taken(), ElementsAre("B Unload", "A first.GotFocus", "B Terminate"));
}

TEST_F(FocusTest, TheOwnerComesForwardBeforeTheLastActive) {
  Add("Owner");
  Add("Other");
  Add("Child");
  Form& owner = Show("Owner");
  Show("Other");
  Show("Child", {.owner = &owner});
  program.screens.Unload("Child");
  EXPECT_EQ(program.focus.ActiveForm(), &owner);
}

TEST_F(FocusTest, AHandlerThatMovesTheFocusWinsAndAButtonThatGoesIsNotPressed) {
  Add("A");
  TestForm& a = Show("A");
  a.first.LostFocus.Replace([&] { a.first.SetFocus(); });
  Taken();
  a.second.SetFocus();
  EXPECT_THAT(Taken(), ElementsAre("A first.GotFocus"));

  a.first.LostFocus.Replace([&] { a.button.SetEnabled(false); });
  a.button.Press();
  EXPECT_THAT(Taken(), ElementsAre("A first.GotFocus")) << "the focus goes where it can";

  a.button.SetEnabled(true);
  a.first.LostFocus.Replace([&] { a.Unload(); });
  a.button.Press();
  EXPECT_THAT(Taken(), ElementsAre("A Unload", "A Terminate"));
}

TEST_F(FocusTest, AControlThatGoesPassesItOn) {
  Add("A");
  TestForm& a = Show("A");
  a.second.SetFocus();
  Taken();
  a.second.SetVisible(false);
  EXPECT_THAT(Taken(), ElementsAre("A second.LostFocus", "A button.GotFocus"));
  a.button.SetEnabled(false);
  EXPECT_TRUE(a.first.HasFocus()) << "around to the first one";
}

}  // namespace
}  // namespace norvane::test
