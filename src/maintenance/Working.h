#pragma once

#include <string>

#include "forms/Form.h"
#include "forms/ProgressBar.h"
#include "forms/ScreenNames.h"
#include "store/DatabaseFile.h"

namespace norvane {

/// The notice that shows how far a piece of work on the database file is.
class Working : public Form {
 public:
  static constexpr const char* kName = screen::kWorking;
  explicit Working(Program& program);

  Label lblWork{*this, "lblWork", "Working"};
  ProgressBar Progress1{*this, "Progress1"};
};

/// Shows the notice for a piece of work that takes more than half a second, until this object goes.
class WorkingNotice {
 public:
  WorkingNotice(Program& program, std::string work);
  ~WorkingNotice();
  WorkingNotice(const WorkingNotice&) = delete;
  WorkingNotice& operator=(const WorkingNotice&) = delete;

  /// What the work is to report to, valid as long as this object.
  Progress Report();

 private:
  void Show(double done);

  Program& program_;
  std::string work_;
  double shown_;  ///< the moment of the start, then of the last report that was shown; in days
  bool isUp_ = false;
};

}  // namespace norvane
