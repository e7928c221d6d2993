#include "screens/Splash.h"

#include "core/SettingsFile.h"
#include "screens/Customer.h"

namespace norvane {

void Splash::Form_Load() {
  Trapped("Intro.Form_Load -", [&] {
    globals.IniPath = workspace.File(kSettingsFile);
    screens.Touch<Customer>().ReadGeometry(Customer::kName);
  });
}

}  // namespace norvane
