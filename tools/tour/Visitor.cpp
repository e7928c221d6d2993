#include "tour/Visitor.h"

#include <stdexcept>
#include <string>

#include "forms/Form.h"

namespace norvane::tour {
namespace {

std::runtime_error Missing(const Step& step) {
  return std::runtime_error(std::string(step.screen) + " has no " + std::string(step.control) + " to work with");
}

template <class Kind>
Kind* Find(Form& form, std::string_view name) {
  for (Control* control : form.Controls())
    if (control->Name() == name) return dynamic_cast<Kind*>(control);
  return nullptr;
}

template <class Kind>
Kind& Get(Form& form, const Step& step) {
  if (Kind* control = Find<Kind>(form, step.control)) return *control;
  throw Missing(step);
}

MenuEntry* FindEntry(const std::vector<MenuEntry*>& entries, std::string_view name) {
  for (MenuEntry* entry : entries) {
    if (entry->Name() == name) return entry;
    if (MenuEntry* below = FindEntry(entry->Entries(), name)) return below;
  }
  return nullptr;
}

void Press(Form& form, const Step& step) {
  if (OptionButton* option = Find<OptionButton>(form, step.control)) return option->Press();
  Get<Button>(form, step).Press();
}

void UseGrid(Grid& grid, const Step& step) {
  const int row = step.row < 0 ? grid.Rows() - 1 : step.row;
  if (step.what == Step::Do::CellButton) return grid.PressCellButton(row, step.col);
  grid.UserClick(row, step.col);
  if (step.what == Step::Do::Edit && grid.BeginEdit()) grid.SetEditText(std::string(step.text));
  if (step.what == Step::Do::DoubleClick) grid.UserDoubleClick(row, step.col);
}

}  // namespace

void DoStep(Program& program, const Step& step) {
  using enum Step::Do;
  if (step.what == Show) return program.screens.Show(step.screen);
  Form* form = program.screens.Find(step.screen);
  if (form == nullptr) throw std::runtime_error(std::string(step.screen) + " is not open");
  switch (step.what) {
    case Press:
      return tour::Press(*form, step);
    case Choose:
      if (MenuEntry* entry = FindEntry(form->MenuBar(), step.control)) return entry->Choose();
      throw Missing(step);
    case Tab:
      return Get<TabControl>(*form, step).SetTab(step.row);
    default:
      return UseGrid(Get<Grid>(*form, step), step);
  }
}

}  // namespace norvane::tour
