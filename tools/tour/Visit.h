#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Program.h"
#include "tour/Stops.h"
#include "tour/TourDesktop.h"
#include "ui/FormWindow.h"

namespace norvane::tour {

/// A visit to one stop under one theme, on a program of its own and without stored window sizes, so that no stop
/// depends on another. The program's day is `day`, its database is in `data`.
class Visit {
 public:
  Visit(const Stop& stop, ui::Theme theme, Date day, const std::filesystem::path& data);
  ~Visit();

  /// Does the stop's steps and calls `look` once, with its screen in its window. Returns the problem found, empty if
  /// there is none.
  std::string Make(std::function<void(Form&, QWidget&)> look);

  /// Lets the windows take up what has changed.
  void Settle() { desktop_.DoEvents(); }

 private:
  void Do(const Step& step);
  void Look(Form& form, QWidget* window);

  const Stop& stop_;
  std::function<void(Form&, QWidget&)> look_;
  TourDesktop desktop_;
  Program program_;
  bool seen_ = false;
};

/// The stops whose screens the program has, in their order; with names of pictures only those.
std::vector<const Stop*> StopsOf(const Program& program, const std::set<std::string_view>& wanted = {});

}  // namespace norvane::tour
