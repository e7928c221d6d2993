#include "Office.h"

namespace norvane::test {
namespace {

class NoticesTest : public Office {
 protected:
  NoticesTest() {
    AddClients();
    Start();
  }
};

TEST_F(NoticesTest, LeaveTheFocusWhereItIsAndGoWithTheirOwner) {
  const Control* focused = program.focus.Current();
  program.screens.Show("GettingInvoices", {.owner = &Main()});
  EXPECT_EQ(program.focus.Current(), focused);
  Main().btnExit.Press();
  EXPECT_FALSE(IsOpen("GettingInvoices"));
  EXPECT_TRUE(desktop.HasQuit());
}

TEST_F(NoticesTest, CanBeClosedIfATrapLeftThemStanding) {
  program.screens.Show("LoadingClients");
  program.screens.Find("LoadingClients")->UserClose();
  EXPECT_FALSE(IsOpen("LoadingClients"));
}

TEST_F(NoticesTest, NameTheClientWhoseInvoicesAreLoaded) {
  globals.CurClientName = "All Clients";
  const auto* label = dynamic_cast<Label*>(program.screens.Touch("LoadingInvoices").Controls().front());
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Caption(), "Loading Invoices for ... All Clients");
}

}  // namespace
}  // namespace norvane::test
