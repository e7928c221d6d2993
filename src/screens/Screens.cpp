#include "screens/Screens.h"

#include "forms/Program.h"
#include "screens/About.h"
#include "screens/Customer.h"
#include "screens/Notices.h"
#include "screens/Profile.h"
#include "screens/intro.h"

namespace norvane {

void RegisterScreens(Program& program) {
  ScreenTable& screens = program.screens;
  screens.Add<About>();
  screens.Add<Customer>();
  screens.Add<intro>();
  screens.Add<Profile>();
  RegisterNotices(screens);
}

}  // namespace norvane
