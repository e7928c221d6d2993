#include "screens/Splash.h"

#include "screens/Customer.h"

namespace norvane {

void Splash::Form_Load() {
  Trapped("Intro.Form_Load -", [&] {
    globals.IniPath = workspace.File("norvane.ini");
    screens.Touch<Customer>().ReadGeometry(Customer::kName);
  });
}

}  // namespace norvane
