#include <csignal>
#include <sys/resource.h>

#include "data/Client.h"
#include "data/DataTest.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "data/Vendor.h"
#include "data/cSetup.h"

namespace norvane::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// What an operation leaves behind when its statements fail one by one. Nothing is undone.
class FailureTest : public DataTest {
 protected:
  /// Makes the store refuse a statement: "delete", "insert" or "update" of a table.
  void Refuse(const std::string& statement, const std::string& table) {
    database.Execute("create trigger refuse before " + statement + " on " + table +
                     " begin select raise(abort, 'refused'); end");
  }
  /// One report came, whatever its number.
  void ExpectReportUnder(const std::string& label) {
    EXPECT_THAT(reporter.reports, ElementsAre(StartsWith(label)));
    reporter.reports.clear();
  }
};

TEST_F(FailureTest, AClientWhoseInvoicesStayIsGoneWithThePayments) {
  database.Execute(
      "insert into tb_Client (CustNum) values (1001); insert into tb_Receive (TransNum, CustNum) values (1, 1001);"
      "insert into tb_Invoice (InvoiceNum, CustNum) values (11, 1001), (12, 1001);"
      "insert into tb_trans (TransNum, InvoiceNum) values (21, 11), (22, 12)");
  const auto client = Opened<Client>();
  Refuse("delete", "tb_trans");
  client->DeleteClient(1001);
  ExpectReportUnder("Client.DeleteClient -");
  EXPECT_THAT(database.Rows("select CustNum from tb_Client"), IsEmpty());
  EXPECT_THAT(database.Rows("select TransNum from tb_Receive"), IsEmpty());
  EXPECT_THAT(database.Rows("select TransNum from tb_trans"), ElementsAre("21", "22"));
  EXPECT_THAT(database.Rows("select InvoiceNum from tb_Invoice"), ElementsAre("11", "12"));
}

TEST_F(FailureTest, AStockThatCannotBeGivenBackKeepsTheLinesOfAnInvoiceThatIsGone) {
  database.Execute(
      "insert into tb_Inventory (ItemNum, Par, InStock) values (1, 1, 0);"
      "insert into tb_Invoice (InvoiceNum) values (9);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty) values (1, 9, 1, 4)");
  const auto invoice = Opened<Invoice>();
  Refuse("update", "tb_Inventory");
  invoice->DeleteInvoice(9);
  ExpectReportUnder("Invoice.DeleteInvoice -");
  EXPECT_THAT(database.Rows("select InvoiceNum from tb_Invoice"), IsEmpty());
  EXPECT_THAT(database.Rows("select TransNum from tb_trans"), ElementsAre("1"));
}

TEST_F(FailureTest, ACategoryWhoseItemsStayIsGone) {
  database.Execute("insert into tb_Inventory (ItemNum, CatNum) values (1, 1)");
  const auto inventory = Opened<Inventory>();
  Refuse("delete", "tb_Inventory");
  inventory->DeleteCategory(1);
  ExpectReportUnder("Inventory.DeleteCategory -");
  EXPECT_THAT(database.Rows("select CatNum from tb_InvCategories"), IsEmpty());
  EXPECT_THAT(database.Rows("select ItemNum from tb_Inventory"), ElementsAre("1"));
}

TEST_F(FailureTest, AVendorStaysWhileTheLedgerDoes) {
  database.Execute(
      "insert into tb_Vendor (VendorNum, Company) values (1001, 'Acme');"
      "insert into tb_GL (TransNum, Vendor) values (1, 'Acme')");
  const auto vendor = Opened<Vendor>();
  Refuse("delete", "tb_GL");
  vendor->DeleteVendor(1001);
  ExpectReportUnder("Vendor.DeleteVendor -");
  EXPECT_THAT(database.Rows("select VendorNum from tb_Vendor"), ElementsAre("1001"));
}

TEST_F(FailureTest, AFileThatAnotherWritesCanBeReadButNotChanged) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname) values (1001, 'Old');"
      "insert into tb_trans (TransNum, Notes) values (7, 'old');"
      "insert into tb_Inventory (ItemNum, Par, InStock) values (1, 1, 5);"
      "insert into tb_Company (Name) values ('Old')");
  const auto client = Opened<Client>();
  const auto invoice = Opened<Invoice>();
  const auto inventory = Opened<Inventory>();
  const auto setup = Opened<cSetup>();
  {
    const OtherUser other(database, OtherUser::Work::Writing);
    EXPECT_EQ(client->GetAllClients()->RecordCount(), 1);

    client->CustNum = 1001;
    client->SaveClientAccess(1001);
    ExpectReport("Client.SaveClientAccess -", kFileOrKey);
    client->DeleteClient(1001);
    ExpectReport("Client.DeleteClient -", kFileOrKey);

    invoice->InvoiceNum = 1;
    invoice->TransNum = 0;
    invoice->SaveTransAccess();
    ExpectReport("Invoice.SaveTransAccess -", kFileOrKey);
    EXPECT_EQ(invoice->TransNum, 8) << "the number was taken before";

    inventory->QtyInStock(1, 0, 2);
    ExpectReport("Inventory.QtyInStock -", kFileOrKey);

    setup->SaveCompanyInfo();
  }
  EXPECT_THAT(database.Rows("select Lname from tb_Client"), ElementsAre("Old"));
  EXPECT_THAT(database.Rows("select Notes from tb_trans"), ElementsAre("old"));
  EXPECT_EQ(database.Cell("select InStock from tb_Inventory"), "5");
  EXPECT_EQ(database.Cell("select Name from tb_Company"), "Old");
}

TEST_F(FailureTest, AFileThatAnotherHoldsForItselfCannotBeUsed) {
  std::shared_ptr<Client> client;
  {
    const OtherUser other(database, OtherUser::Work::Locking);
    client = Opened<Client>();
    EXPECT_FALSE(client->GetAllClients());
    ExpectReportUnder("Client.GetAllClients -");
  }
  client->OpenCn();
  EXPECT_TRUE(client->GetAllClients());
}

/// No file may grow beyond its size at the time of making.
class FullDisk {
 public:
  explicit FullDisk(const std::filesystem::path& file) {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = std::filesystem::file_size(file);
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

TEST_F(FailureTest, ADiskThatIsFullTakesTheDeleteButNotTheInsert) {
  database.Execute("insert into tb_Receive (TransNum, CustNum, Notes) values (1, 1001, 'old'), (2, 1001, 'kept')");
  const auto invoice = Opened<Invoice>();
  invoice->PayNum = 1;
  invoice->CustNum = 1001;
  invoice->PayNotes.assign(std::filesystem::file_size(database.File()) * 2, 'x');
  {
    const FullDisk full(database.File());
    invoice->SavePayment();
  }
  ExpectReportUnder("Invoice.SavePayment -");
  EXPECT_THAT(database.Rows("select Notes from tb_Receive"), ElementsAre("kept"));
  EXPECT_EQ(database.Cell("pragma integrity_check"), "ok");

  invoice->PayNotes = "new";
  invoice->SavePayment();
  EXPECT_THAT(database.Rows("select Notes from tb_Receive"), ElementsAre("new", "kept"));
}

}  // namespace norvane::test
