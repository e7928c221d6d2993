#include <map>

#include "store/StoreTest.h"

namespace norvane {
namespace {

std::string TypeName(FieldType type) {
  const std::map<FieldType, std::string> names = {{FieldType::Long, "Long"},         {FieldType::Double, "Double"},
                                                  {FieldType::Currency, "Currency"}, {FieldType::Date, "Date"},
                                                  {FieldType::Boolean, "Boolean"},   {FieldType::Text, "Text"}};
  return names.at(type);
}

/// "CustNum Long, Lname Text".
std::string ColumnsOf(const Recordset& rows) {
  std::string text;
  for (int i = 0; i < rows.FieldCount(); ++i) {
    text += (i == 0 ? "" : ", ") + rows.FieldName(i) + " " + TypeName(rows.FieldTypeOf(i));
  }
  return text;
}

/// A small business: three clients, their invoices, lines and payments, stock, vendors, the ledger, the lookups.
constexpr const char* kBusiness = R"(
  insert into tb_Client (CustNum, Lname, Fname, Mname, HomePhone, WorkPhone, CelPhone, Email, Discount) values
    (1001, 'Smith', 'Ann', 'B', '555-1', '555-2', '555-3', 'ann@x', 0),
    (1002, 'jones', 'Bob', null, null, null, null, null, 10),
    (1003, 'Adams', 'Cy', '', '', '', '', '', 2.5);
  insert into tb_Invoice values
    (1001, 1001, 44999, 'first', 10.0, 10000, 50000, 45000, 'Ground', 'T1', 2500, 'Rep', 'Net 30'),
    (1002, 1001, 45009, 'second', 0.0, 0, 0, 0, '', '', 0, 'Rep', ''),
    (1003, 1002, 45019, 'third', 0.0, 0, 0, 0, '', '', 0, '', '');
  insert into tb_trans values
    (1001, 1001, 1001, 2.0, 200000, 'two saws', '-2', null),
    (1002, 1001, 1002, 1.0, 55000, 'labour', '0', null),
    (1003, 1003, 1001, 3.0, 300000, 'three saws', '-3', 45024);
  insert into tb_Receive values
    (1001, 1001, 'Check', '77', 45004, 100000, 'thanks'),
    (1002, 1001, 'Cash', '', 45004, 20000, ''),
    (1003, 1002, 'Cash', '', 45029, 300000, '');
  insert into tb_InvCategories values (1, 'Tools'), (2, 'Work');
  insert into tb_Inventory values
    (1001, 1, 'Saw', 100000, 5, 3, '1 year'), (1002, 2, 'Labour', 55000, 0, 0, null), (1003, 1, 'Axe', 70000, 1, 1, '');
  insert into tb_Vendor (VendorNum, Company, Phone, Discount) values
    (1001, 'Steel Ltd', '555', 0.0), (1002, 'acme', '556', 5.0);
  insert into tb_GL values
    (1001, 44999, '10', 'Steel Ltd', 300000, -1, 'Rent', 0, 'x'),
    (1002, 44999, '9', 'acme', 125000, 0, 'Travel', 0, ''),
    (1003, 45000, '', '', 0, -1, '', 1000000, 'in');
  insert into tb_Company values ('Norvane Shop', 'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 8.25);
  insert into tb_PaymentTypes values ('Cash'), ('check');
  insert into tb_ExpenseTypes values ('Travel'), ('rent');
  insert into tb_Shipping values ('Ground', '5 lb', 80000), ('Air', '5 lb', 90000), ('Air', '1 lb', 40000);
)";

constexpr const char* kInvoiceList =
    "SELECT tb_Client.CustNum, tb_Client.Lname as Lname, tb_Client.Fname as Fname, tb_Invoice.Date as InvoiceDate, "
    "tb_Invoice.InvoiceNum as InvoiceNum, tb_Invoice.Discount as Discount, tb_Invoice.ShippingCharge as "
    "ShippingCharge, tb_Invoice.Interest as Interest, tb_Invoice.Tax as Tax, Sum(tb_trans.amount) AS Charge, "
    "tb_Invoice.Description as Description FROM (tb_Client inner JOIN tb_Invoice ON tb_Client.CustNum = "
    "tb_Invoice.CustNum) left JOIN tb_trans ON tb_Invoice.InvoiceNum = tb_trans.InvoiceNum GROUP BY "
    "tb_Client.CustNum, tb_Client.Lname, tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, "
    "tb_Invoice.Discount, tb_Invoice.ShippingCharge, tb_Invoice.Interest, tb_Invoice.Tax, tb_Invoice.Description ";
constexpr const char* kInvoiceColumns =
    "InvoiceNum Long, CustNum Long, Date Date, Description Text, Discount Double, Tax Currency, ShippingCharge "
    "Currency, Shippingdate Date, ShippingType Text, TrackingNum Text, Interest Currency, SalesRep Text, Terms Text";
constexpr const char* kItemColumns =
    "ItemNum Long, CatNum Long, Description Text, Charge Currency, Par Long, InStock Long, Warranty Text";
constexpr const char* kInvoiceListColumns =
    "CustNum Long, Lname Text, Fname Text, InvoiceDate Date, InvoiceNum Long, Discount Double, ShippingCharge "
    "Currency, Interest Currency, Tax Currency, Charge Currency, Description Text";

constexpr const char* kPayments =
    "SELECT tb_Client.CustNum, tb_Client.Fname, tb_Client.Lname, [tb_Client].[lname] & \", \" & [tb_client].[fname] "
    "AS FullName, tb_Receive.TransNum, tb_Receive.Type, tb_Receive.CheckNum, tb_Receive.Date, tb_Receive.Amount, "
    "tb_Receive.Notes FROM tb_Client INNER JOIN tb_Receive ON tb_Client.CustNum = tb_Receive.CustNum WHERE "
    "(((tb_Receive.Date)>#";
constexpr const char* kPaymentColumns =
    "CustNum Long, Fname Text, Lname Text, FullName Text, TransNum Long, Type Text, CheckNum Text, Date Date, Amount "
    "Currency, Notes Text";

constexpr const char* kBackOrders =
    "SELECT tb_trans.TransNum as TransNum, tb_trans.InvoiceNum as InvoiceNum, tb_trans.ItemNum as ItemNum, "
    "tb_trans.Notes as Notes, tb_trans.BackOrder as BackOrderQty, tb_trans.Ordered as Ordered, tb_Invoice.Date as "
    "InvoiceDate, tb_Invoice.SalesRep as SalesRep, tb_Client.Lname as Lname, tb_Client.Fname as Fname FROM (tb_trans "
    "INNER JOIN tb_Invoice ON tb_trans.InvoiceNum = tb_Invoice.InvoiceNum) INNER JOIN tb_Client ON tb_Invoice.CustNum "
    "= tb_Client.CustNum WHERE ((val(tb_trans.BackOrder)<0) AND ";
constexpr const char* kBackOrderColumns =
    "TransNum Long, InvoiceNum Long, ItemNum Long, Notes Text, BackOrderQty Text, Ordered Date, InvoiceDate Date, "
    "SalesRep Text, Lname Text, Fname Text";

constexpr const char* kSales =
    "SELECT tb_Inventory.ItemNum as ItemNum, tb_InvCategories.Description as Category, tb_Inventory.Description as "
    "Description, Sum(tb_trans.Qty) AS Qty, Sum(tb_trans.Amount) AS TotalSales FROM ((tb_trans INNER JOIN "
    "tb_Inventory ON tb_trans.ItemNum = tb_Inventory.ItemNum) INNER JOIN tb_InvCategories ON tb_Inventory.CatNum = "
    "tb_InvCategories.CatNum) INNER JOIN tb_Invoice ON tb_trans.InvoiceNum = tb_Invoice.InvoiceNum where "
    "(((tb_Invoice.Date)>=#3/15/2023# And (tb_Invoice.Date)<=#4/4/2023#)) GROUP BY tb_Inventory.ItemNum, "
    "tb_InvCategories.Description, tb_Inventory.Description;";

constexpr const char* kLedgerColumns =
    "TransNum Long, Date Date, CheckNum Text, Vendor Text, Payment Currency, Cleared Boolean, Category Text, Deposit "
    "Currency, Notes Text";
constexpr const char* kSince = "' and payment > 0 and [date]>=#3/15/2023# order by [date], checknum";

struct Query {
  std::string statement;
  std::string columns;
  std::string rows;
};

class StatementsTest : public StoreTest {
 protected:
  StatementsTest() { database.Execute(kBusiness); }

  void Check(const Query& query) {
    SCOPED_TRACE(query.statement);
    try {
      const auto rows = Read(query.statement);
      EXPECT_EQ(ColumnsOf(*rows), query.columns);
      EXPECT_EQ(RowsOf(*rows), query.rows);
    } catch (const RuntimeError& error) {
      ADD_FAILURE() << error.Number() << " " << error.Text();
    }
  }
};

TEST_F(StatementsTest, ReadsRows) {
  const Query queries[] = {
      // Clients.
      {"select custnum, fname, lname, homephone, workphone, celphone, email from tb_Client order by Lname , fname",
       "CustNum Long, Fname Text, Lname Text, HomePhone Text, WorkPhone Text, CelPhone Text, Email Text",
       "1003|Cy|Adams||||;1002|Bob|jones|Null|Null|Null|Null;1001|Ann|Smith|555-1|555-2|555-3|ann@x"},
      {"Select fname, mname, lname from tb_client where CustNum = 1001", "Fname Text, Mname Text, Lname Text",
       "Ann|B|Smith"},
      {"SELECT ClientBals.CustNum as CustNum, ClientBals.Fullname AS FullName, ClientBals.Balance as Bal FROM "
       "ClientBals order by ClientBals.Fullname ",
       "CustNum Long, FullName Text, Bal Currency", "1001|Smith, Ann|17.2"},
      {"select [date], Amount from tb_Receive where custnum = 1001 ORDER BY [DATE] DESC, TRANSNUM DESC",
       "Date Date, Amount Currency", "3/19/2023|2;3/19/2023|10"},
      {"SELECT tb_Client.CustNum, Sum(tb_Receive.Amount) AS SumOfPay FROM tb_Receive INNER JOIN tb_Client ON "
       "tb_Receive.CustNum = tb_Client.CustNum Where (((tb_Receive.Date) <= #4/13/2023#)) GROUP BY tb_Client.CustNum "
       "HAVING (((tb_Client.CustNum)=1001));",
       "CustNum Long, SumOfPay Currency", "1001|12"},
      // Invoices and their lines.
      {std::string(kInvoiceList) + "HAVING (((tb_invoice.date)>#3/14/2023#)) order by tb_Invoice.InvoiceNum desc;",
       kInvoiceListColumns,
       "1002|jones|Bob|4/3/2023|1003|0|0|0|0|30|third;1001|Smith|Ann|3/24/2023|1002|0|0|0|0|Null|second"},
      {std::string(kInvoiceList) +
           "HAVING (((tb_Client.CustNum)=1001) and tb_invoice.date>#1/1/1981#) order by tb_Invoice.InvoiceNum desc;",
       kInvoiceListColumns,
       "1001|Smith|Ann|3/24/2023|1002|0|0|0|0|Null|second;1001|Smith|Ann|3/14/2023|1001|10|5|0.25|1|25.5|first"},
      {"select * from tb_trans where InvoiceNum = 1001",
       "TransNum Long, InvoiceNum Long, ItemNum Long, Qty Double, Amount Currency, Notes Text, BackOrder Text, "
       "Ordered Date",
       "1001|1001|1001|2|20|two saws|-2|Null;1002|1001|1002|1|5.5|labour|0|Null"},
      {"select * from tb_Invoice where InvoiceNum = 1001", kInvoiceColumns,
       "1001|1001|3/14/2023|first|10|1|5|3/15/2023|Ground|T1|0.25|Rep|Net 30"},
      {"SELECT * from tb_invoice order by date", kInvoiceColumns,
       "1001|1001|3/14/2023|first|10|1|5|3/15/2023|Ground|T1|0.25|Rep|Net 30;1002|1001|3/24/2023|second|0|0|0|"
       "12:00:00 AM|||0|Rep|;1003|1002|4/3/2023|third|0|0|0|12:00:00 AM|||0||"},
      {"select sum(amount) as SumOfCharge from tb_trans where InvoiceNum = 1001", "SumOfCharge Currency", "25.5"},
      {"select sum(amount) as SumOfCharge from tb_trans where InvoiceNum = 1002", "SumOfCharge Currency", "Null"},
      {"select discount, tax, shippingcharge, interest from tb_Invoice where InvoiceNum = 1001",
       "Discount Double, Tax Currency, ShippingCharge Currency, Interest Currency", "10|1|5|0.25"},
      {"select InvoiceNum from tb_Invoice where custnum = 1001", "InvoiceNum Long", "1001;1002"},
      {"select InvoiceNum from tb_Invoice where [date]>= #3/14/2023# and [date]<= #3/24/2023#", "InvoiceNum Long",
       "1001;1002"},
      {std::string(kBackOrders) + "isnull(TB_TRANS.ordered))", kBackOrderColumns,
       "1001|1001|1001|two saws|-2|Null|3/14/2023|Rep|Smith|Ann"},
      {std::string(kBackOrders) + "not isnull(TB_TRANS.ordered))", kBackOrderColumns,
       "1003|1003|1001|three saws|-3|4/8/2023|4/3/2023||jones|Bob"},
      // Payments.
      {std::string(kPayments) + "3/18/2023#)) order by tb_Receive.Date, tb_Receive.TransNum;", kPaymentColumns,
       "1001|Ann|Smith|Smith, Ann|1001|Check|77|3/19/2023|10|thanks;1001|Ann|Smith|Smith, "
       "Ann|1002|Cash||3/19/2023|2|;1002|Bob|jones|jones, Bob|1003|Cash||4/13/2023|30|"},
      {std::string(kPayments) +
           "3/19/2023#)) and tb_Receive.CustNum = 1002 order by tb_Receive.Date, tb_Receive.TransNum;",
       kPaymentColumns, "1002|Bob|jones|jones, Bob|1003|Cash||4/13/2023|30|"},
      {"SELECT sum(Amount) as TotalReceived from tb_Receive where [date] >= #3/19/2023# and [date]<= #4/13/2023#",
       "TotalReceived Currency", "42"},
      {"SELECT sum(Amount) as TotalReceived from tb_Receive where [date] >= #3/19/2024# and [date]<= #4/13/2024#",
       "TotalReceived Currency", "Null"},
      // Stock.
      {"select * from tb_Inventory where CatNum = 1 order by itemnum", kItemColumns,
       "1001|1|Saw|10|5|3|1 year;1003|1|Axe|7|1|1|"},
      {"select * from tb_inventory where itemnum = 1002", kItemColumns, "1002|2|Labour|5.5|0|0|Null"},
      {"select catnum, description from tb_InvCategories order by catnum", "CatNum Long, Description Text",
       "1|Tools;2|Work"},
      {kSales, "ItemNum Long, Category Text, Description Text, Qty Double, TotalSales Currency", "1001|Tools|Saw|3|30"},
      // Vendors and the ledger.
      {"select company, vendornum from tb_Vendor order by company", "Company Text, VendorNum Long",
       "acme|1002;Steel Ltd|1001"},
      {"Select company from tb_Vendor where VendorNum = 1001", "Company Text", "Steel Ltd"},
      {"SELECT * from tb_GL order by [date], checknum", kLedgerColumns,
       "1001|3/14/2023|10|Steel Ltd|30|True|Rent|0|x;1002|3/14/2023|9|acme|12.5|False|Travel|0|;1003|3/15/2023|||0|"
       "True||100|in"},
      {"SELECT * from tb_GL where payment > 0 and [date]>=#3/14/2023# order by [date], checknum", kLedgerColumns,
       "1001|3/14/2023|10|Steel Ltd|30|True|Rent|0|x;1002|3/14/2023|9|acme|12.5|False|Travel|0|"},
      {std::string("SELECT * from tb_GL where Vendor = 'ACME") + kSince, kLedgerColumns, ""},
      {"SELECT * from tb_GL where Vendor = 'ACME' and payment > 0 and [date]>=#1/1/2023# order by [date], checknum",
       kLedgerColumns, "1002|3/14/2023|9|acme|12.5|False|Travel|0|"},
      {std::string("SELECT * from tb_GL where Category = 'rent") + kSince, kLedgerColumns, ""},
      {std::string("SELECT * from tb_GL where Notes = 'x") + kSince, kLedgerColumns, ""},
      {"SELECT * from tb_GL where deposit > 0 order by [date]", kLedgerColumns, "1003|3/15/2023|||0|True||100|in"},
      {"select sum(Payment) as TotalPay from tb_GL", "TotalPay Currency", "42.5"},
      {"select sum(deposit) as TotalDeposits from tb_GL", "TotalDeposits Currency", "100"},
      {"select sum(Payment) as TotalPay from tb_GL where cleared = true", "TotalPay Currency", "30"},
      {"select sum(deposit) as TotalDeposits from tb_GL where cleared = true", "TotalDeposits Currency", "100"},
      {"SELECT sum(Payment) as TotalPaid from tb_GL where Category = 'RENT' and [date] >= #3/14/2023# and [date]<= "
       "#3/14/2023#",
       "TotalPaid Currency", "30"},
      // Settings and lookups.
      {"select * from tb_Company",
       "Name Text, Address1 Text, Address2 Text, City Text, State Text, ZipCode Text, Phone Text, Fax Text, WebSite "
       "Text, Statetaxrate Double",
       "Norvane Shop|a|b|c|d|e|f|g|h|8.25"},
      {"select type from tb_PaymentTypes order by Type", "Type Text", "Cash;check"},
      {"select type from tb_ExpenseTypes order by Type", "Type Text", "rent;Travel"},
      {"select * from tb_Shipping order by Service, Option", "Service Text, Option Text, Charge Currency",
       "Air|1 lb|4;Air|5 lb|9;Ground|5 lb|8"},
  };
  for (const Query& query : queries) Check(query);

  const auto client = Read("select * from tb_Client where Lname like 'J%'");
  EXPECT_EQ(client->RecordCount(), 1);
  EXPECT_EQ(client->FieldCount(), 50);
  EXPECT_EQ(client->Text("lname") + client->Text("shipWORKphone"), "jones");
  EXPECT_EQ(client->Double("discount"), 10);
  EXPECT_EQ(Read("select * from tb_Client where CustNum = 1002")->Text("lname"), "jones");
  EXPECT_EQ(Read("select * from tb_Vendor where Company = 'STEEL ltd'")->Long("vendornum"), 1001);
  EXPECT_EQ(Read("select * from tb_Vendor where VendorNum = 1002")->Text("company"), "acme");

  for (const auto& [statement, key] : {std::pair{"select max(CustNum) as HighNum from tb_Client", "1003"},
                                       {"select max(InvoiceNum) as HighNum from tb_Invoice", "1003"},
                                       {"select max(TransNum) as HighNum from tb_Trans", "1003"},
                                       {"select max(TransNum) as HighNum from tb_Receive", "1003"},
                                       {"select max(ItemNum) as HighNum from tb_Inventory", "1003"},
                                       {"select max(catNum) as HighNum from tb_Invcategories", "2"},
                                       {"select max(VendorNum) as HighNum from tb_Vendor", "1002"},
                                       {"select max(TransNum) as HighNum from tb_GL", "1003"}}) {
    Check({statement, "HighNum Long", key});
  }
}

struct Change {
  std::string statement;
  std::string query;  ///< in the file's own dialect
  std::string rows;
};

TEST_F(StatementsTest, ChangesRows) {
  const Change changes[] = {
      {"delete * from tb_Client where CustNum = 1003", "select CustNum from tb_Client", "1001,1002"},
      {"Insert into tb_client (CustNum,Lname,Fname,Mname,Address1,Address2,City, State,ZipCode,HomePhone,WorkPhone,"
       "CelPhone,Fax,Company,Email,Webpage,Notes,BillLname, BillFname,BillMname,BillAddress1,BillAddress2,BillCity,"
       "BillState,BillZipcode, BillHomePhone,BillWorkPhone,BillCelPhone,BillFax,BillEmail,BillWebpage, "
       "CardNum1,CardNum2,PaymentType1,PaymentType2,expdate1,expdate2,POnum,Discount,ShipLname,ShipFname,shipMname, "
       "shipAddress1,shipAddress2,ShipCity,ShipState,ShipZipcode,ShipHomePhone,ShipCelPhone,ShipWorkphone ) values "
       "(1004,'L','F','M','1','2','3','4','5','6','7','8','9','10','11','12','13','14','15','16','17','18','19','20',"
       "'21','22','23','24','25','26','27','28','29','30','31','32','33','34',12.5,'36','37','38','39','40','41','42',"
       "'43','44','45','say \"hi\"')",
       "select CustNum, Lname, Company, POnum, Discount, ShipCelPhone, ShipWorkPhone from tb_Client where CustNum = "
       "1004",
       "1004|L|10|34|12.5|45|say \"hi\""},
      {"delete * from tb_receive where CustNum = 1002", "select TransNum from tb_Receive order by 1", "1001,1002"},
      {"delete * from tb_Receive where Transnum = 1002", "select TransNum from tb_Receive order by 1", "1001"},
      {"Insert into tb_Receive (TransNum,CustNum,Type,CheckNum,[Date],[Amount],Notes) values (1009,1001,'Check','8',"
       "#12/31/2024#,1234.5678,'n')",
       "select * from tb_Receive where TransNum = 1009", "1009|1001|Check|8|45657|12345678|n"},
      {"delete * from tb_invoice where CustNum = 1002", "select InvoiceNum from tb_Invoice order by 1", "1001,1002"},
      {"Delete * from tb_Invoice where InvoiceNum = 1002", "select InvoiceNum from tb_Invoice order by 1", "1001"},
      {"Insert into tb_Invoice (InvoiceNum,CustNum,[Date],Description,discount,tax,shippingcharge,shippingdate,"
       "shippingtype,trackingnum,interest,SalesRep,Terms) values (1007,1001,#1/5/2024#,'d',33.333,-0.0001,5,"
       "#12:00:00 AM#,'s','t',1E-04,'r','z')",
       "select * from tb_Invoice where InvoiceNum = 1007", "1007|1001|45296|d|33.333|-1|50000|0|s|t|1|r|z"},
      {"delete * from tb_trans where InvoiceNum = 1003", "select TransNum from tb_trans order by 1", "1001,1002"},
      {"update tb_trans set ordered = #4/8/2023# where TransNum = 1001", "select Ordered from tb_trans", "45024,NULL"},
      {"delete * from tb_trans where Transnum = 1001", "select TransNum from tb_trans order by 1", "1002"},
      {"Insert into tb_trans (TransNum,InvoiceNum,ItemNum,Qty,Amount,Notes,Backorder) values (1001,1001,1001,4,"
       "922337203685477.5807,'it''s',-4)",
       "select * from tb_trans where TransNum = 1001", "1001|1001|1001|4.0|9223372036854775807|it's|-4|NULL"},
      {"delete * from tb_inventory where ItemNum = 1003", "select ItemNum from tb_Inventory order by 1", "1001,1002"},
      {"Insert into tb_Inventory (ItemNum, CatNum, Description,charge,par,instock,warranty) values "
       "(1004,2,'d',9.99,1,-3,'w')",
       "select * from tb_Inventory where ItemNum = 1004", "1004|2|d|99900|1|-3|w"},
      {"delete * from tb_invCategories where CatNum = 2", "select CatNum from tb_InvCategories", "1"},
      {"delete * from tb_inventory where CatNum = 2", "select ItemNum from tb_Inventory order by 1", "1001"},
      {"Insert into tb_InvCategories (CatNum, Description) values (2,'d')", "select * from tb_InvCategories",
       "1|Tools,2|d"},
      {"delete * from tb_gl where vendor = 'Acme'", "select TransNum from tb_GL", "1001,1003"},
      {"delete * from tb_gl where Transnum = 1001", "select TransNum from tb_GL", "1003"},
      {"Insert into tb_GL (TransNum,[Date],CheckNum,Vendor,Payment,Cleared,Category,Deposit,Notes) values (1005,"
       "#2/29/2024#,'1','v',0.5,True,'c',0,'n')",
       "select * from tb_GL where TransNum = 1005", "1005|45351|1|v|5000|-1|c|0|n"},
      {"Delete * from tb_Vendor where VendorNum = 1002", "select VendorNum from tb_Vendor", "1001"},
      {"Insert into tb_Vendor (VendorNum,Company,Address1,Address2,City, State,ZipCode,Phone,CelPhone,Fax,Email,"
       "Webpage,Notes, POnum,Discount ) values (1003,'c','1','2','3','4','5','6','7','8','9','10','11','12',2.5);",
       "select Company, WebPage, POnum, Discount from tb_Vendor where VendorNum = 1003", "c|10|12|2.5"},
      {"Delete * from tb_Company", "select count(*) from tb_Company", "0"},
      {"Insert into tb_Company (Name, Address1, Address2, City, State, Zipcode, phone, Fax, website, statetaxrate) "
       "values ('n','1','2 ','c','s','z','p','f','w',8.25)",
       "select Name, Address2, Statetaxrate from tb_Company", "n|2 |8.25"},
      {"Insert into tb_PaymentTypes (type) values ('Barter')", "select Type from tb_PaymentTypes", "Barter,Cash,check"},
      {"delete * from tb_PaymentTypes where type = 'CHECK'", "select Type from tb_PaymentTypes", "Barter,Cash"},
      {"Insert into tb_ExpenseTypes (type) values ('Fuel')", "select Type from tb_ExpenseTypes", "Fuel,rent,Travel"},
      {"delete * from tb_ExpenseTypes where type = 'Rent'", "select Type from tb_ExpenseTypes", "Fuel,Travel"},
      {"delete * from tb_shipping where service = 'air' and [option] = '1 LB'",
       "select Service, Option from tb_Shipping", "Air|5 lb,Ground|5 lb"},
      {"Insert into tb_shipping (service, [option], charge) values ('Air','2 lb',12.34)",
       "select * from tb_Shipping where Option = '2 lb'", "Air|2 lb|123400"},
  };
  for (const Change& change : changes) {
    SCOPED_TRACE(change.statement);
    EXPECT_EQ(ErrorIn(change.statement), "");
    std::string rows;
    for (const std::string& row : database.Rows(change.query)) rows += (rows.empty() ? "" : ",") + row;
    EXPECT_EQ(rows, change.rows);
  }
}

}  // namespace
}  // namespace norvane
