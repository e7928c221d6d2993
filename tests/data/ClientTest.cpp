#include "data/Client.h"
#include "data/DataTest.h"
#include "data/Invoice.h"

namespace norvane::test {

using ::testing::ElementsAre;

class ClientTest : public DataTest {
 protected:
  std::shared_ptr<Client> client = Opened<Client>();
};

TEST_F(ClientTest, EveryColumnComesAndGoesBack) {
  database.Execute("insert into tb_Client (CustNum, Discount) values (1001, 33.333)");
  FillTexts("tb_Client");
  const std::string row = database.Rows("select * from tb_Client")[0];
  client->GetClient(1001);
  EXPECT_EQ(client->Discount, 33.333);
  for (const auto& [column, property] : {std::pair{"Lname", client->lname},
                                         {"State", client->State},
                                         {"CelPhone", client->CelPhone},
                                         {"BillWebPage", client->BillWebPage},
                                         {"ShipWorkPhone", client->ShipWorkPhone}}) {
    EXPECT_EQ(property, "\"" + std::string(column) + "\"; --");
  }
  client->CustNum = 1003;
  client->SaveClientAccess(1);
  EXPECT_THAT(database.Rows("select * from tb_Client"), ElementsAre(row, "1003" + row.substr(4)));

  client->GetClient(0);
  EXPECT_EQ(client->CustNum, 1004);
  EXPECT_EQ(database.Cell("select count(*) from tb_Client"), "2") << "nothing of a new client is written yet";
  client->SaveClientAccess(1001);
  EXPECT_THAT(database.Rows("select * from tb_Client"),
              ElementsAre("1003" + row.substr(4), "1004" + std::string(38, '|') + "0.0" + std::string(11, '|')))
      << "the argument names the row that goes, the property the one that comes";
}

TEST_F(ClientTest, ANullDiscountStopsTheReadingWhereItStands) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, ExpDate2, Company, ShipLname) "
      "values (1001, 'New', 'new', 'new', 'new')");
  client->Mname = client->ExpDate2 = client->Company = client->ShipLname = "old";
  client->Discount = 5;
  client->GetClient(1001);
  ExpectReport("Client.GetClient -", 94);
  EXPECT_EQ(client->lname, "New");
  EXPECT_EQ(client->Mname, "");
  EXPECT_EQ(client->ExpDate2, "new");
  EXPECT_EQ(client->Discount, 5);
  EXPECT_EQ(client->Company, "old");
  EXPECT_EQ(client->ShipLname, "old");
}

TEST_F(ClientTest, NamesAndListsInTheirOrderWhateverTheirCase) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname, Mname, Email) values (1001, 'baker', 'Zoe', 'B.', 'z@b'), "
      "(1002, 'Abbot', 'Ann', null, null), (1003, 'Baker', 'ann', null, null), (1004, 'Bakewell', 'Al', null, null)");
  EXPECT_THAT(Rows(client->GetAllClients(), {"custnum", "email"}), ElementsAre("1002|", "1003|", "1001|z@b", "1004|"));
  EXPECT_THAT(Rows(client->GetClientRS("bake"), {"CustNum"}), ElementsAre("1001", "1003", "1004"));
  EXPECT_FALSE(client->GetClientRS("O'B"));
  ExpectReport("Client.GetClientRS -", kSyntaxError);

  EXPECT_EQ(client->ClientName(1001), "Zoe B. baker");
  EXPECT_EQ(client->ClientName(1002), "Ann  Abbot");
  EXPECT_EQ(client->ClientName(1009), "");
  ExpectReport("Client.ClientName -", 3021);
}

TEST_F(ClientTest, DeletingTakesAllThatIsTheClientsAndLeavesTheStock) {
  database.Execute(
      "insert into tb_Client (CustNum) values (1001), (1002);"
      "insert into tb_Receive (TransNum, CustNum) values (1, 1001), (2, 1002);"
      "insert into tb_Invoice (InvoiceNum, CustNum) values (11, 1001), (12, 1002), (13, 1001);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty) values (21, 11, 7, 2), (22, 12, 7, 2), (23, 13, 7, 2);"
      "insert into tb_Inventory (ItemNum, Par, InStock) values (7, 5, 1)");
  client->DeleteClient(1001);
  client->DeleteClient(9999);
  EXPECT_THAT(database.Rows("select CustNum from tb_Client union all select TransNum from tb_Receive union all "
                            "select InvoiceNum from tb_Invoice union all select TransNum from tb_trans union all "
                            "select InStock from tb_Inventory"),
              ElementsAre("1002", "2", "12", "22", "1"));
}

TEST_F(ClientTest, ABalanceWritesTomorrowBackAndClosesTheSharedInvoiceUnlessItFails) {
  database.Execute(
      "insert into tb_Client (CustNum) values (1001);"
      "insert into tb_Receive (TransNum, CustNum, Date, Amount) values (1, 1001, " +
      Serial(2026, 11, 23) + ", 125000), (2, 1001, " + Serial(2026, 11, 24) + ", 5)");
  globals.oInvoice = Opened<Invoice>();
  Date date;
  EXPECT_EQ(client->ClientBal(1001, date), Money(-12.5));
  EXPECT_EQ(date, Day(2026, 11, 23));
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);

  client->CloseCn();
  EXPECT_EQ(client->ClientBal(1001, date), Money(0));
  ExpectReport("Client.ClientBal -", kNoConnection);
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);

  globals.oInvoice.Release();
  date = Date();
  EXPECT_EQ(client->ClientBal(1001, date), Money(0));
  ExpectReport("Client.ClientBal -", 91);
  EXPECT_EQ(date, Day(2026, 11, 23));
}

TEST_F(ClientTest, TheListOfBalancesLeavesOutWhoOwesNothingAndIsByTheFullName) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname) values (1001, 'baker', 'Al'), (1002, 'Abbot', 'Zoe'), "
      "(1003, 'Cole', 'X'), (1004, 'Éclair', null), (1005, 'Frost', 'Y');"
      "insert into tb_Receive (CustNum, Date, Amount) values (1001, 45000, 5000), (1002, 45000, -200000), "
      "(1003, 45000, 7), (1003, 45001, -7), (1004, 45000, -300000), (1005, 45000, 1)");
  EXPECT_THAT(Rows(client->ClientBals(), {"CustNum", "FullName", "Bal"}),
              ElementsAre("1002|Abbot, Zoe|20", "1001|baker, Al|-0.5", "1004|Éclair, |30", "1005|Frost, Y|-0.0001"));
}

}  // namespace norvane::test
