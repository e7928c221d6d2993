#include "forms/LongWork.h"

#include "forms/Form.h"
#include "forms/ProgressBar.h"

namespace norvane {

namespace {

constexpr double kSecondsBetweenPaints = 0.1;
constexpr double kSecondsWithoutBar = 0.5;
constexpr double kSecondsOfDay = 86'400;

}  // namespace

LongWork::LongWork(Program& program, int steps, std::string_view notice)
    : program_(program), notice_(notice), steps_(steps), start_(program.desktop.Now()), painted_(start_) {}

void LongWork::Step() {
  ++done_;
  if (SecondsSince(painted_) < kSecondsBetweenPaints) return;
  if (SecondsSince(start_) > kSecondsWithoutBar) ShowBar();
  program_.desktop.DoEvents();
  painted_ = program_.desktop.Now();
}

double LongWork::SecondsSince(Date time) const {
  return (program_.desktop.Now().Serial() - time.Serial()) * kSecondsOfDay;
}

// The notice is looked up each time: it may have been closed meanwhile.
void LongWork::ShowBar() const {
  const Form* notice = program_.screens.Find(notice_);
  if (!notice) return;
  for (Control* control : notice->Controls()) {
    if (auto* bar = dynamic_cast<ProgressBar*>(control)) {
      bar->SetShare(static_cast<double>(done_) / steps_);
      bar->SetVisible(true);
    }
  }
}

}  // namespace norvane
