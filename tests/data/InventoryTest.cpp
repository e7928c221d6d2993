#include <climits>

#include "data/DataTest.h"
#include "data/Inventory.h"

namespace norvane::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InventoryTest : public DataTest {
 protected:
  void AddItem(int number, int par, int inStock, int category = 1) {
    database.Execute("insert into tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) values (" +
                     std::to_string(number) + "," + std::to_string(category) + ", 'Item', 0, " + std::to_string(par) +
                     "," + std::to_string(inStock) + ")");
  }
  std::string InStock(int item) {
    return database.Cell("select InStock from tb_Inventory where ItemNum = " + std::to_string(item));
  }

  std::shared_ptr<Inventory> inventory = Opened<Inventory>();
};

TEST_F(InventoryTest, StockMovesByTheChangeOfALineAndMayGoBelowZero) {
  AddItem(1, 5, 2);
  EXPECT_EQ(inventory->QtyInStock(1, 0, 3), -1);
  EXPECT_EQ(InStock(1), "-1");
  EXPECT_EQ(inventory->QtyInStock(1, 3, 3), -1);
  EXPECT_EQ(inventory->QtyInStock(1, 3, 0), 2);
  EXPECT_EQ(inventory->QtyInStock(1, 0, -4), 6);
  EXPECT_EQ(InStock(1), "6");
}

TEST_F(InventoryTest, AnItemWithoutParIsNotCounted) {
  AddItem(1, 0, 2);
  AddItem(2, -1, 2);
  EXPECT_EQ(inventory->QtyInStock(1, 0, 3), -999999);
  EXPECT_EQ(inventory->QtyInStock(2, 9, 3), -999999);
  EXPECT_EQ(InStock(1), "2");
}

TEST_F(InventoryTest, StockThatCannotBeMovedIsReportedAndZero) {
  EXPECT_EQ(inventory->QtyInStock(1, 0, 3), 0);
  ExpectReport("Inventory.QtyInStock -", 3021);
  AddItem(1, 1, -2);
  EXPECT_EQ(inventory->QtyInStock(1, 0, INT_MAX), 0);
  ExpectReport("Inventory.QtyInStock -", 6);
  EXPECT_EQ(InStock(1), "-2");
}

TEST_F(InventoryTest, AnItemIsSavedUnderTheNumberPassedBack) {
  inventory->Category = 3;
  inventory->description = "Pen \"fine\"";
  inventory->charge = Money(0.1234);
  inventory->Par = 5;
  inventory->InStock = -2;
  inventory->Warranty = "90 days";
  std::int32_t number = 0;
  inventory->SaveItemAccess(number);
  EXPECT_EQ(number, 1001);
  EXPECT_EQ(inventory->ItemNum, 1001);
  EXPECT_THAT(database.Rows("select * from tb_Inventory"), ElementsAre("1001|3|Pen \"fine\"|1234|5|-2|90 days"));

  inventory->Warranty = "none";
  inventory->charge = Money(12);
  number = 1001;
  inventory->SaveItemAccess(number);
  EXPECT_THAT(database.Rows("select * from tb_Inventory"), ElementsAre("1001|3|Pen \"fine\"|120000|5|-2|none"));

  const auto other = Opened<Inventory>();
  other->GetItem(1001);
  EXPECT_EQ(other->ItemNum, 1001);
  EXPECT_EQ(other->Category, 3);
  EXPECT_EQ(other->description, "Pen \"fine\"");
  EXPECT_EQ(other->charge, Money(12));
  EXPECT_EQ(other->Par, 5);
  EXPECT_EQ(other->InStock, -2);
  EXPECT_EQ(other->Warranty, "0") << "no load touches it";
}

TEST_F(InventoryTest, AnUnknownItemIsABlankOneWithTheNextNumber) {
  AddItem(1005, 1, 1);
  inventory->Category = 4;
  inventory->description = "old";
  inventory->charge = Money(1);
  inventory->Par = inventory->InStock = 9;
  inventory->Warranty = "kept";
  inventory->GetItem(7);
  EXPECT_EQ(inventory->ItemNum, 1006);
  EXPECT_EQ(inventory->Category, 1);
  EXPECT_EQ(inventory->description, "");
  EXPECT_EQ(inventory->charge, Money(0));
  EXPECT_EQ(inventory->Par, 0);
  EXPECT_EQ(inventory->InStock, 0);
  EXPECT_EQ(inventory->Warranty, "kept");
}

TEST_F(InventoryTest, NullsStopTheReadingOfAnItemWhereTheyStand) {
  const std::vector<std::string> order = {"Description", "Charge", "Par", "InStock"};
  for (std::size_t i = 0; i < order.size(); ++i) {
    SCOPED_TRACE(order[i]);
    database.Execute(
        "delete from tb_Inventory; insert into tb_Inventory values (8, 2, 'new', 10000, 1, 1, null);"
        "update tb_Inventory set " +
        order[i] + " = null");
    const auto item = Opened<Inventory>();
    item->GetItem(8);
    ExpectReport("Inventory.GetItem -", 94);
    EXPECT_EQ(item->Category, 2);
    EXPECT_EQ(item->description == "new", i > 0);
    EXPECT_EQ(item->charge == Money(1), i > 1);
    EXPECT_EQ(item->Par == 1, i > 2);
    EXPECT_EQ(item->InStock, 0);
  }
}

TEST_F(InventoryTest, ARefusedDescriptionLosesTheItem) {
  AddItem(1001, 1, 1);
  AddItem(1002, 1, 1);
  inventory->description = "6' pole";
  std::int32_t number = 1001;
  inventory->SaveItemAccess(number);
  ExpectReport("Inventory.SaveItemAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select ItemNum from tb_Inventory"), ElementsAre("1002"));
  inventory->DeleteItem(1002);
  EXPECT_THAT(database.Rows("select ItemNum from tb_Inventory"), IsEmpty());
}

TEST_F(InventoryTest, CategoriesAreNumberedFromOneAndTakeTheirItemsAlong) {
  database.Clear();
  inventory->SaveCategory(0, "Parts");
  EXPECT_EQ(inventory->CatNum, 1);
  inventory->SaveCategory(5, "Labor");
  EXPECT_EQ(inventory->CatNum, 5);
  inventory->SaveCategory(5, "Work");
  EXPECT_THAT(Rows(inventory->rsCategories(), {"catnum", "description"}), ElementsAre("1|Parts", "5|Work"));
  AddItem(3, 0, 0, 5);
  AddItem(2, 0, 0, 5);
  AddItem(1, 0, 0, 1);
  EXPECT_THAT(Rows(inventory->rsInventory(5), {"ItemNum"}), ElementsAre("2", "3"));

  inventory->SaveCategory(5, "Ann's");
  ExpectReport("Inventory.SaveCategory -", kSyntaxError);
  EXPECT_THAT(database.Rows("select CatNum from tb_InvCategories"), ElementsAre("1"));
  EXPECT_EQ(inventory->rsInventory(5)->RecordCount(), 2);
  inventory->DeleteCategory(5);
  EXPECT_THAT(database.Rows("select ItemNum from tb_Inventory"), ElementsAre("1"));
}

TEST_F(InventoryTest, TheServersProcedureIsCalledWithoutATrap) {
  EXPECT_THROW(inventory->SaveItem(), RuntimeError);
}

}  // namespace norvane::test
