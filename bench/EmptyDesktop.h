#pragma once

#include <stdexcept>

#include "forms/Desktop.h"

namespace norvane {

/// A desktop that shows nothing and answers nothing; a box ends the bench.
class EmptyDesktop : public Desktop {
 public:
  Date Now() const override { return Date::FromYearMonthDay(2026, 11, 22); }
  Answer Ask(const Message& message) override { throw std::runtime_error(message.text); }
  void FormShown(Form&) override {}
  void FormHidden(Form&) override {}
  void FormDestroyed(Form&) override {}
  void RunModal(Form&) override {}
  void Quit() override {}
  void Repaint(Form*) override {}
  void DoEvents() override {}
  void Wait(double) override {}
  void TimerChanged(Timer&) override {}
  void SetMousePointer(MousePointer) override {}
  void ShowHelp(const std::filesystem::path&) override {}
  std::filesystem::path DocumentsFolder() const override { return {}; }
  std::filesystem::path CurrentFolder() const override { return {}; }
  std::vector<std::filesystem::path> Drives() const override { return {}; }
  std::filesystem::path AskForFile(const FileRequest&) override { return {}; }
};

}  // namespace norvane
