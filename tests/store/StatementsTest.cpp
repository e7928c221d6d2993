#include <map>

#include "store/StoreTest.h"

namespace norvane {
namespace {

/// "CustNum Long, Lname Text".
std::string ColumnsOf(const Recordset& rows) {
  const std::map<FieldType, std::string> names = {{FieldType::Long, "Long"},         {FieldType::Double, "Double"},
                                                  {FieldType::Currency, "Currency"}, {FieldType::Date, "Date"},
                                                  {FieldType::Boolean, "Boolean"},   {FieldType::Text, "Text"}};
  std::string text;
  for (int i = 0; i < rows.FieldCount(); ++i) {
    text += (i == 0 ? "" : ", ") + rows.FieldName(i) + " " + names.at(rows.FieldTypeOf(i));
  }
  return text;
}

TEST_F(StoreTest, WritesInItsDialect) {
  for (const char* statement :
       {"Insert into tb_client (CustNum,Lname,Fname,Discount) values (1001,'O''Brien',\"say \"\"hi\"\"\",2.5);",
        "insert into TB_CLIENT ([custnum], [LNAME]) values (1002,'jones')",
        "insert into tb_Client (CustNum) values (1003)", "delete * from tb_Client where CustNum = 1003",
        "Insert into tb_GL (TransNum,[Date],Payment,Cleared) values (1,#2/29/2024#,922337203685477.5807,5)",
        "Insert into tb_GL (TransNum,[Date],Payment,Cleared) values (2,#12:00:00 AM#,-1E-04,False)",
        "Insert into tb_GL (TransNum,Payment,Cleared) values (3,0.5,'True')",
        "update tb_GL set [date] = #4/8/2023# where TransNum = 3"}) {
    EXPECT_EQ(ErrorIn(statement), "") << statement;
  }
  EXPECT_EQ(database.Rows("select CustNum, Lname, Fname, Discount from tb_Client"),
            (std::vector<std::string>{"1001|O'Brien|say \"hi\"|2.5", "1002|jones|NULL|NULL"}));
  EXPECT_EQ(database.Rows("select TransNum, Date, Payment, Cleared from tb_GL"),
            (std::vector<std::string>{"1|45351|9223372036854775807|-1", "2|0|-1|0", "3|45024|5000|-1"}));
}

TEST_F(StoreTest, ReadsItsDialect) {
  database.Execute(R"(
    insert into tb_Client (CustNum, Lname, Fname, Zipcode, Discount) values
      (1001, 'O''Brien', 'Ann', '-2 left', 2.5), (1002, 'jones', null, null, 0), (1003, 'Jonas', 'Cy', '5', 0);
    insert into tb_Invoice (InvoiceNum, CustNum) values (11, 1001), (12, 1002), (13, 1002);
    insert into tb_trans (TransNum, InvoiceNum, Amount) values (1, 11, 5000), (2, 12, 20000), (3, 12, 2500);
    insert into tb_GL (TransNum, Date, Payment, Cleared) values (1, 45351, 12345678, -1), (2, 0, 0, 0))");
  const struct {
    const char* statement;
    const char* columns;
    const char* rows;
  } queries[] = {
      {"select TransNum, [DATE], Payment, CLEARED from TB_gl",
       "TransNum Long, Date Date, Payment Currency, Cleared Boolean",
       "1|2/29/2024|1234.5678|True;2|12:00:00 AM|0|False"},
      {"select [tb_Client].[lname] & \", \" & fname as Fullname, Discount from tb_Client;",
       "Fullname Text, Discount Double", "O'Brien, Ann|2.5;jones, |0;Jonas, Cy|0"},
      {"select CustNum from tb_Client where Lname & Fname = 'JONES' or Lname = 'o''brien'", "CustNum Long",
       "1001;1002"},
      {"select CustNum from tb_Client where Lname like 'jon%' order by Lname", "CustNum Long", "1003;1002"},
      {"select CustNum from tb_Client where val(Zipcode) < 0", "CustNum Long", "1001"},
      {"select CustNum from tb_Client where not isnull(Fname) order by custnum desc", "CustNum Long", "1003;1001"},
      {"select CustNum from tb_Client where isnull(Fname)", "CustNum Long", "1002"},
      {"select TransNum from tb_GL where cleared = true and ([date] > #2/28/2024#)", "TransNum Long", "1"},
      {"select TransNum from tb_GL where not cleared", "TransNum Long", "2"},
      {"select sum(Payment) as P, max([date]) as D, sum(Cleared) as C from tb_GL", "P Currency, D Date, C Long",
       "1234.5678|2/29/2024|-1"},
      {"select sum(Payment) as P, max([date]) as D from tb_GL where TransNum > 9", "P Currency, D Date", "Null|Null"},
      {"SELECT tb_Invoice.InvoiceNum, Sum(tb_trans.amount) AS Charge FROM (tb_Client inner JOIN tb_Invoice ON "
       "tb_Client.CustNum = tb_Invoice.CustNum) left JOIN tb_trans ON tb_Invoice.InvoiceNum = tb_trans.InvoiceNum "
       "GROUP BY tb_Invoice.InvoiceNum, tb_Client.Lname HAVING (((tb_client.Lname)='jones')) order by "
       "tb_Invoice.InvoiceNum desc;",
       "InvoiceNum Long, Charge Currency", "13|Null;12|2.25"},
  };
  for (const auto& query : queries) {
    SCOPED_TRACE(query.statement);
    ASSERT_EQ(ErrorOf([&] {
                const auto rows = Read(query.statement);
                EXPECT_EQ(ColumnsOf(*rows), query.columns);
                EXPECT_EQ(RowsOf(*rows), query.rows);
              }),
              "");
  }
}

}  // namespace
}  // namespace norvane
