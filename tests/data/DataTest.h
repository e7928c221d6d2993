#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/Clock.h"
#include "core/Conversions.h"
#include "core/Reporter.h"
#include "core/Workspace.h"
#include "store/Engine.h"
#include "store/Recordset.h"
#include "support/Database.h"

namespace norvane::test {

class RecordingReporter : public Reporter {
 public:
  void Report(const std::string& text) override { reports.push_back(text); }
  std::vector<std::string> reports;
};

class SettableClock : public Clock {
 public:
  Date Now() const override { return now; }
  Date now = Date::FromYearMonthDay(2026, 11, 22) + 0.96;  // shortly after 23:00
};

/// A workspace on a database of its own. A report that the test doesn't ask for fails it.
class DataTest : public ::testing::Test {
 protected:
  static constexpr int kSyntaxError = -2147217900;
  static constexpr int kUnknownColumn = -2147217904;
  static constexpr int kCriteriaMismatch = -2147217913;
  static constexpr int kFileOrKey = -2147467259;
  static constexpr int kNoConnection = 3709;

  DataTest() { engine.WaitForOthers(std::chrono::milliseconds(20)); }
  void TearDown() override { EXPECT_THAT(reporter.reports, ::testing::IsEmpty()); }

  /// A data object with its connection open.
  template <class T>
  std::shared_ptr<T> Opened() {
    auto object = std::make_shared<T>(workspace);
    object->InitAccess(workspace.File("norvane.mdb"));
    object->OpenCn();
    return object;
  }

  /// Exactly one report came, under that label and with that number.
  void ExpectReport(const std::string& label, int number) {
    EXPECT_THAT(reporter.reports, ::testing::ElementsAre(::testing::AllOf(
                                      ::testing::StartsWith(label + std::to_string(number) + " "),
                                      ::testing::EndsWith(".  If error persists contact Norvanes author."))));
    reporter.reports.clear();
  }

  /// Gives every text of a table its column's name, in quotes and with what would end a statement.
  void FillTexts(const std::string& table) {
    for (const std::string& column :
         database.Rows("select name from pragma_table_info('" + table + "') where type = 'TEXT'")) {
      database.Execute("update " + table + " set " + column + " = '\"" + column + "\"; --'");
    }
  }

  /// A day as the tables hold it.
  static std::string Serial(int year, int month, int day) { return std::to_string(Day(year, month, day).Day()); }
  static Date Day(int year, int month, int day) { return Date::FromYearMonthDay(year, month, day); }
  static Currency Money(double amount) { return Currency::FromDouble(amount); }

  /// The fields of every row, joined with "|".
  static std::vector<std::string> Rows(const Object<Recordset>& list, const std::vector<std::string>& fields) {
    std::vector<std::string> rows;
    for (; !list->Eof(); list->MoveNext()) {
      std::string row;
      for (const std::string& field : fields) row += list->Text(field) + "|";
      rows.push_back(row.substr(0, row.size() - 1));
    }
    return rows;
  }

  Database database;
  SettableClock clock;
  RecordingReporter reporter;
  Engine engine;
  Globals globals;
  Conversions convert{RegionalSettings{}, clock};
  Workspace workspace{globals, engine, reporter, clock, convert, database.Folder()};
};

}  // namespace norvane::test
