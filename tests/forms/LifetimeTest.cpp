#include "TestForms.h"

namespace norvane::test {
namespace {

class LifetimeTest : public FormsTest {};

TEST_F(LifetimeTest, ATouchLoadsAShowMakesVisibleAndUnloadingMakesRoomForANewInstance) {
  Add("A");
  program.screens.Unload("A");
  EXPECT_THAT(Taken(), IsEmpty()) << "what isn't loaded is neither loaded nor unloaded";
  Touch("A").first.SetText("x");
  EXPECT_THAT(Taken(), ElementsAre("A Load"));
  EXPECT_FALSE(Touch("A").IsVisible());
  Show("A");
  EXPECT_THAT(Taken(), ElementsAre("A Resize", "A first.GotFocus"));
  Show("A");
  EXPECT_THAT(Taken(), IsEmpty());
  EXPECT_THAT(desktop.log, ElementsAre("show A", "front A"));
  EXPECT_EQ(Touch("A").first.Text(), "x");
  program.screens.Unload("A");
  EXPECT_THAT(Taken(), ElementsAre("A Unload", "A Terminate"));
  EXPECT_EQ(Touch("A").first.Text(), "");
}

TEST_F(LifetimeTest, AFormUnloadedInItsOwnLoadIsNotShown) {
  Add("A", {.load = [](TestForm& form) { form.Unload(); }});
  program.screens.Show("A");
  EXPECT_THAT(log, ElementsAre("A Load", "A Unload", "A Terminate"));
  EXPECT_EQ(program.screens.Find("A"), nullptr);
  EXPECT_THAT(desktop.log, ElementsAre("gone A"));
}

TEST_F(LifetimeTest, CodeGoesOnInAnUnloadedFormAndNoEventReachesIt) {
  Add("A", {.press = [this](TestForm& form) {
        form.Unload();
        form.first.SetText("still here");
        form.second.SetFocus();
        form.button.Press();
        log.push_back(form.first.Text());
        EXPECT_EQ(Touch("A").first.Text(), "") << "the next touch makes a new instance";
      }});
  Show("A").first.Change = [this] { log.push_back("Change"); };
  Taken();
  Touch("A").button.Press();
  EXPECT_THAT(log, ElementsAre("A first.LostFocus", "A button.GotFocus", "A button.Click", "A Unload", "still here",
                               "A Load", "A Terminate"));
  EXPECT_EQ(desktop.log.back(), "gone A");
}

TEST_F(LifetimeTest, AFormDiesOnlyAfterTheOutermostDispatch) {
  Add("A");
  Add("B", {.press = [this](TestForm& form) {
        program.screens.Unload("A");
        log.push_back("B goes on");
        EXPECT_EQ(desktop.log.back(), "hide A");
        form.Unload();
      }});
  Show("A");
  Show("B");
  Taken();
  Touch("B").button.Press();
  EXPECT_THAT(log, ElementsAre("B first.LostFocus", "B button.GotFocus", "B button.Click", "A Unload", "A Terminate",
                               "B goes on", "B Unload", "B Terminate"));
  EXPECT_EQ(std::count(desktop.log.begin(), desktop.log.end(), "gone A"), 1);
}

TEST_F(LifetimeTest, AnErrorThatLeavesAHandlerIsShownAndEndsThere) {
  Add("A", {.load = [](TestForm&) { Raise(ErrorNumber::TypeMismatch); }});
  desktop.Expect("Run-time error '13':\n\nType mismatch");
  Show("A");
  EXPECT_TRUE(Touch("A").IsVisible());
  EXPECT_EQ(desktop.boxes[0].title, "Norvanes");
}

TEST_F(LifetimeTest, NoFaultThatLeavesAHandlerEndsTheProgram) {
  Add("A", {.press = [this](TestForm& form) {
        form.first.SetText("typed");
        program.screens.Show("NoSuchScreen");
      }});
  Add("B", {.press = [](TestForm& form) { form.timer.Tick = [] {}; }});
  Show("A");
  desktop.Expect("Run-time error '5':\n\nThe program has no screen or action named NoSuchScreen.");
  Touch("A").button.Press();
  desktop.Expect("Internal error: The event has a handler already.");
  Show("B").button.Press();
  EXPECT_EQ(Touch("A").first.Text(), "typed");
}

TEST_F(LifetimeTest, UnloadingTheOwnerTakesItsPickersAlong) {
  Add("Owner");
  Add("Picker", {}, {.width = 1, .height = 1, .goesWithOwner = true});
  Add("Detail");
  Form& owner = Show("Owner");
  Show("Picker", {.owner = &owner});
  Show("Detail", {.owner = &owner});
  Taken();
  owner.Unload();
  EXPECT_THAT(log, ElementsAre("Owner Unload", "Picker Unload", "Picker Terminate", "Owner Terminate"));
  EXPECT_EQ(Touch("Detail").Owner(), nullptr);
}

TEST_F(LifetimeTest, AModalFormHoldsItsOpenerUntilItIsUnloaded) {
  Add("Opener", {.press = [this](TestForm& form) {
        program.screens.Show("Modal", {.owner = &form, .modal = true});
        log.push_back("the opener goes on");
      }});
  Add("Modal");
  Add("Other");
  Show("Opener");
  Taken();
  desktop.WhenModal("Modal", [this](Form& form) {
    program.screens.Show("Modal", {.modal = true});
    Show("Other");
    EXPECT_TRUE(Touch("Other").IsVisible());
    Touch("Other").second.SetFocus();
    EXPECT_EQ(program.focus.ActiveForm(), &form) << "the other one waits behind";
    program.screens.Unload("Opener");
    form.Unload();
  });
  Touch("Opener").button.Press();
  EXPECT_THAT(log, ElementsAre("Opener first.LostFocus", "Opener button.GotFocus", "Opener button.Click", "Modal Load",
                               "Modal Resize", "Opener button.LostFocus", "Modal first.GotFocus", "Other Load",
                               "Other Resize", "Opener Unload", "Modal Unload", "Other second.GotFocus",
                               "Modal Terminate", "the opener goes on", "Opener Terminate"));
}

TEST_F(LifetimeTest, TimersReachOnlyLoadedForms) {
  Add("A", {.load = [](TestForm& form) { form.timer.SetRunning(true); }});
  Timer& timer = Touch("A").timer;
  EXPECT_TRUE(timer.Running());
  desktop.Tick("A", "timer");
  EXPECT_EQ(log.back(), "A timer.Tick");
  const Dispatch untilTheEnd(program);
  program.screens.Unload("A");
  EXPECT_FALSE(timer.Running());
  Taken();
  timer.Tick.Raise();
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(LifetimeTest, TheProgramEndsWithItsLastVisibleForm) {
  Add("Main");
  Add("Other", {.unload = [this](TestForm&) { Touch("Main").first.SetText("read and written"); }});
  Add("Hidden");
  program.Start("Main");
  Show("Other");
  Touch("Hidden");
  Taken();
  program.screens.Unload("Main");
  EXPECT_EQ(program.screens.Find("Main"), nullptr);
  EXPECT_FALSE(Touch("Main").IsLoaded()) << "its controls stay readable and aren't loaded again";
  program.screens.Unload("Other");
  EXPECT_THAT(log, ElementsAre("Main Unload", "Other Unload", "Other Terminate", "Hidden Unload", "Hidden Terminate",
                               "Main Terminate"));
  EXPECT_TRUE(desktop.HasQuit());
  EXPECT_THAT(program.screens.Loaded(), IsEmpty());
}

TEST_F(LifetimeTest, OnlyShowLoadsAnUnloadedMainScreenAnew) {
  Add("Main");
  Add("Other", {.press = [this](TestForm&) {
        Touch("Main").first.SetText("old");
        Show("Main");
      }});
  program.Start("Main");
  Show("Other");
  program.screens.Unload("Main");
  Taken();
  Touch("Other").button.Press();
  EXPECT_THAT(log, ElementsAre("Other first.LostFocus", "Other button.GotFocus", "Other button.Click", "Main Load",
                               "Main Resize", "Other button.LostFocus", "Main first.GotFocus"));
  EXPECT_EQ(Touch("Main").first.Text(), "");
  EXPECT_FALSE(desktop.HasQuit());
}

TEST_F(LifetimeTest, HiddenForAMomentEndsNothing) {
  Add("Main", {.press = [this](TestForm& form) {
        form.Hide();
        desktop.DoEvents();
        form.Show();
      }});
  program.Start("Main");
  Touch("Main").button.Press();
  EXPECT_FALSE(desktop.HasQuit());
  Touch("Main").Hide();
  EXPECT_TRUE(desktop.HasQuit());
}

}  // namespace
}  // namespace norvane::test
