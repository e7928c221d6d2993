#pragma once

#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "support/Gestures.h"
#include "support/ScriptedDesktop.h"

namespace norvane::test {

using Log = std::vector<std::string>;

/// A form that writes down what happens to it and lets a test say what its handlers do.
class TestForm : public Form {
 public:
  struct Hooks {
    using Hook = std::function<void(TestForm&)>;
    Hook load = nullptr;
    Hook unload = nullptr;
    Hook press = nullptr;
  };

  TestForm(Program& program_, std::string name, FormStyle style, Log& log_, Hooks hooks_)
      : Form(program_, std::move(name), std::move(style)), log(log_), hooks(std::move(hooks_)) {
    for (Control* control : std::initializer_list<Control*>{&first, &second, &button}) {
      control->GotFocus = [this, control] { Note(control->Name() + ".GotFocus"); };
      control->LostFocus = [this, control] { Note(control->Name() + ".LostFocus"); };
    }
    button.Click = [this] {
      Note("button.Click");
      if (hooks.press) hooks.press(*this);
    };
    timer.Tick = [this] { Note("timer.Tick"); };
    SetLayout(layout::Column({first, second, button}));
    SetExitButton(button);
  }

  TextBox first{*this, "first"};
  TextBox second{*this, "second"};
  Button button{*this, "button", {.caption = "&Exit"}};
  Timer timer{*this, "timer", 1000, false};

  Log& log;
  Hooks hooks;

 protected:
  void Form_Load() override { Run("Load", hooks.load); }
  void Form_Resize() override { Note("Resize"); }
  void Form_GotFocus() override { Note("GotFocus"); }
  void Form_Unload() override { Run("Unload", hooks.unload); }
  void Form_Terminate() override { Note("Terminate"); }

 private:
  void Note(const std::string& what) { log.push_back(Name() + " " + what); }
  void Run(const std::string& what, const std::function<void(TestForm&)>& hook) {
    Note(what);
    if (hook) hook(*this);
  }
};

/// A program of test forms.
class FormsTest : public testing::Test {
 protected:
  void Add(const std::string& name, TestForm::Hooks hooks = {}, FormStyle style = {.width = 4000, .height = 3000}) {
    program.screens.AddFactory(name, [this, name, hooks, style](Program& program_) {
      return std::make_shared<TestForm>(program_, name, style, log, hooks);
    });
  }
  TestForm& Touch(const std::string& name) { return static_cast<TestForm&>(program.screens.Touch(name)); }
  TestForm& Show(const std::string& name, ShowOptions options = {}) {
    program.screens.Show(name, options);
    return Touch(name);
  }
  Log Taken() { return std::exchange(log, {}); }

  /// The number of the error that `action` raises, 0 if it raises none.
  static int NumberOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  }

  Log log;
  ScriptedDesktop desktop;
  Program program{desktop, RegionalSettings{}, std::filesystem::temp_directory_path()};
};

using testing::ElementsAre;
using testing::IsEmpty;

}  // namespace norvane::test
