#include "tour/Visit.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEvent>

#include "app/Composition.h"
#include "core/SettingsFile.h"
#include "forms/Form.h"
#include "tour/Visitor.h"

namespace norvane::tour {
namespace {

const std::filesystem::path& WithoutSettings(const std::filesystem::path& data) {
  std::filesystem::remove(data / kSettingsFile);
  return data;
}

bool CanVisit(const Program& program, const Stop& stop) {
  const auto known = [&](const Step& step) { return program.screens.Has(step.screen); };
  return program.screens.Has(stop.screen) && std::ranges::all_of(stop.steps, known);
}

}  // namespace

std::vector<const Stop*> StopsOf(const Program& program, const std::set<std::string_view>& wanted) {
  std::vector<const Stop*> chosen;
  for (const Stop& stop : Stops())
    if ((wanted.empty() || wanted.contains(stop.picture)) && CanVisit(program, stop)) chosen.push_back(&stop);
  return chosen;
}

Visit::Visit(const Stop& stop, ui::Theme theme, Date day, const std::filesystem::path& data)
    : stop_(stop), desktop_(theme, day), program_(desktop_, {}, WithoutSettings(data)) {
  desktop_.modalForm = [this](Form& form) { Look(form); };
  Compose(program_);
}

Visit::~Visit() {
  for (Form* form : program_.screens.Loaded()) form->Hide();
  // Without an event loop nothing else would ever delete the windows.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::string Visit::Make(std::function<void(Form&, ui::FormWindow&)> look) {
  look_ = std::move(look);
  program_.Start("Customer");
  for (const Step& step : stop_.steps) DoStep(program_, step);
  if (Form* form = program_.screens.Find(stop_.screen)) Look(*form);
  if (!desktop_.boxes.empty()) return "a box came up: " + desktop_.boxes.front();
  return seen_ ? "" : "the screen did not come up";
}

void Visit::Look(Form& form) {
  ui::FormWindow* window = desktop_.WindowOf(form);
  if (seen_ || form.Name() != stop_.screen || window == nullptr) return;
  seen_ = true;
  look_(form, *window);
}

}  // namespace norvane::tour
