#include <climits>

#include "data/DataTest.h"
#include "data/Inventory.h"

namespace norvane::test {

using ::testing::ElementsAre;

class InventoryTest : public DataTest {
 protected:
  std::shared_ptr<Inventory> inventory = Opened<Inventory>();
};

TEST_F(InventoryTest, StockMovesByTheChangeOfALineIfItIsCounted) {
  struct Move {
    int par, inStock, before, after;
    int result, left;
    int error = 0;
  };
  const Move moves[] = {
      {5, 2, 0, 3, -1, -1},     {5, -1, 3, 3, -1, -1},     {5, -1, 3, 0, 2, 2},           {5, 2, 0, -4, 6, 6},
      {0, 2, 0, 3, -999999, 2}, {-1, 2, 9, 3, -999999, 2}, {1, -2, 0, INT_MAX, 0, -2, 6},
  };
  for (const Move& move : moves) {
    database.Execute("delete from tb_Inventory; insert into tb_Inventory (ItemNum, Par, InStock) values (1, " +
                     std::to_string(move.par) + ", " + std::to_string(move.inStock) + ")");
    EXPECT_EQ(inventory->QtyInStock(1, move.before, move.after), move.result);
    EXPECT_EQ(database.Cell("select InStock from tb_Inventory"), std::to_string(move.left));
    if (move.error != 0) ExpectReport("Inventory.QtyInStock -", move.error);
  }
  EXPECT_EQ(inventory->QtyInStock(2, 0, 3), 0);
  ExpectReport("Inventory.QtyInStock -", 3021);
  database.Execute("update tb_Inventory set InStock = 9");
  const OtherUser other(database, OtherUser::Work::Writing);
  EXPECT_EQ(inventory->QtyInStock(1, 0, 3), 0);
  ExpectReport("Inventory.QtyInStock -", kFileOrKey);
}

TEST_F(InventoryTest, AnItemIsReadAndSavedUnderTheNumberPassedBack) {
  database.Execute("insert into tb_Inventory values (1001, 3, 'Pen \"fine\"', 1234, 5, -2, '90 days')");
  inventory->GetItem(1001);
  EXPECT_EQ(inventory->Par, 5);
  std::int32_t number = 0;
  inventory->SaveItemAccess(number);
  EXPECT_EQ(number, 1002);
  EXPECT_EQ(inventory->ItemNum, 1002);
  inventory->Warranty = "none";
  number = 1001;
  inventory->SaveItemAccess(number);
  EXPECT_THAT(database.Rows("select * from tb_Inventory"),
              ElementsAre("1001|3|Pen \"fine\"|1234|5|-2|none", "1002|3|Pen \"fine\"|1234|5|-2|0"))
      << "no load touches the warranty";

  inventory->GetItem(7);
  EXPECT_EQ(inventory->ItemNum, 1003);
  inventory->SaveItemAccess(inventory->ItemNum);
  inventory->DeleteItem(1002);
  EXPECT_THAT(database.Rows("select * from tb_Inventory where ItemNum > 1001"), ElementsAre("1003|1||0|0|0|none"));
}

}  // namespace norvane::test
