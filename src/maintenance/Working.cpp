#include "maintenance/Working.h"

#include <utility>

namespace norvane {
namespace {

constexpr double kSecond = 1.0 / (24 * 60 * 60);
constexpr double kPatience = 0.5 * kSecond;
constexpr double kBetweenReports = 0.1 * kSecond;

}  // namespace

Working::Working(Program& host)
    : Form(host, kName, {.caption = "Working", .resizable = false, .goesWithOwner = true, .notice = true}) {
  SetLayout(layout::Column({lblWork, Progress1}));
  Progress1.SetVisible(true);
}

WorkingNotice::WorkingNotice(Program& program, std::string work)
    : program_(program), work_(std::move(work)), shown_(program.desktop.Now().Serial()) {}

WorkingNotice::~WorkingNotice() {
  if (isUp_) program_.screens.Unload(Working::kName);
}

Progress WorkingNotice::Report() {
  return [this](double done) { Show(done); };
}

void WorkingNotice::Show(double done) {
  const double now = program_.desktop.Now().Serial();
  if (now - shown_ < (isUp_ ? kBetweenReports : kPatience)) return;
  shown_ = now;
  auto& notice = program_.screens.Touch<Working>();
  notice.lblWork.SetCaption(work_ + "...");
  notice.Progress1.SetShare(done);
  if (!std::exchange(isUp_, true)) notice.Show();
  program_.desktop.DoEvents();
}

}  // namespace norvane
