#include <algorithm>
#include <gmock/gmock.h>

#include "core/TextFolding.h"
#include "store/StoreTest.h"

namespace norvane {
namespace {

std::string FoldKey(std::string_view text) {
  std::string key;
  norvane::FoldKey(text, key);
  return key;
}

TEST(TextFolding, SortsNamesAsPeopleExpect) {
  const std::vector<std::string> sorted = {"",       "Adams",   "Ádams",   "Adamsen", "Ægir", "afar",  "Muller",
                                           "Müller", "Mullers", "O'Brien", "obrien",  "Žek",  "Zelda", "Иван"};
  std::vector<std::string> names = sorted;
  std::reverse(names.begin(), names.end());
  std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) { return FoldKey(a) < FoldKey(b); });
  EXPECT_EQ(names, sorted);
}

TEST(TextFolding, EqualsInCaseAlone) {
  EXPECT_EQ(FoldKey("MÜLLER"), FoldKey("müller"));
  EXPECT_EQ(FoldKey("ИВАН"), FoldKey("иван"));
  EXPECT_NE(FoldKey("Muller"), FoldKey("Müller"));
  EXPECT_EQ(FoldKey("\xFF\xC3"), FoldKey("\xFF\xC3"));
}

TEST(TextFolding, MatchesPatterns) {
  for (const auto& [text, pattern] :
       {std::pair{"Smith", "s%"}, {"Smith", "%I_h"}, {"Müller", "m_LL%"}, {"", "%"}, {"aXbXc", "a%x%c"}}) {
    EXPECT_TRUE(MatchesPattern(text, pattern)) << pattern;
  }
  for (const char* pattern : {"mith", "s%z", "smithson"}) EXPECT_FALSE(MatchesPattern("Smith", pattern)) << pattern;
}

TEST_F(StoreTest, ComparesAndSortsTextWithAccents) {
  for (const char* name : {"Zelda", "Müller", "muller", "Étoile", "Etan", "Evans"}) {
    Run(std::string("insert into tb_PaymentTypes (type) values ('") + name + "')");
  }
  EXPECT_EQ(RowsOf("select type from tb_PaymentTypes order by Type"), "Etan;Étoile;Evans;muller;Müller;Zelda");
  EXPECT_EQ(RowsOf("select type from tb_PaymentTypes"), "Etan;Étoile;Evans;muller;Müller;Zelda");
  EXPECT_EQ(RowsOf("select type from tb_PaymentTypes where type = 'éTOILE'"), "Étoile");
  EXPECT_EQ(RowsOf("select type from tb_PaymentTypes where type = 'MULLER'"), "muller");
  EXPECT_EQ(RowsOf("select type from tb_PaymentTypes where type > 'evans' and type < 'N'"), "muller;Müller");
  EXPECT_EQ(RowsOf("select type from tb_PaymentTypes where type like 'é%'"), "Étoile");
}

/// Keys are looked up through their indexes, however the statement is put together.
TEST_F(StoreTest, ReadsRowsInTheOrderOfTheFirstTablesKey) {
  database.Execute(R"(
    insert into tb_Client (CustNum, Lname) values (1001, 'a'), (1002, 'b');
    insert into tb_Receive (TransNum, CustNum, Date, Amount) values
      (5, 1001, 45000, 1), (3, 1002, 44000, 2), (9, 1001, 43000, 3), (4, 1001, 46000, 4))");
  EXPECT_EQ(RowsOf("select TransNum from tb_Receive where CustNum = 1001"), "4;5;9");
  EXPECT_EQ(RowsOf("select TransNum from tb_Receive inner join tb_Client on tb_Receive.CustNum = tb_Client.CustNum"),
            "3;4;5;9");
  EXPECT_EQ(RowsOf("select TransNum from tb_Client inner join tb_Receive on tb_Receive.CustNum = tb_Client.CustNum"),
            "4;5;9;3");
  EXPECT_EQ(RowsOf("select Lname, sum(Amount) as A from tb_Client inner join tb_Receive on tb_Client.CustNum = "
                   "tb_Receive.CustNum group by Lname having sum(Amount) > 0.0005 order by Lname"),
            "a|0.0008");
}

TEST_F(StoreTest, KeepsMoneyExact) {
  for (const auto& [key, amount] : {std::pair{"1", "922337203685477.5806"}, {"2", "0.0001"}, {"3", "-0.00005"}}) {
    Run(std::string("insert into tb_Inventory (ItemNum, Charge) values (") + key + "," + amount + ")");
  }
  EXPECT_EQ(RowsOf("select sum(Charge) as S from tb_Inventory where ItemNum < 3"), "922337203685477.5807");
  EXPECT_EQ(RowsOf("select ItemNum from tb_Inventory where Charge > 922337203685477.5805"), "1");
  EXPECT_EQ(RowsOf("select ItemNum from tb_Inventory where Charge >= 922337203685477.5807"), "");
  EXPECT_EQ(RowsOf("select ItemNum from tb_Inventory where Charge > 0.00005"), "1;2");
  EXPECT_EQ(RowsOf("select ItemNum from tb_Inventory where Charge = 1E-4"), "2");
  Run("update tb_Inventory set Charge = 0.0002 where ItemNum = 2");
  EXPECT_EQ(ErrorIn("select sum(Charge) as S from tb_Inventory"), "6 Overflow");
}

/// Repeated statements are one statement with other parameters, and what differs in more than that is not.
TEST_F(StoreTest, TellsStatementsOfOneShapeApart) {
  database.Execute("insert into tb_InvCategories values (1, 'One'), (2, 'Two'), (3, '\xC3\xA9t\xC3\xA9')");
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(RowsOf("select description from tb_InvCategories where CatNum = 1"), "One");
    EXPECT_EQ(RowsOf("SELECT description from TB_INVCATEGORIES  where catnum=2"), "Two");
    EXPECT_EQ(RowsOf("select CatNum from tb_InvCategories where Description = 'one'"), "1");
    EXPECT_EQ(RowsOf("select CatNum from tb_InvCategories where Description = '\xC3\x89T\xC3\x89'"), "3");
    EXPECT_EQ(RowsOf("select CatNum from tb_InvCategories where Description = 'two' or CatNum = -1"), "2");
    EXPECT_NE(ErrorIn("select CatNum from tb_InvCategories where Description = 'one''"), "");
  }
}

}  // namespace
}  // namespace norvane
