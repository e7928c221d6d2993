#include <gtest/gtest-spi.h>

#include "TestForms.h"

namespace norvane::test {
namespace {

/// The double has to fail a test by itself wherever the script and the program part ways.
class ScriptedDesktopTest : public FormsTest {};

TEST_F(ScriptedDesktopTest, FailsOnBoxesThatDoNotFitTheScript) {
  EXPECT_NONFATAL_FAILURE(desktop.Say("Saved."), "Nobody expected this box: [Norvanes] Saved.");
  desktop.Expect("Deleted");
  EXPECT_NONFATAL_FAILURE(desktop.Say("Saved."), "Expected a box with: Deleted");
  desktop.Expect("Saved", Answer::Yes);
  EXPECT_NONFATAL_FAILURE(desktop.Say("Saved."), "No button gives that answer");
}

TEST_F(ScriptedDesktopTest, FailsOnWhatNobodyAskedFor) {
  EXPECT_NONFATAL_FAILURE(ScriptedDesktop().Expect("Saved"), "The box never came: Saved");
  EXPECT_NONFATAL_FAILURE(ScriptedDesktop().WhenModal("A", [](Form&) {}), "Never shown modally: A");
  EXPECT_NONFATAL_FAILURE(ScriptedDesktop().DuringWait([] {}), "a wait that never came");
  EXPECT_NONFATAL_FAILURE(ScriptedDesktop().DuringDoEvents([] {}), "an event pump that never turned");
  EXPECT_NONFATAL_FAILURE(desktop.Tick("A", "timer"), "No such timer runs: A.timer");
}

TEST_F(ScriptedDesktopTest, FailsOnModalFormsThatStandOrCameUnawaited) {
  Add("A");
  EXPECT_NONFATAL_FAILURE(program.screens.Show("A", {.modal = true}), "Nobody expected this form to be modal: A");
  EXPECT_EQ(program.screens.Find("A"), nullptr);
  desktop.WhenModal("A", [](Form&) {});
  EXPECT_NONFATAL_FAILURE(program.screens.Show("A", {.modal = true}), "Still open after its step: A");
  EXPECT_EQ(program.screens.Find("A"), nullptr);
}

}  // namespace
}  // namespace norvane::test
