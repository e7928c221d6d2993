#include <climits>
#include <functional>

#include "data/Client.h"
#include "data/DataObject.h"
#include "data/DataTest.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "data/Vendor.h"

namespace norvane::test {

using ::testing::ElementsAre;

class ConnectionTest : public DataTest {};

TEST_F(ConnectionTest, OneCloseEndsHoweverManyOpensAndAListOutlivesIt) {
  database.Execute("insert into tb_Client (CustNum, Lname) values (1001, 'Abbot'), (1002, 'Baker')");
  const auto client = Opened<Client>();
  client->OpenCn();
  const Object<Recordset> list = client->GetAllClients();
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);
  client->CloseCn();
  EXPECT_EQ(engine.OpenConnections(database.File()), 0);
  client->CloseCn();

  EXPECT_EQ(list->RecordCount(), 2);
  EXPECT_THAT(Rows(list, {"CustNum", "lname"}), ElementsAre("1001|Abbot", "1002|Baker"));
  list->MoveFirst();
  EXPECT_EQ(list->Long("custnum"), 1001);
}

TEST_F(ConnectionTest, WhatCannotBeOpenedShowsAsTheErrorOfTheFirstOperation) {
  std::filesystem::remove(database.File());
  Client onServer(workspace);
  onServer.Init("user", "secret", "books", "main");
  onServer.OpenCn();
  const auto client = Opened<Client>();
  EXPECT_TRUE(reporter.reports.empty());

  for (Client* each : {&onServer, client.get()}) {
    EXPECT_FALSE(each->GetAllClients());
    ExpectReport("Client.GetAllClients -", kNoConnection);
    each->CloseCn();
  }
  EXPECT_FALSE(std::filesystem::exists(database.File()));
}

TEST_F(ConnectionTest, TheServersProceduresAreCalledWithoutATrap) {
  EXPECT_THROW(Opened<Client>()->SaveClient(), RuntimeError);
  EXPECT_THROW(Opened<Inventory>()->SaveItem(), RuntimeError);
  EXPECT_THROW(Opened<Invoice>()->SaveInvoice(), RuntimeError);
  EXPECT_THROW(Opened<Invoice>()->SaveTrans(), RuntimeError);
}

/// How each numbered table hands out its keys.
class KeyTest : public DataTest {
 protected:
  struct Allocation {
    std::string table;
    std::string column;
    std::int32_t first;
    std::string label;
    std::function<std::int32_t()> next;
  };

  std::vector<Allocation> Allocations() {
    return {
        {"tb_Client", "CustNum", 1001, "Client.GetNewCustNum -",
         [this] { return client->GetClient(-5), client->CustNum; }},
        {"tb_Invoice", "InvoiceNum", 1001, "Invoice.GetNewInvoiceNum -",
         [this] { return invoice->GetInvoice(-5), std::int32_t{invoice->InvoiceNum}; }},
        {"tb_trans", "TransNum", 1001, "Invoice.NewTransNum -", [this] { return invoice->NewTransNum(); }},
        {"tb_Receive", "TransNum", 1001, "Invoice.NewPayNum -", [this] { return invoice->NewPayNum(); }},
        {"tb_Inventory", "ItemNum", 1001, "Inventory.NewItemNum -",
         [this] { return inventory->GetItem(-5), inventory->ItemNum; }},
        {"tb_InvCategories", "CatNum", 1, "Inventory.NewCategoryNum -",
         [this] { return inventory->SaveCategory(0, "New"), inventory->CatNum; }},
        {"tb_Vendor", "VendorNum", 1001, "Vendor.GetNewVendorNum -",
         [this] { return vendor->GetVendor("nobody"), vendor->VendorNum; }},
        {"tb_GL", "TransNum", 1001, "Vendor.NewPayNum -", [this] { return vendor->NewPayNum(); }},
    };
  }

  std::shared_ptr<Client> client = Opened<Client>();
  std::shared_ptr<Invoice> invoice = Opened<Invoice>();
  std::shared_ptr<Inventory> inventory = Opened<Inventory>();
  std::shared_ptr<Vendor> vendor = Opened<Vendor>();
};

TEST_F(KeyTest, TheHighestPlusOneSoThatADeletedHighestIsUsedAgainUpToTheLastLong) {
  database.Clear();
  for (const Allocation& each : Allocations()) {
    SCOPED_TRACE(each.table);
    const auto insert = [&](std::int32_t key) {
      database.Execute("insert into " + each.table + " (" + each.column + ") values (" + std::to_string(key) + ")");
    };
    EXPECT_EQ(each.next(), each.first);
    database.Execute("delete from " + each.table);
    insert(7);
    insert(1500);
    EXPECT_EQ(each.next(), 1501);
    database.Execute("delete from " + each.table + " where " + each.column + " >= 1500");
    EXPECT_EQ(each.next(), 8);

    insert(INT_MAX);
    EXPECT_EQ(each.next(), 0);
    ExpectReport(each.label, 6);
  }
}

}  // namespace norvane::test
