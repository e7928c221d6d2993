#include <functional>
#include <sqlite3.h>

#include "MaintenanceTest.h"
#include "data/Client.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "data/cSetup.h"
#include "maintenance/Compaction.h"
#include "reports/BackOrderReport.h"
#include "reports/RegisterReports.h"
#include "screens/sales/CustInvoices.h"
#include "screens/stock/BackOrderSet.h"

namespace norvane::test {
namespace {

class CompactionTest : public MaintenanceTest {
 protected:
  /// Many rows, most of which have gone again.
  void Bloat() {
    database.Execute(
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 5000)"
        "insert into tb_Client (CustNum, Lname) select 2000 + i, 'Client ' || i from n;"
        "delete from tb_Client where CustNum > 2100");
  }
  std::vector<std::string> Clients() { return database.Rows("SELECT CustNum, Lname FROM tb_Client"); }
  bool Fail(const std::string& error) {
    desktop.Expect("CompactDatabase Error");
    const bool result = CompactDatabaseFile(program, "norvane.mdb");
    EXPECT_EQ(LastBox().text, error);
    EXPECT_EQ(LastBox().icon, Icon::Critical);
    EXPECT_EQ(desktop.pointer, MousePointer::Default);
    return result;
  }
  std::string Named(const fs::path& file) { return "'" + file.string() + "'"; }

  const fs::path backup = database.Folder() / "BackupOfnorvane.mdb";
};

TEST_F(CompactionTest, ShowsHowTheSizeChangedAndKeepsEveryRow) {
  Bloat();
  Put(backup, "left by an earlier failure");
  const auto clients = Clients();
  const std::string before = FormatFileSize(program.convert, live);
  desktop.Expect("NORVANE.MDB compacted/repaired successfully.");
  EXPECT_TRUE(CompactDatabaseFile(program, "norvane.mdb"));
  const std::string after = FormatFileSize(program.convert, live);
  EXPECT_NE(before, after);
  EXPECT_EQ(LastBox().text, "NORVANE.MDB compacted/repaired successfully.\r\n\r\nSize before compacting:\t" + before +
                                "\r\nSize after compacting:\t" + after);
  EXPECT_EQ(LastBox().title, "Compact Successful");
  EXPECT_EQ(LastBox().icon, Icon::Information);
  EXPECT_EQ(desktop.pointer, MousePointer::Default);
  EXPECT_EQ(Clients(), clients);
  EXPECT_EQ(fs::status(live).permissions(), fs::perms(0600));
  EXPECT_THAT(NamesIn(database.Folder()), ElementsAre("Copies", "norvane.mdb", "stick"));
}

TEST_F(CompactionTest, IsRefusedWhileTheDatabaseIsInUse) {
  StartWithClients();
  Main().mnuSetup.Choose();
  const auto before = AllFiles();
  const std::string inUse = "3045: Could not use " + Named(live) + "; file already in use.";
  EXPECT_FALSE(Fail(inUse));
  program.screens.Unload("frmSetup");
  globals.oSetup->CloseCn();
  {
    const OtherUser other(database, OtherUser::Work::Writing);
    EXPECT_FALSE(Fail(inUse));
  }
  EXPECT_EQ(AllFiles(), before);
}

TEST_F(CompactionTest, IsRefusedWhileAScreenKeepsItsConnection) {
  RegisterReports(program);
  database.Execute(
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Discount, Tax, ShippingCharge, Interest, Shippingdate) "
      "VALUES (1, 1002, 46300, 0, 0, 0, 0, 46300);"
      "INSERT INTO tb_trans (TransNum, InvoiceNum, ItemNum, Qty, Amount, BackOrder) VALUES (1, 1, 7, 1, 10000, '-1');"
      "INSERT INTO tb_Inventory VALUES (7, 1, 'Lamp', 10000, 1, -1, '')");
  StartWithClients();
  const std::string inUse = "3045: Could not use " + Named(live) + "; file already in use.";
  const auto refused = [&](const char* screen, auto& connected) {
    SCOPED_TRACE(screen);
    EXPECT_EQ(Connections(), 1);
    EXPECT_FALSE(Fail(inUse));
    program.screens.Unload(screen);
    connected.CloseCn();
    EXPECT_EQ(Connections(), 0);
  };
  Main().mnuInStock.Choose();
  refused("PrtInventory", *globals.oInventory);
  Main().mnu30days.Choose();
  refused("Prt30Days", *globals.oClient);
  Main().mnuOrdering.Choose();
  The<PrtBackOrders>().btnOrder.Press();
  auto& dates = The<BackOrderSet>();
  Enter(dates.InventoryList, 1, BackOrderSet::kOrderDate, "11/2/2026");
  dates.btnSave.Press();
  refused("BackOrderSet", *globals.oInvoice);
  program.screens.Unload("PrtBackOrders");
  Main().btnDetails.Press();
  The<CustInvoices>().CmbInvoice.UserPick(1);  // all clients
  The<CustInvoices>().btnGo.Press();
  refused("CustInvoices", *globals.oInvoice);
}

TEST_F(CompactionTest, LeavesWhatIsNoSoundDatabaseAsItIs) {
  sqlite3* empty = nullptr;
  const std::string unrecognized = "3343: Unrecognized database format " + Named(live) + ".";
  const std::string sound = Bytes(live);
  std::string torn = sound;
  torn.replace(sound.size() / 2, 4096, 4096, 'x');
  std::string none;
  fs::remove(live);
  ASSERT_EQ(sqlite3_open(live.c_str(), &empty), SQLITE_OK);
  sqlite3_exec(empty, "create table other (x)", nullptr, nullptr, nullptr);
  sqlite3_close(empty);
  Put(backup, "the last copy");
  for (const std::string& content : {Bytes(live), torn, none, std::string(5000, 'x'), sound.substr(0, 8192)}) {
    Put(live, content);
    const auto before = AllFiles();
    desktop.Expect("CompactDatabase Error");
    desktop.Expect("Try to save what can be read?", Answer::No);
    EXPECT_FALSE(CompactDatabaseFile(program, "norvane.mdb"));
    EXPECT_EQ(desktop.boxes[desktop.boxes.size() - 2].text, unrecognized);
    EXPECT_EQ(AllFiles(), before);
  }
  fs::remove(live);
  Fail("3024: Could not find file " + Named(live) + ".");
  EXPECT_EQ(Bytes(backup), "the last copy");
}

TEST_F(CompactionTest, RebuildsAnIndexThatMissesRows) {
  Bloat();
  const auto clients = Clients();
  database.Execute("INSERT INTO tb_Invoice (InvoiceNum, CustNum) VALUES (1, 2050)");
  const std::string root = database.Cell("SELECT rootpage FROM sqlite_master WHERE name = 'tb_Invoice_CustNum'");
  // The page of the index as one without entries.
  std::fstream file(live, std::ios::in | std::ios::out | std::ios::binary);
  file.seekp((std::stol(root) - 1) * 4096);
  file.write("\x0A\0\0\0\0\x10\0\0", 8);
  file.close();
  ASSERT_NE(database.Cell("PRAGMA integrity_check"), "ok");
  desktop.Expect("compacted/repaired successfully");
  EXPECT_TRUE(CompactDatabaseFile(program, "norvane.mdb"));
  EXPECT_EQ(database.Cell("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(Clients(), clients);
}

TEST_F(CompactionTest, SavesWhatCanBeReadOfADamagedDatabase) {
  Bloat();
  database.Execute(
      "insert into tb_Invoice (InvoiceNum, CustNum) select CustNum, CustNum from tb_Client;"
      "insert into tb_Invoice (InvoiceNum, CustNum) values (1, 5000);"
      "insert into tb_trans (TransNum, InvoiceNum) values (1, 2050), (2, 1), (3, 2)");
  const auto clients = Clients();
  const std::string root = database.Cell("SELECT rootpage FROM sqlite_master WHERE name = 'tb_Client'");
  std::string damaged = Bytes(live);
  damaged.replace(static_cast<std::size_t>(std::stol(root) - 1) * 4096, 8, "damaged!");
  Put(live, damaged);
  ExpectBoxes({"CompactDatabase Error"});
  desktop.Expect("Try to save what can be read?", Answer::Yes);
  desktop.Expect("What could be read has been saved.");
  desktop.Expect("a client or an invoice that is no longer there", Answer::Yes);
  EXPECT_FALSE(CompactDatabaseFile(program, "norvane.mdb"));
  const std::string report = desktop.boxes[2].text;
  EXPECT_THAT(report, HasSubstr("Clients:\t100 saved, perhaps some missing"));
  EXPECT_THAT(report, HasSubstr("Invoices:\t101 saved\r\nInvoice lines:\t3 saved\r\n"));
  EXPECT_THAT(report, HasSubstr("kept as norvane damaged 2026-11-22 14.29.00.mdb."));
  EXPECT_THAT(LastBox().text, HasSubstr("Invoices:\t1\r\nInvoice lines:\t2\r\nPayments:\t0"));
  EXPECT_EQ(Bytes(database.Folder() / "norvane damaged 2026-11-22 14.29.00.mdb"), damaged);
  EXPECT_EQ(Clients(), clients) << "though no way leads to them any more";
  EXPECT_EQ(database.Cell("SELECT (SELECT count(*) FROM tb_Invoice) + (SELECT count(*) FROM tb_trans)"), "101");
  desktop.Expect("compacted/repaired successfully");
  EXPECT_TRUE(CompactDatabaseFile(program, "norvane.mdb"));
}

TEST_F(CompactionTest, WritesSizesInTheirUnit) {
  const fs::path file = stick / "sized";
  const std::pair<std::uintmax_t, const char*> sizes[] = {
      {0, "0 bytes"},       {1023, "1023 bytes"}, {1024, "1.00 KB"},       {1048575, "1024.00 KB"},
      {1048576, "1.00 MB"}, {2621440, "2.50 MB"}, {1073741824, "1.00 GB"}, {2147483647, "2.00 GB"}};
  for (const auto& [size, text] : sizes) {
    Put(file, "");
    fs::resize_file(file, size);
    EXPECT_EQ(FormatFileSize(program.convert, file), text);
  }
  fs::resize_file(file, 2147483648);
  EXPECT_THROW(FormatFileSize(program.convert, file), RuntimeError);
}

}  // namespace
}  // namespace norvane::test
