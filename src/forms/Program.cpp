#include "forms/Program.h"

#include <algorithm>

#include "forms/Form.h"

namespace norvane {

Program::Program(Desktop& desktop_, RegionalSettings settings, std::filesystem::path applicationFolder)
    : desktop(desktop_), convert(std::move(settings), desktop_) {
  workspace.applicationFolder = std::move(applicationFolder);
}

Program::~Program() {
  running_ = false;
  DestroyPending();
}

void Program::Start(std::string_view startUpScreen) {
  const Dispatch dispatch(*this);
  startUpScreen_ = startUpScreen;
  running_ = true;
  screens.Show(startUpScreen);
}

void Program::LeaveDispatch() {
  if (dispatchDepth_ == 1) {
    EndIfNothingIsVisible();
    DestroyPending();
  }
  --dispatchDepth_;
}

void Program::EndIfNothingIsVisible() {
  const auto& loaded = screens.loaded_;
  const auto isVisible = [](const auto& form) { return form->IsVisible(); };
  if (!running_ || std::any_of(loaded.begin(), loaded.end(), isVisible)) return;
  running_ = false;
  while (!loaded.empty()) loaded.back()->Unload();
  if (const auto main = std::move(screens.unloadedMain_)) {
    main->Terminate();
    DestroyLater(main);
  }
  desktop.Quit();
}

void Program::DestroyPending() {
  while (!pendingDestruction_.empty()) {
    const auto form = std::move(pendingDestruction_.back());
    pendingDestruction_.pop_back();
    desktop.FormDestroyed(*form);
  }
}

}  // namespace norvane
