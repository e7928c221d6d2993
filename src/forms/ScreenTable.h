#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

class Form;
class Program;

struct ShowOptions {
  Form* owner = nullptr;
  bool modal = false;
};

/// The one way from screen to screen. A screen is a single instance under its name: made and loaded at the first touch,
/// gone from here when it is unloaded, made again at the next touch. A name that no screen or action has raises 5.
class ScreenTable {
 public:
  explicit ScreenTable(Program& program) : program_(program) {}
  ~ScreenTable();

  /// Registers a screen class, which has a kName and a constructor from Program&.
  template <class Screen>
  void Add() {
    AddFactory(Screen::kName, [](Program& program) { return std::make_shared<Screen>(program); });
  }
  void AddFactory(std::string_view name, std::function<std::shared_ptr<Form>(Program&)> factory);
  /// Registers what isn't a screen but is called across rooms.
  void AddAction(std::string_view name, std::function<void()> action);

  /// Whether a screen or an action of that name is there at all.
  bool Has(std::string_view name) const;

  /// Loads the screen if it isn't, as any use of it does. The reference holds until the screen is unloaded, and then
  /// until the outermost event has returned.
  Form& Touch(std::string_view name);
  template <class Screen>
  Screen& Touch() {
    return static_cast<Screen&>(Touch(Screen::kName));
  }
  /// Never loads; nothing if the screen isn't loaded.
  Form* Find(std::string_view name) const;
  template <class Screen>
  Screen* Find() const {
    return static_cast<Screen*>(Find(Screen::kName));
  }

  /// Loads if need be, makes visible, Form_Resize, then the focus; brings a visible one forward. A modal show returns
  /// when the form is gone; of a form that is visible already it returns at once.
  void Show(std::string_view name, ShowOptions options = {});
  /// Shows a screen for another record: one that is open is unloaded first, without a question.
  void Reopen(std::string_view name, ShowOptions options = {});
  /// Nothing happens if it isn't loaded.
  void Unload(std::string_view name);
  /// Closes a screen as its exit button does, which may ask about unsaved changes. True if it is gone or was never
  /// there, false if the user keeps it.
  bool Close(std::string_view name) const;
  void Run(std::string_view action);

  /// All loaded forms, in the order of loading.
  std::vector<Form*> Loaded() const;
  /// Names of all screens registered.
  std::vector<std::string> Names() const;

 private:
  friend class Form;
  friend class Program;
  std::shared_ptr<Form> Share(std::string_view name) const;
  std::shared_ptr<Form> Load(std::string_view name);
  std::shared_ptr<Form> Remove(Form& form);

  Program& program_;
  std::map<std::string, std::function<std::shared_ptr<Form>(Program&)>, std::less<>> factories_;
  std::map<std::string, std::function<void()>, std::less<>> actions_;
  std::vector<std::shared_ptr<Form>> loaded_;
  std::shared_ptr<Form> unloadedMain_;  ///< the main screen keeps its controls readable until the program ends
};

}  // namespace norvane
