#pragma once

#include <memory>

#include "forms/Form.h"
#include "forms/ProgressBar.h"
#include "forms/ScreenNames.h"
#include "maintenance/KeptCopies.h"

namespace norvane {

/// Keeps the first copy of a day in slices, while the user works. The program loads this screen at its start and
/// doesn't show it.
class DailyCopy : public Form {
 public:
  static constexpr const char* kName = screen::kDailyCopy;
  explicit DailyCopy(Program& program);

  Label lblWork{*this, "lblWork", "Keeping a copy of today's data..."};
  ProgressBar Progress1{*this, "Progress1"};
  Timer tmrSlice{*this, "tmrSlice", 20, false};

 private:
  void Form_Load() override;
  void tmrSlice_Timer();
  bool CopySlice();

  std::unique_ptr<KeptCopy> copy_;
};

}  // namespace norvane
