#pragma once

#include "forms/Control.h"

namespace norvane {

/// How much of long work is done. Hidden until there is something to show; its place is kept.
class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string name) : Control(form, std::move(name)) { SetVisible(false); }
  /// From 0 to 1.
  double Share() const { return share_; }
  void SetShare(double share) {
    share_ = share;
    Notify(Aspect::State);
  }

 private:
  double share_ = 0;
};

}  // namespace norvane
