#include "app/Composition.h"

#include "forms/Program.h"
#include "maintenance/Maintenance.h"
#include "reports/RegisterReports.h"
#include "screens/Screens.h"

namespace norvane {

void Compose(Program& program) {
  RegisterScreens(program);
  RegisterReports(program);
  RegisterMaintenance(program);
}

}  // namespace norvane
