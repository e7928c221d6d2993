#include "MaintenanceTest.h"
#include "maintenance/DailyCopy.h"

namespace norvane::test {
namespace {

class KeptCopiesTest : public MaintenanceTest {
 protected:
  /// As the start does, and until there is nothing more to copy; `meanwhile` happens before that.
  void KeepDaily(const std::function<void()>& meanwhile = [] {}) {
    program.screens.Unload(DailyCopy::kName);
    auto& daily = The<DailyCopy>();
    meanwhile();
    while (daily.tmrSlice.Running()) desktop.Tick(DailyCopy::kName, "tmrSlice");
  }
  std::string Note() { return Main().StatusBar1.Panels().back().text; }
};

TEST_F(KeptCopiesTest, KeepsOneAtTheFirstStartOfADayWhileTheUserWorks) {
  StartWithClients();
  KeepDaily([&] { database.Execute("UPDATE tb_Client SET Lname = 'Changed meanwhile'"); });
  const fs::path kept = Copies() / "2026-11-22 14.29.00 first start";
  EXPECT_EQ(Bytes(kept / "norvane.mdb"), Bytes(live));
  for (const double days : {0.1, 1.0}) {
    desktop.now = desktop.now + days;
    KeepDaily();
  }
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("2026-11-22 14.29.00 first start", "2026-11-23 16.53.00 first start"));
}

/// Between two slices the program may write; the copy is of the database as it was at one moment.
TEST_F(KeptCopiesTest, BeginsAgainWhenTheDatabaseChangesInTheMiddle) {
  database.Execute(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 30000)"
      "insert into tb_Client (CustNum, Lname, Notes) select 2000 + i, 'Client ' || i, hex(zeroblob(40)) from n");
  ASSERT_GT(fs::file_size(live), 3u << 20);
  DatabaseCopy copy(program.engine, live, stick / "norvane.mdb");
  EXPECT_FALSE(copy.CopySlice(1 << 20));
  database.Execute("UPDATE tb_Client SET Lname = 'Changed'");
  while (!copy.CopySlice(1 << 20)) {
  }
  EXPECT_EQ(Bytes(stick / "norvane.mdb"), Bytes(live));
}

TEST_F(KeptCopiesTest, AFailureStopsNothingAndIsSaidInTheStatusBar) {
  StartWithClients();
  Put(Copies(), "a file where the folder should be");
  Choose(Main().mnuDelete, "Deleting a client", Answer::Yes);
  EXPECT_EQ(Main().CustList2.Rows(), 3);
  EXPECT_EQ(Note(), "No copy kept: File already exists");
  fs::remove(Copies());
  Choose(Main().mnuDelete, "Deleting a client", Answer::No);
  EXPECT_FALSE(fs::exists(Copies())) << "nothing is deleted";
  Choose(Main().mnuDelete, "Deleting a client", Answer::Yes);
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("2026-11-22 14.29.00 before deletion"));
}

TEST_F(KeptCopiesTest, KeepsTheLastTwentyAndTheLastOfEachMonth) {
  const auto keep = [&](const std::string& name) {
    fs::create_directories(Copies() / name);
    Put(Copies() / name / "norvane.mdb", name);
  };
  for (int day = 10; day < 30; ++day) keep("2026-11-" + std::to_string(day) + " 08.00.00 first start");
  for (const char* old :
       {"2026-09-01 08.00.00 first start", "2026-10-02 08.00.00 first start", "2026-10-30 08.00.00 first start",
        "2026-10-30 09.00.00 before restore", "2026-10-29 08.00.00 with a letter", "my own"}) {
    keep(old);
  }
  Put(Copies() / "2026-10-29 08.00.00 with a letter" / "letter.txt", "");
  DiscardOldCopies(Copies());
  std::vector<std::string> names = NamesIn(Copies());
  EXPECT_EQ(names.size(), 24u);
  names.erase(names.begin() + 3, names.end() - 1);
  EXPECT_THAT(names, ElementsAre("2026-09-01 08.00.00 first start", "2026-10-29 08.00.00 with a letter",
                                 "2026-10-30 09.00.00 before restore", "my own"));
}

}  // namespace
}  // namespace norvane::test
