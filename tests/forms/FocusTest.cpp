#include "TestForms.h"

namespace norvane::test {
namespace {

class FocusTest : public FormsTest {};

TEST_F(FocusTest, AFocusAskedForInAHiddenFormIsRemembered) {
  Add("A", {.load = [](TestForm& form) { form.second.SetFocus(); }});
  Show("A");
  EXPECT_THAT(log, ElementsAre("A Load", "A Resize", "A second.GotFocus"));
  EXPECT_TRUE(Touch("A").second.HasFocus());
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

TEST_F(FocusTest, NoticesAndBoxesLeaveItAlone) {
  Add("A");
  Add("Notice", {}, {.caption = "Getting...", .width = 1, .height = 1, .notice = true});
  Show("A");
  Taken();
  Show("Notice");
  desktop.Expect("Sure?");
  desktop.Say("Sure?");
  Touch("Notice").UserActivate();
  program.screens.Unload("Notice");
  EXPECT_THAT(log, ElementsAre("Notice Load", "Notice Resize", "Notice Unload", "Notice Terminate"));
  EXPECT_TRUE(Touch("A").first.HasFocus());
}

TEST_F(FocusTest, TheFormItselfGetsItOnlyWithoutAControlThatCan) {
  Add("A", {.load = [](TestForm& form) {
        form.first.SetVisible(false);
        form.second.SetEnabled(false);
        form.button.SetEnabled(false);
        form.second.SetFocus();
      }});
  Show("A");
  EXPECT_THAT(log, ElementsAre("A Load", "A Resize", "A GotFocus"));
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

TEST_F(FocusTest, AButtonIsPressedOnlyIfItIsStillThereAfterTheFocusMoved) {
  Add("A");
  TestForm& a = Show("A");
  a.first.LostFocus = [&] { a.button.SetEnabled(false); };
  Taken();
  a.button.Press();
  EXPECT_THAT(Taken(), ElementsAre("A first.GotFocus")) << "the focus goes where it can";

  a.button.SetEnabled(true);
  a.first.LostFocus = [&] { a.Unload(); };
  Taken();
  a.button.Press();
  EXPECT_THAT(log, ElementsAre("A Unload", "A Terminate"));
}

TEST_F(FocusTest, AHandlerThatMovesTheFocusWins) {
  Add("A");
  TestForm& a = Show("A");
  a.first.LostFocus = [&] { a.first.SetFocus(); };
  Taken();
  a.second.SetFocus();
  EXPECT_TRUE(a.first.HasFocus());
  EXPECT_THAT(log, ElementsAre("A first.GotFocus"));
}

TEST_F(FocusTest, AControlThatGoesPassesItOn) {
  Add("A");
  TestForm& a = Show("A");
  a.second.SetFocus();
  Taken();
  a.second.SetVisible(false);
  EXPECT_THAT(Taken(), ElementsAre("A second.LostFocus", "A button.GotFocus"));
  a.button.SetEnabled(false);
  EXPECT_TRUE(a.first.HasFocus());
}

TEST_F(FocusTest, TabGoesAroundInTheOrderOfTheLayout) {
  Add("A");
  TestForm& a = Show("A");
  a.UserTab();
  EXPECT_TRUE(a.second.HasFocus());
  a.UserTab();
  a.UserTab();
  EXPECT_TRUE(a.first.HasFocus());
  a.UserTab(true);
  EXPECT_TRUE(a.button.HasFocus());
}

}  // namespace
}  // namespace norvane::test
