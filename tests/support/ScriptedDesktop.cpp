#include "support/ScriptedDesktop.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>

namespace norvane::test {

namespace {

bool IsPossible(Answer answer, Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return answer == Answer::Ok;
    case Buttons::YesNo:
      return answer == Answer::Yes || answer == Answer::No;
    case Buttons::YesNoCancel:
      return answer != Answer::Ok;
  }
  return false;
}

std::string NameOf(const Timer& timer) {
  return timer.Parent().Name() + "." + timer.Name();
}

}  // namespace

ScriptedDesktop::ScriptedDesktop() : now(Date::FromYearMonthDay(2026, 11, 22) + 869.0 / 1440.0) {}

ScriptedDesktop::~ScriptedDesktop() {
  for (const auto& box : expected_) ADD_FAILURE() << "The box never came: " << box.fragment;
  for (const auto& file : files_) ADD_FAILURE() << "Nobody asked for the file: " << file.first;
  for (const auto& step : modalSteps_) ADD_FAILURE() << "Never shown modally: " << step.form;
  if (!waitSteps_.empty()) ADD_FAILURE() << waitSteps_.size() << " steps waited for a wait that never came";
  if (!pumpSteps_.empty()) ADD_FAILURE() << pumpSteps_.size() << " steps waited for an event pump that never turned";
}

void ScriptedDesktop::Expect(std::string_view fragment, Answer answer) {
  expected_.push_back({std::string(fragment), answer});
}

Answer ScriptedDesktop::Ask(const Message& message) {
  log.push_back("box: " + message.text);
  boxes.push_back(message);
  if (expected_.empty()) {
    ADD_FAILURE() << "Nobody expected this box: [" << message.title << "] " << message.text;
    return message.preselected;
  }
  const ExpectedBox box = expected_.front();
  expected_.pop_front();
  const bool fits = (message.text + "\n" + message.title).find(box.fragment) != std::string::npos;
  EXPECT_TRUE(fits) << "Expected a box with: " << box.fragment << "\nCame: [" << message.title << "] " << message.text;
  EXPECT_TRUE(IsPossible(box.answer, message.buttons)) << "No button gives that answer: " << message.text;
  return box.answer;
}

void ScriptedDesktop::ExpectFile(std::string_view fragment, std::filesystem::path file) {
  files_.emplace_back(fragment, std::move(file));
}

std::filesystem::path ScriptedDesktop::AskForFile(const FileRequest& request) {
  log.push_back("file: " + request.title);
  if (files_.empty()) {
    ADD_FAILURE() << "Nobody expected to be asked for a file: " << request.title;
    return {};
  }
  const auto [fragment, file] = files_.front();
  files_.pop_front();
  EXPECT_NE(request.title.find(fragment), std::string::npos) << "Expected: " << fragment << "\nCame: " << request.title;
  return file;
}

void ScriptedDesktop::FormShown(Form& form) {
  const bool isNew = shown_.insert_or_assign(form.Name(), &form).second;
  log.push_back((isNew ? "show " : "front ") + form.Name());
  // A window without a size of its own asks for some.
  if (form.Width() == 0) form.UserResize(8000, 6000);
}

void ScriptedDesktop::FormHidden(Form& form) {
  shown_.erase(form.Name());
  log.push_back("hide " + form.Name());
}

void ScriptedDesktop::FormDestroyed(Form& form) {
  log.push_back("gone " + form.Name());
}

void ScriptedDesktop::WhenModal(std::string_view name, std::function<void(Form&)> step) {
  modalSteps_.push_back({std::string(name), std::move(step)});
}

void ScriptedDesktop::RunModal(Form& form) {
  log.push_back("modal " + form.Name());
  const auto isIt = [&](const ModalStep& step) { return step.form == form.Name(); };
  const auto found = std::find_if(modalSteps_.begin(), modalSteps_.end(), isIt);
  if (found == modalSteps_.end()) {
    ADD_FAILURE() << "Nobody expected this form to be modal: " << form.Name();
  } else {
    const auto step = found->step;
    modalSteps_.erase(found);
    step(form);
    EXPECT_FALSE(form.IsVisible()) << "Still open after its step: " << form.Name();
  }
  if (form.IsVisible()) form.Unload();
}

void ScriptedDesktop::Quit() {
  log.push_back("quit");
  EXPECT_EQ(++quits_, 1) << "The program ended twice";
}

void ScriptedDesktop::RunNext(Steps& steps) {
  if (steps.empty()) return;
  const auto step = steps.front();
  steps.pop_front();
  step();
}

void ScriptedDesktop::DoEvents() {
  ++repaints;
  RunNext(pumpSteps_);
}

void ScriptedDesktop::Wait(double seconds) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "wait %.2f", seconds);
  log.emplace_back(text.data());
  RunNext(waitSteps_);
}

void ScriptedDesktop::TimerChanged(Timer& timer) {
  if (timer.Running()) {
    timers_[NameOf(timer)] = &timer;
  } else {
    timers_.erase(NameOf(timer));
  }
}

void ScriptedDesktop::Tick(std::string_view form, std::string_view timer) {
  const auto found = timers_.find(std::string(form) + "." + std::string(timer));
  if (found == timers_.end()) {
    ADD_FAILURE() << "No such timer runs: " << form << "." << timer;
    return;
  }
  found->second->Tick.Raise();
}

void ScriptedDesktop::ShowHelp(const std::filesystem::path& folder) {
  log.push_back("help " + folder.string());
}

}  // namespace norvane::test
