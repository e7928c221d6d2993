#include "data/Client.h"
#include "data/DataTest.h"
#include "data/Invoice.h"

namespace norvane::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ClientTest : public DataTest {
 protected:
  /// Every text a different one, told by its column.
  static std::vector<std::pair<std::string, std::string Client::*>> TextProperties() {
    return {{"Lname", &Client::lname},
            {"Fname", &Client::fname},
            {"Mname", &Client::Mname},
            {"Address1", &Client::Address1},
            {"Address2", &Client::Address2},
            {"City", &Client::City},
            {"State", &Client::State},
            {"ZipCode", &Client::ZipCode},
            {"HomePhone", &Client::HomePhone},
            {"WorkPhone", &Client::WorkPhone},
            {"CelPhone", &Client::CelPhone},
            {"Fax", &Client::Fax},
            {"Company", &Client::Company},
            {"Email", &Client::Email},
            {"WebPage", &Client::WebPage},
            {"Notes", &Client::Notes},
            {"BillLname", &Client::BillLname},
            {"BillFname", &Client::BillFname},
            {"BillMname", &Client::BillMname},
            {"BillAddress1", &Client::BillAddress1},
            {"BillAddress2", &Client::BillAddress2},
            {"Billcity", &Client::Billcity},
            {"BillState", &Client::BillState},
            {"BillZipCode", &Client::BillZipCode},
            {"BillHomePhone", &Client::BillHomePhone},
            {"BillWorkPhone", &Client::BillWorkPhone},
            {"BillCelPhone", &Client::BillCelPhone},
            {"BillFax", &Client::BillFax},
            {"BillEmail", &Client::BillEmail},
            {"BillWebPage", &Client::BillWebPage},
            {"CardNum1", &Client::CardNum1},
            {"CardNum2", &Client::CardNum2},
            {"PaymentType1", &Client::PaymentType1},
            {"PaymentType2", &Client::PaymentType2},
            {"ExpDate1", &Client::ExpDate1},
            {"ExpDate2", &Client::ExpDate2},
            {"POnum", &Client::POnum},
            {"ShipLname", &Client::ShipLname},
            {"ShipFname", &Client::ShipFname},
            {"ShipMname", &Client::ShipMname},
            {"ShipAddress1", &Client::ShipAddress1},
            {"ShipAddress2", &Client::ShipAddress2},
            {"Shipcity", &Client::Shipcity},
            {"ShipState", &Client::ShipState},
            {"ShipZipCode", &Client::ShipZipCode},
            {"ShipHomePhone", &Client::ShipHomePhone},
            {"ShipWorkPhone", &Client::ShipWorkPhone},
            {"ShipCelPhone", &Client::ShipCelPhone}};
  }

  std::shared_ptr<Client> client = Opened<Client>();
};

TEST_F(ClientTest, EveryPropertyGoesIntoItsColumnAndComesBack) {
  client->CustNum = 1001;
  client->Discount = 33.333;
  for (const auto& [column, property] : TextProperties()) (*client).*property = "\"" + column + "\"; --";
  client->SaveClientAccess(1001);

  EXPECT_EQ(database.Cell("select count(*) from pragma_table_info('tb_Client')"), "50");
  EXPECT_EQ(database.Cell("select Discount from tb_Client where CustNum = 1001"), "33.333");
  const auto other = Opened<Client>();
  other->GetClient(1001);
  EXPECT_EQ(other->CustNum, 1001);
  EXPECT_EQ(other->Discount, 33.333);
  for (const auto& [column, property] : TextProperties()) {
    EXPECT_EQ(database.Cell("select " + column + " from tb_Client"), "\"" + column + "\"; --");
    EXPECT_EQ((*other).*property, "\"" + column + "\"; --");
  }
}

TEST_F(ClientTest, AnUnknownNumberMakesABlankClientWithTheNextOne) {
  for (const auto& [column, property] : TextProperties()) (*client).*property = column;
  client->Discount = 5;
  client->GetClient(0);
  EXPECT_EQ(client->CustNum, 1001);
  EXPECT_EQ(client->Discount, 0);
  for (const auto& [column, property] : TextProperties()) EXPECT_EQ((*client).*property, "") << column;
  EXPECT_EQ(database.Cell("select count(*) from tb_Client"), "0");
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

TEST_F(ClientTest, TheArgumentNamesTheRowThatGoesAndThePropertyTheOneThatComes) {
  database.Execute("insert into tb_Client (CustNum, Lname) values (1001, 'Gone'), (1002, 'Kept')");
  client->CustNum = 1003;
  client->lname = "Come";
  client->SaveClientAccess(1001);
  EXPECT_THAT(database.Rows("select CustNum, Lname from tb_Client"), ElementsAre("1002|Kept", "1003|Come"));
}

TEST_F(ClientTest, AnApostropheLosesTheRowBeingSaved) {
  database.Execute("insert into tb_Client (CustNum, Lname) values (1001, 'OBrien'), (1002, 'Kept')");
  client->CustNum = 1001;
  client->lname = "O'Brien";
  client->SaveClientAccess(1001);
  ExpectReport("Client.SaveClientAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select CustNum from tb_Client"), ElementsAre("1002"));
}

TEST_F(ClientTest, ANameHasABlankBetweenItsPartsEvenWithoutAMiddleName) {
  database.Execute(
      "insert into tb_Client (CustNum, Fname, Mname, Lname) "
      "values (1001, 'Ann', 'B.', 'Cole'), (1002, 'Dan', null, 'Eve')");
  EXPECT_EQ(client->ClientName(1001), "Ann B. Cole");
  EXPECT_EQ(client->ClientName(1002), "Dan  Eve");
  EXPECT_EQ(client->ClientName(1003), "");
  ExpectReport("Client.ClientName -", 3021);
}

TEST_F(ClientTest, ListsAreInTheOrderOfNamesWhateverTheirCase) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Fname, Email) values (1001, 'baker', 'Zoe', 'z@b'), "
      "(1002, 'Abbot', 'Ann', null), (1003, 'Baker', 'ann', null), (1004, 'Bakewell', 'Al', null)");
  EXPECT_THAT(Rows(client->GetAllClients(), {"custnum", "email"}), ElementsAre("1002|", "1003|", "1001|z@b", "1004|"));
  EXPECT_THAT(Rows(client->GetClientRS("bake"), {"CustNum"}), ElementsAre("1001", "1003", "1004"));
  EXPECT_FALSE(client->GetClientRS("O'B"));
  ExpectReport("Client.GetClientRS -", kSyntaxError);
}

TEST_F(ClientTest, DeletingTakesAllThatIsTheClientsAndLeavesTheStock) {
  database.Execute(
      "insert into tb_Client (CustNum) values (1001), (1002);"
      "insert into tb_Receive (TransNum, CustNum) values (1, 1001), (2, 1002);"
      "insert into tb_Invoice (InvoiceNum, CustNum) values (11, 1001), (12, 1002), (13, 1001);"
      "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty) values (21, 11, 7, 2), (22, 12, 7, 2), (23, 13, 7, 2);"
      "insert into tb_Inventory (ItemNum, Par, InStock) values (7, 5, 1)");
  client->DeleteClient(1001);
  EXPECT_THAT(database.Rows("select CustNum from tb_Client"), ElementsAre("1002"));
  EXPECT_THAT(database.Rows("select TransNum from tb_Receive"), ElementsAre("2"));
  EXPECT_THAT(database.Rows("select InvoiceNum from tb_Invoice"), ElementsAre("12"));
  EXPECT_THAT(database.Rows("select TransNum from tb_trans"), ElementsAre("22"));
  EXPECT_EQ(database.Cell("select InStock from tb_Inventory"), "1");
  client->DeleteClient(9999);
}

TEST_F(ClientTest, TheLastPaymentComesFirstAndTheHigherNumberOfADay) {
  database.Execute(
      "insert into tb_Receive (TransNum, CustNum, \"Date\", Amount) values (1, 1001, 45000, 100000), "
      "(2, 1001, 45001, 200000), (3, 1001, 45001, 300000), (4, 1002, 45009, 1), (5, 1001, 44000, 50000)");
  EXPECT_THAT(Rows(client->rsLastPayment(1001), {"amount"}), ElementsAre("30", "20", "10", "5"));
  EXPECT_TRUE(client->rsLastPayment(1009)->Eof());
}

TEST_F(ClientTest, TheServersProcedureIsCalledWithoutATrap) {
  EXPECT_THROW(client->SaveClient(), RuntimeError);
}

class ClientBalanceTest : public ClientTest {
 protected:
  void SetUp() override {
    globals.oInvoice = std::make_shared<Invoice>(workspace);
    globals.oInvoice->InitAccess(database.File());
    database.Execute("insert into tb_Client (CustNum) values (1001)");
  }

  void AddInvoice(int number, Date date, double amount, int custNum = 1001) {
    database.Execute(
        "insert into tb_Invoice (InvoiceNum, CustNum, \"Date\", Discount, Tax, ShippingCharge, Interest) "
        "values (" +
        std::to_string(number) + ", " + std::to_string(custNum) + ", " + std::to_string(date.Day()) +
        ", 0, 0, 0, 0);"
        "insert into tb_trans (TransNum, InvoiceNum, Amount) values (" +
        std::to_string(number) + ", " + std::to_string(number) + ", " + std::to_string(Money(amount).TenThousandths()) +
        ")");
  }
  void AddPayment(int number, Date date, double amount) {
    database.Execute("insert into tb_Receive (TransNum, CustNum, \"Date\", Amount) values (" + std::to_string(number) +
                     ", 1001, " + std::to_string(date.Day()) + ", " + std::to_string(Money(amount).TenThousandths()) +
                     ")");
  }
  Currency Balance(Date date = Date()) { return client->ClientBal(1001, date); }
};

TEST_F(ClientBalanceTest, NothingIsNothingAndPaymentsAloneAreACredit) {
  EXPECT_EQ(Balance(), Money(0));
  AddPayment(1, Day(2026, 1, 5), 12.5);
  AddPayment(2, Day(2026, 1, 5), 0.0001);
  EXPECT_EQ(Balance(), Money(-12.5001));
}

TEST_F(ClientBalanceTest, CountsUpToAndIncludingTheDay) {
  AddInvoice(1, Day(2026, 3, 1), 100);
  AddInvoice(2, Day(2026, 3, 2), 10);
  AddInvoice(3, Day(2026, 3, 2), 1000, 1002);
  AddPayment(1, Day(2026, 3, 2), 5);
  AddPayment(2, Day(2026, 3, 3), 1);
  EXPECT_EQ(Balance(Day(2026, 2, 28)), Money(0));
  EXPECT_EQ(Balance(Day(2026, 3, 1)), Money(100));
  EXPECT_EQ(Balance(Day(2026, 3, 2)), Money(105));
  EXPECT_EQ(Balance(Day(2026, 3, 3)), Money(104));
}

TEST_F(ClientBalanceTest, NoDateMeansTomorrowAndIsWrittenBack) {
  AddInvoice(1, Day(2026, 11, 22), 1);
  AddInvoice(2, Day(2026, 11, 23), 10);
  AddInvoice(3, Day(2026, 11, 24), 100);
  Date date;
  EXPECT_EQ(client->ClientBal(1001, date), Money(11));
  EXPECT_EQ(date, Day(2026, 11, 23));
  EXPECT_EQ(client->ClientBal(1001, date), Money(11));
}

TEST_F(ClientBalanceTest, AnInvoiceOfTheFirstDayOf1981IsInNoBalance) {
  AddInvoice(1, Day(1981, 1, 1), 1);
  EXPECT_EQ(Balance(), Money(0));
  AddInvoice(2, Day(1981, 1, 2), 10);
  EXPECT_EQ(Balance(), Money(10));
}

TEST_F(ClientBalanceTest, ClosesTheSharedInvoicesConnectionButNotAfterAnError) {
  globals.oInvoice->OpenCn();
  Balance();
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);

  client->CloseCn();
  EXPECT_EQ(Balance(), Money(0));
  ExpectReport("Client.ClientBal -", kNoConnection);
  EXPECT_EQ(engine.OpenConnections(database.File()), 1);
}

TEST_F(ClientBalanceTest, WithoutTheSharedInvoiceTheDateIsChangedAllTheSame) {
  globals.oInvoice.Release();
  Date date;
  EXPECT_EQ(client->ClientBal(1001, date), Money(0));
  ExpectReport("Client.ClientBal -", 91);
  EXPECT_EQ(date, Day(2026, 11, 23));
}

TEST_F(ClientBalanceTest, TheListLeavesOutWhoOwesNothingAndIsByTheFullName) {
  database.Execute(
      "update tb_Client set Lname = 'baker', Fname = 'Al';"
      "insert into tb_Client (CustNum, Lname, Fname) values (1002, 'Abbot', 'Zoe'), (1003, 'Cole', 'X'), "
      "(1004, 'Éclair', null), (1005, 'Frost', 'Y')");
  AddInvoice(1, Day(2026, 1, 1), 10);
  AddInvoice(2, Day(2026, 1, 1), 20, 1002);
  AddInvoice(3, Day(2026, 1, 1), 30, 1004);
  AddInvoice(4, Day(2026, 1, 1), -0.0001, 1005);
  AddPayment(1, Day(2026, 1, 1), 10.5);
  EXPECT_THAT(Rows(client->ClientBals(), {"CustNum", "FullName", "Bal"}),
              ElementsAre("1002|Abbot, Zoe|20", "1001|baker, Al|-0.5", "1004|Éclair, |30", "1005|Frost, Y|-0.0001"));
}

}  // namespace norvane::test
