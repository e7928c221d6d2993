#include "app/Composition.h"

#include "forms/Program.h"
#include "reports/RegisterReports.h"
#include "screens/Screens.h"

namespace norvane {

void Compose(Program& program) {
  RegisterScreens(program);
  RegisterReports(program);
}

}  // namespace norvane
