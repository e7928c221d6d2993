#include "screens/Opening.h"

#include "forms/Form.h"

namespace norvane {

bool CloseByItsExit(const ScreenTable& screens, std::string_view name) {
  if (Form* form = screens.Find(name)) form->UserClose();
  return screens.Find(name) == nullptr;
}

void ShowAnew(ScreenTable& screens, std::string_view name, ShowOptions options) {
  screens.Unload(name);
  screens.Show(name, options);
}

}  // namespace norvane
