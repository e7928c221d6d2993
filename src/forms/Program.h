#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/Conversions.h"
#include "core/Globals.h"
#include "core/Workspace.h"
#include "forms/Desktop.h"
#include "forms/Event.h"
#include "forms/Focus.h"
#include "forms/ScreenTable.h"
#include "store/Engine.h"

namespace norvane {

/// The composition root: the shared state, the store, the screens, and the door to the outside world. As many as one
/// likes may live side by side.
class Program {
 public:
  Program(Desktop& desktop, RegionalSettings settings, std::filesystem::path applicationFolder);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Desktop& desktop;
  const Conversions convert;
  Engine engine;  // before the globals, whose objects may hold a connection to the last
  Globals globals;
  Workspace workspace{globals, engine, desktop, desktop, convert, {}};
  Focus focus;
  ScreenTable screens{*this};

  /// Shows the start-up screen. The program ends, by `Desktop::Quit`, when no form is visible any more; the start-up
  /// screen's Form_Terminate runs last.
  void Start(std::string_view startUpScreen);
  const std::string& StartUpScreen() const { return startUpScreen_; }

 private:
  friend class Dispatch;
  friend class Form;
  friend class ScreenTable;
  void EnterDispatch() { ++dispatchDepth_; }
  void LeaveDispatch();
  void DestroyLater(std::shared_ptr<Form> form) { pendingDestruction_.push_back(std::move(form)); }
  void EndIfNothingIsVisible();
  void DestroyPending();

  std::string startUpScreen_;
  bool running_ = false;
  int dispatchDepth_ = 0;
  std::vector<std::shared_ptr<Form>> pendingDestruction_;  ///< unloaded forms that a handler may still be running in
};

}  // namespace norvane
