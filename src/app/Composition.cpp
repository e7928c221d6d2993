#include "app/Composition.h"

#include "forms/Program.h"
#include "reports/RegisterReports.h"
#include "screens/Screens.h"
#include "ui/QtDesktop.h"

namespace norvane {

void Compose(Program& program, ui::QtDesktop&) {
  RegisterScreens(program);
  RegisterReports(program);
}

}  // namespace norvane
