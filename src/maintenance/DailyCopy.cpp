#include "maintenance/DailyCopy.h"

namespace norvane {

DailyCopy::DailyCopy(Program& host)
    : Form(host, kName, {.caption = "Keeping a Copy", .resizable = false, .goesWithOwner = true, .notice = true}) {
  SetLayout(layout::Column({lblWork, Progress1}));
  Progress1.SetVisible(true);
  tmrSlice.Tick = [this] { tmrSlice_Timer(); };
}

void DailyCopy::Form_Load() {
  tmrSlice.SetRunning(true);
}

void DailyCopy::tmrSlice_Timer() {
  try {
    if (!CopySlice()) return;
  } catch (const RuntimeError& error) {
    SayNoCopyKept(program, error);
  }
  tmrSlice.SetRunning(false);
  copy_.reset();
}

/// True when there is nothing more to do.
bool DailyCopy::CopySlice() {
  if (!copy_ && !NeedsCopyOfToday(program, kFirstStart)) return true;
  if (!copy_) copy_ = std::make_unique<KeptCopy>(program, kFirstStart);
  const bool isComplete = copy_->CopySlice();
  Progress1.SetShare(copy_->Done());
  return isComplete;
}

}  // namespace norvane
