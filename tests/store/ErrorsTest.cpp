#include "store/StoreTest.h"

namespace norvane {
namespace {

constexpr const char* kDuplicate =
    "-2147467259 The changes you requested to the table were not successful because they would create duplicate values "
    "in the index, primary key, or relationship.  Change the data in the field or fields that contain duplicate data, "
    "remove the index, or redefine the index to permit duplicate entries and try again.";
constexpr const char* kNoValue = "-2147217904 No value given for one or more required parameters.";
constexpr const char* kMismatch = "-2147217913 Data type mismatch in criteria expression.";
constexpr const char* kInsert = "-2147217900 Syntax error in INSERT INTO statement.";
constexpr const char* kCounts = "-2147217900 Number of query values and destination fields are not the same.";
constexpr const char* kAfterEnd = "-2147217900 Characters found after end of SQL statement.";
constexpr const char* kNotUpdatable = "-2147467259 Operation must use an updateable query.";

std::string MissingOperator(const std::string& expression) {
  return "-2147217900 Syntax error (missing operator) in query expression '" + expression + "'.";
}

std::string BadDate(const std::string& expression) {
  return "-2147217900 Syntax error in date in query expression '" + expression + "'.";
}

std::string Repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

struct Refusal {
  std::string statement;
  std::string error;
};

TEST_F(StoreTest, RefusesStatementsWithTheirNumbersAndTexts) {
  Run("insert into tb_PaymentTypes (type) values ('Zahlung \xC3\x9C')");
  Run("insert into tb_InvCategories (CatNum, Description) values (1, 'd')");
  const Refusal refusals[] = {
      // Apostrophes within texts.
      {"select * from tb_Vendor where Company = 'O'Brien'", MissingOperator("Company = 'O'Brien'")},
      {"Insert into tb_InvCategories (CatNum, Description) values (2,'Men's')", MissingOperator("'Men's')")},
      {"Insert into tb_Vendor (VendorNum, Company, Phone) values (1,'O'Brien','D'Arcy')",
       MissingOperator("'O'Brien','D'Arcy'")},
      {"Insert into tb_Vendor (VendorNum, Company, Phone) values (1,'Boys'','5')", MissingOperator("'Boys'','5')")},
      {"Insert into tb_InvCategories (CatNum, Description) values (2,'ends with')')", kInsert},
      {"Insert into tb_InvCategories (CatNum, Description) values (2,'x'); delete * from tb_InvCategories", kAfterEnd},
      {"Insert into tb_Vendor (VendorNum, Company, Phone) values (1,'','')','5')", kInsert},

      // No statement, or two.
      {"", "-2147217908 Command text was not set for the command object."},
      {"  \n ", "-2147217908 Command text was not set for the command object."},
      {"drop table tb_Client",
       "-2147217900 Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."},
      {"select * from tb_Client; select * from tb_GL", kAfterEnd},
      {"select * from tb_Client;;", kAfterEnd},
      {"select * from tb_Client select * from tb_GL", "-2147217900 Syntax error in FROM clause."},
      {"select * from", "-2147217900 Syntax error in FROM clause."},
      {"select CustNum from tb_Client order CustNum", "-2147217900 Syntax error in ORDER BY clause."},
      {"select CustNum from tb_Client order by True", "-2147217900 Syntax error in ORDER BY clause."},
      {"update tb_trans set ordered", "-2147217900 Syntax error in UPDATE statement."},
      {"select * from tb_Client where", MissingOperator("")},
      {"select * from tb_Client where (CustNum = 1", MissingOperator("(CustNum = 1")},
      {"select * from tb_Client where CustNum = ", MissingOperator("CustNum =")},
      {"select * from tb_Client where [CustNum = 1", MissingOperator("[CustNum = 1")},

      // Dates.
      {"select * from tb_GL where [date] > #2/31/2024# order by [date]", BadDate("[date] > #2/31/2024#")},
      {"update tb_trans set ordered = #__/__/__# where TransNum = 1", BadDate("#__/__/__# where TransNum = 1")},
      {"select * from tb_GL where [date] > ##", BadDate("[date] > ##")},

      // Unknown names.
      {"select * from tb_Nothing",
       "-2147217865 The database engine cannot find the input table or query 'tb_Nothing'.  Make sure it exists and "
       "that its name is spelled correctly."},
      {"Select fname, mname, lname from tb_Vendor where VendorNum = 1001", kNoValue},
      {"SELECT Sum(Amount) AS SumOfPay FROM tb_gl where Vendor='acme'", kNoValue},
      {"select * from tb_Client where CustNum = abc", kNoValue},
      {"select tb_GL.TransNum from tb_Client", kNoValue},
      {"select * from tb_Client order by nothing", kNoValue},
      {"insert into tb_Client (nothing) values (1)", kNoValue},
      {"insert into tb_Client (CustNum) values (abc)", kNoValue},
      {"select left(Lname) from tb_Client", MissingOperator("left(Lname)")},
      {"select len(Lname) from tb_Client", "-2147217900 Undefined function 'len' in expression."},
      {"select TransNum from tb_trans inner join tb_Receive on tb_trans.TransNum = tb_Receive.TransNum",
       "-2147217900 The specified field 'TransNum' could refer to more than one table listed in the FROM clause of "
       "your SQL statement."},

      // Types.
      {"SELECT * from tb_GL where cleared = 'True' and payment > 0 and [date]>=#1/1/2023# order by [date], checknum",
       kMismatch},
      {"select * from tb_Client where CustNum = '1001'", kMismatch},
      {"select * from tb_Client where Lname = 5", kMismatch},
      {"select * from tb_GL where [date] = '1/1/2024'", kMismatch},
      {"select * from tb_GL where Payment > 'x'", kMismatch},
      {"select * from tb_Client where Lname", kMismatch},
      {"select sum(Lname) as S from tb_Client", kMismatch},
      {"insert into tb_Inventory (ItemNum, Par) values (1, 'many')", kMismatch},
      {"insert into tb_Inventory (ItemNum, Charge) values (1, '')", kMismatch},
      {"insert into tb_Inventory (ItemNum, Par) values (1, 3000000000)", "6 Overflow"},
      {"insert into tb_Inventory (ItemNum, Charge) values (1, 922337203685477.5808)", "6 Overflow"},
      {"insert into tb_Inventory (ItemNum, Charge) values (1, 1E+400)", "6 Overflow"},

      // Inserts.
      {"insert into tb_Inventory (ItemNum, Par) values (1)", kCounts},
      {"insert into tb_Inventory (ItemNum) values (1, 2)", kCounts},
      {"insert into tb_Inventory (ItemNum, Par) values (1,)", kInsert},
      {"insert into tb_Inventory (ItemNum, Par) values (,1)", kInsert},
      {"insert into tb_Inventory (ItemNum,) values (1)", kInsert},
      {"insert into tb_Inventory values (1)", kInsert},
      {"insert into tb_Inventory (ItemNum, Par, par) values (1,2,3)",
       "-2147217900 Duplicate output destination 'par'."},

      // Keys.
      {"insert into tb_InvCategories (CatNum, Description) values (1, 'again')", kDuplicate},
      {"insert into tb_PaymentTypes (type) values ('ZAHLUNG \xC3\xBC')", kDuplicate},
      {"insert into tb_InvCategories (Description) values ('no key')",
       "-2147467259 Index or primary key cannot contain a Null value."},

      // Too much of anything.
      {"select *,*,*,*,*,* from tb_Client", "-2147217900 Too many fields defined."},
      {"select * from tb_Client where " + std::string(1'000, '(') + "1", "-2147217900 Query is too complex."},
      {"select * from tb_Client where " + Repeated("not ", 1'000) + "1", "-2147217900 Query is too complex."},
      {"select * from tb_Client where 1" + Repeated(" and 1", 1'000), "-2147217900 Query is too complex."},
      {"select * from tb_Client where Lname" + Repeated(" like 'a'", 60), "-2147217900 Query is too complex."},

      // What only can be read, and what cannot be summed.
      {"delete * from ClientBals", kNotUpdatable},
      {"insert into ClientBals (CustNum) values (1)", kNotUpdatable},
      {"select CustNum, sum(Discount) as D from tb_Client",
       "-2147217900 You tried to execute a query that does not include the specified expression 'CustNum' as part of "
       "an aggregate function."},
      {"select * from tb_Client where sum(Discount) > 1",
       "-2147217900 Cannot have aggregate function in expression (sum(Discount))."},
  };
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.statement);
    EXPECT_EQ(ErrorIn(refusal.statement), refusal.error);
  }
  EXPECT_EQ(RowsOf("select * from tb_InvCategories"), "1|d");
}

}  // namespace
}  // namespace norvane
