#include "reports/RegisterReports.h"

#include "forms/Program.h"
#include "reports/PrtInvoice.h"

namespace norvane {

void RegisterReports(Program& program) {
  program.screens.Add<PrtInvoice>();
}

}  // namespace norvane
