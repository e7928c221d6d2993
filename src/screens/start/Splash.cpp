#include "screens/start/Splash.h"

#include "core/FileNames.h"
#include "core/SettingsFile.h"
#include "screens/clients/Customer.h"

namespace norvane {

void Splash::Form_Load() {
  Trapped("Intro.Form_Load -", [&] {
    globals.IniPath = workspace.File(kSettingsFile);
    screens.Touch<Customer>().ReadGeometry(Customer::kName);
  });
}

}  // namespace norvane
