#include "forms/ScreenTable.h"

#include <algorithm>

#include "forms/Form.h"

namespace norvane {

namespace {

[[noreturn]] void FailUnknown(std::string_view name) {
  constexpr auto number = static_cast<std::int32_t>(ErrorNumber::InvalidProcedureCall);
  throw RuntimeError(number, "The program has no screen or action named " + std::string(name) + ".");
}

}  // namespace

ScreenTable::~ScreenTable() {
  const auto destroy = [this](const std::shared_ptr<Form>& form) { program_.desktop.FormDestroyed(*form); };
  std::for_each(loaded_.rbegin(), loaded_.rend(), destroy);
  if (unloadedMain_) destroy(unloadedMain_);
}

void ScreenTable::AddFactory(std::string_view name, std::function<std::shared_ptr<Form>(Program&)> factory) {
  factories_.insert_or_assign(std::string(name), std::move(factory));
}

void ScreenTable::AddAction(std::string_view name, std::function<void()> action) {
  actions_.insert_or_assign(std::string(name), std::move(action));
}

bool ScreenTable::Has(std::string_view name) const {
  return factories_.find(name) != factories_.end() || actions_.find(name) != actions_.end();
}

std::shared_ptr<Form> ScreenTable::Share(std::string_view name) const {
  const auto isIt = [&](const auto& form) { return form->Name() == name; };
  const auto found = std::find_if(loaded_.begin(), loaded_.end(), isIt);
  return found == loaded_.end() ? nullptr : *found;
}

Form* ScreenTable::Find(std::string_view name) const {
  return Share(name).get();
}

std::shared_ptr<Form> ScreenTable::Load(std::string_view name) {
  const auto factory = factories_.find(name);
  if (factory == factories_.end()) FailUnknown(name);
  auto form = factory->second(program_);
  loaded_.push_back(form);
  form->Load();
  return form;
}

std::shared_ptr<Form> ScreenTable::Remove(Form& form) {
  const auto isIt = [&](const auto& entry) { return entry.get() == &form; };
  const auto found = std::find_if(loaded_.begin(), loaded_.end(), isIt);
  auto removed = std::move(*found);
  loaded_.erase(found);
  return removed;
}

Form& ScreenTable::Touch(std::string_view name) {
  if (const auto form = Share(name)) return *form;
  if (unloadedMain_ && name == program_.startUpScreen_) return *unloadedMain_;
  const Dispatch dispatch(program_);
  return *Load(name);
}

void ScreenTable::Show(std::string_view name, ShowOptions options) {
  const Dispatch dispatch(program_);
  auto form = Share(name);
  if (!form) {
    // The old main screen gives way to the new one; its Form_Terminate is for the program's end alone.
    if (unloadedMain_ && name == program_.startUpScreen_) program_.DestroyLater(std::move(unloadedMain_));
    form = Load(name);
  }
  if (form->loaded_) form->Appear(options);
}

void ScreenTable::Reopen(std::string_view name, ShowOptions options) {
  Unload(name);
  Show(name, options);
}

bool ScreenTable::Close(std::string_view name) const {
  if (const auto form = Share(name)) form->UserClose();
  return Share(name) == nullptr;
}

void ScreenTable::Unload(std::string_view name) {
  if (const auto form = Share(name)) form->Unload();
}

void ScreenTable::Run(std::string_view action) {
  const auto found = actions_.find(action);
  if (found == actions_.end()) FailUnknown(action);
  const Dispatch dispatch(program_);
  found->second();
}

std::vector<Form*> ScreenTable::Loaded() const {
  std::vector<Form*> forms;
  for (const auto& form : loaded_) forms.push_back(form.get());
  return forms;
}

std::vector<std::string> ScreenTable::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, factory] : factories_) names.push_back(name);
  return names;
}

}  // namespace norvane
