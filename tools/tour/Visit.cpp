#include "tour/Visit.h"

#include <algorithm>
#include <stdexcept>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>
#include <QToolTip>

#include "app/Composition.h"
#include "core/FileNames.h"
#include "forms/Form.h"
#include "tour/Visitor.h"
#include "ui/HelpViewer.h"

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

QWidget* HelpWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (dynamic_cast<ui::HelpViewer*>(window) && window->isVisible()) return window;
  }
  return nullptr;
}

/// Opens the list of the widget, or the menu, of that name.
void OpenPopup(QWidget& window, const QString& name) {
  if (auto* combo = window.findChild<QComboBox*>(name)) return combo->showPopup();
  if (auto* button = window.findChild<QToolButton*>(name)) return button->click();
  auto* menu = window.findChild<QMenu*>(name);
  if (menu == nullptr) throw std::runtime_error("there is no " + name.toStdString() + " to open");
  auto* bar = window.findChild<QMenuBar*>();
  menu->popup(bar->mapToGlobal(bar->actionGeometry(menu->menuAction()).bottomLeft()));
}

void ShowTip(QWidget& widget) {
  QToolTip::showText(widget.mapToGlobal(widget.rect().center()), widget.toolTip(), &widget);
}

void TypeInto(QWidget& widget, char letter) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(QLatin1Char(letter)));
  QCoreApplication::sendEvent(&widget, &press);
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
  desktop_.modalForm = [this](Form& form) { Look(form, desktop_.WindowOf(form)); };
  if (stop.shot == Stop::Shot::Box) {
    desktop_.box = [this](QWidget& box) { Look(*program_.screens.Find(stop_.screen), &box); };
  }
  Compose(program_);
}

Visit::~Visit() {
  if (QWidget* help = HelpWindow()) help->close();
  for (Form* form : program_.screens.Loaded()) form->Hide();
  // Without an event loop nothing else would ever delete the windows.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::string Visit::Make(std::function<void(Form&, QWidget&)> look) {
  look_ = std::move(look);
  program_.Start("Customer");
  for (const Step& step : stop_.steps) Do(step);
  if (Form* form = program_.screens.Find(stop_.screen)) {
    Look(*form, stop_.shot == Stop::Shot::Help ? HelpWindow() : desktop_.WindowOf(*form));
  }
  if (!desktop_.boxes.empty() && !stop_.isEmpty) return "a box came up: " + desktop_.boxes.front();
  return seen_ ? "" : "the screen did not come up";
}

void Visit::Do(const Step& step) {
  using enum Step::Do;
  if (step.what != Open && step.what != Type && step.what != Hover) return DoStep(program_, step);
  Form& form = program_.screens.Touch(step.screen);
  ui::FormWindow& window = *desktop_.WindowOf(form);
  desktop_.DoEvents();
  const QString name = QString::fromUtf8(step.control.data(), static_cast<int>(step.control.size()));
  if (step.what == Hover) return ShowTip(*window.findChild<QWidget*>(name));
  if (step.what == Open) return OpenPopup(window, name);
  for (const char letter : step.text) TypeInto(*window.focusWidget(), letter);
}

void Visit::Look(Form& form, QWidget* window) {
  if (seen_ || form.Name() != stop_.screen || window == nullptr) return;
  seen_ = true;
  look_(form, *window);
}

}  // namespace norvane::tour
