#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "data/Client.h"
#include "data/Invoice.h"
#include "data/cSetup.h"
#include "forms/Preview.h"
#include "forms/Program.h"
#include "reports/RegisterReports.h"
#include "screens/Notices.h"
#include "support/Database.h"
#include "support/PagesText.h"
#include "support/PinnedFontMetrics.h"
#include "support/ScriptedDesktop.h"

namespace norvane::test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;
using ::testing::Not;

/// The program with its data objects, as it is when a report is opened, on a database of its own.
class ReportOffice : public ::testing::Test {
 protected:
  ReportOffice() {
    RegisterReports(program);
    RegisterNotices(program.screens);
    globals.oClient = Made<Client>();
    globals.oInvoice = Made<Invoice>();
    globals.oSetup = Made<cSetup>();
    globals.CoName = "Norvane & Daughters";
  }

  template <class Data>
  std::shared_ptr<Data> Made() {
    auto object = std::make_shared<Data>(program.workspace);
    object->InitAccess(database.File());
    return object;
  }

  template <class Report>
  Report& Open() {
    program.screens.Show(Report::kName);
    return *program.screens.Find<Report>();
  }

  const pages::Pages& PagesOf(Preview& preview) {
    preview.SetFontMetrics(&metrics);
    return preview.Pages();
  }
  /// The texts with their places, without the rules.
  std::string TextOf(Preview& preview) {
    pages::Pages written = PagesOf(preview);
    for (pages::Page& page : written.pages) page.lines.clear();
    return PagesText(written, metrics);
  }
  /// All texts of the pages, in reading order.
  std::vector<std::string> WordsOf(Preview& preview) {
    std::vector<std::string> words;
    for (const pages::Page& page : PagesOf(preview).pages) {
      for (const pages::TextRun& run : page.runs) words.emplace_back(page.TextOf(run));
    }
    return words;
  }

  const pages::PinnedFontMetrics metrics{};
  Database database;
  ScriptedDesktop desktop;
  Program program{desktop, RegionalSettings{}, database.Folder()};
  Globals& globals = program.globals;
};

}  // namespace norvane::test
