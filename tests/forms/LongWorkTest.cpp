#include <gtest/gtest.h>

#include "forms/Form.h"
#include "forms/LongWork.h"
#include "forms/ProgressBar.h"
#include "support/ScriptedDesktop.h"

namespace norvane::test {
namespace {

class Notice : public Form {
 public:
  static constexpr const char* kName = "Notice";
  explicit Notice(Program& host) : Form(host, kName, {.notice = true}) {}
  ProgressBar Bar{*this, "Bar"};
};

TEST(LongWork, PaintsEveryTenthOfASecondAndShowsTheBarAfterHalfASecond) {
  ScriptedDesktop desktop;
  Program program{desktop, RegionalSettings{}, {}};
  program.screens.Add<Notice>();
  const ProgressBar& bar = program.screens.Touch<Notice>().Bar;
  std::string seen;
  LongWork work(program, 20, Notice::kName);
  for (int step = 1; step <= 20; ++step) {
    desktop.now = desktop.now + 0.06 / 86'400;
    bool painted = false;
    desktop.DuringDoEvents([&] { painted = true; });
    work.Step();
    seen += painted ? bar.Visible() ? 'b' : 'p' : '.';
    if (!painted) desktop.DoEvents();
  }
  EXPECT_EQ(seen, ".p.p.p.p.b.b.b.b.b.b");
  EXPECT_EQ(bar.Share(), 1);
}

}  // namespace
}  // namespace norvane::test
