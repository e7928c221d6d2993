#pragma once

#include <memory>
#include <string>

#include "EmptyDesktop.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "data/cSetup.h"
#include "forms/Program.h"
#include "reports/RegisterReports.h"
#include "screens/Notices.h"
#include "support/Database.h"

namespace norvane::bench {

/// The program as it is when a report is opened, over tables that the bench fills.
struct ReportProgram {
  ReportProgram() {
    RegisterReports(program);
    RegisterNotices(program.screens);
    program.globals.oClient = Made<Client>();
    program.globals.oInvoice = Made<Invoice>();
    program.globals.oSetup = Made<cSetup>();
  }

  template <class Data>
  std::shared_ptr<Data> Made() {
    auto object = std::make_shared<Data>(program.workspace);
    object->InitAccess(database.File());
    return object;
  }

  /// The beginning of a statement that inserts so many rows, i being their number.
  static std::string Count(int rows) {
    return "with recursive n(i) as (select 1 union all select i + 1 from n where i < " + std::to_string(rows) + ") ";
  }

  test::Database database;
  EmptyDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
};

}  // namespace norvane::bench
