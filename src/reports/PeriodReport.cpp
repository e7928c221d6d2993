#include "reports/PeriodReport.h"

namespace norvane {

PeriodReport::PeriodReport(Program& host, std::string name, std::string caption)
    : VSregistryReport(host, std::move(name), std::move(caption)) {
  WritePickedDate(DTbegdate, txtBegDate);
  WritePickedDate(dtEndDate, txtEndDate);
  btnGo.Click = [this] { btnGo_Click(); };
}

void PeriodReport::SetPeriod(Date beginning, Date ending) {
  SetDates(DTbegdate, txtBegDate, beginning);
  SetDates(dtEndDate, txtEndDate, ending);
}

}  // namespace norvane
