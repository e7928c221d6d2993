#include "Office.h"
#include "data/Inventory.h"
#include "screens/stock/InventoryCats.h"
#include "screens/stock/frmInventory.h"
#include "store/Recordset.h"

namespace norvane::test {
namespace {

class InventoryScreens : public Office {
 protected:
  void StartWithStock() {
    database.Execute(R"(
      INSERT INTO tb_InvCategories VALUES (2, 'Labor'), (3, 'Hardware');
      INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock, Warranty) VALUES
        (1001, 1, 'Hammer', 125000, 5, 2, '1 year'), (1002, 3, 'Drill', 899900, 2, 4, ''),
        (1003, 1, 'Saw', 80000, 0, 0, NULL);)");
    StartWithClients();
    Main().btnInventory.Press();
  }
  frmInventory& Stock() { return The<frmInventory>(); }
  Grid& List() { return Stock().InventoryList; }
  std::string Row(int row) { return RowText(List(), row); }
  std::string Item(int number) {
    const auto rows =
        database.Rows("SELECT CatNum, Description, Charge, Par, InStock, Warranty FROM tb_Inventory WHERE ItemNum = " +
                      std::to_string(number));
    return rows.empty() ? "" : rows.front();
  }
  std::string CountOf(const std::string& table) { return database.Cell("SELECT count(*) FROM " + table); }
};

TEST_F(InventoryScreens, ANewItemIsStoredOnceItHasItsFourValues) {
  StartWithStock();
  EXPECT_EQ(Stock().cmbCategory.Text(), "001 General");
  EXPECT_EQ(List().Rows(), 4);
  EXPECT_EQ(Row(1), "|1001|Hammer|$12.50|5|2|1 year");
  EXPECT_EQ(Row(3), "*||||||");
  EXPECT_FALSE(IsOpen("GettingInventory"));

  Stock().btnNewItem.Press();
  EXPECT_EQ(List().Row(), 3);
  EXPECT_EQ(List().Col(), 2);
  TypeCells(List(), {"Level", "19.5", "3"});
  EXPECT_FALSE(globals.RowChanged);
  Type(List(), "7");
  List().UserKey(Key::Enter);
  EXPECT_TRUE(globals.RowChanged);
  EXPECT_EQ(Row(3), "?|0|Level|$19.50|3|7|");
  EXPECT_EQ(List().Rows(), 5) << "the blank row moves down";
  List().UserKey(Key::Down);
  EXPECT_EQ(Item(1004), "1|Level|195000|3|7|0");
  EXPECT_EQ(Row(3), "|1004|Level|$19.50|3|7|0");
  Enter(List(), 3, 5, "6");
  Main().UserActivate();
  EXPECT_EQ(Item(1004), "1|Level|195000|3|6|0") << "saved again under its number";
}

TEST_F(InventoryScreens, RowsThatCannotBeReadWaitAndTheOthersStayAsTheyAre) {
  StartWithStock();
  desktop.Expect("frmInventory.InventoryList_AfterEdit -13 Type mismatch");
  Enter(List(), 1, 3, "dear");
  EXPECT_FALSE(globals.RowChanged);
  Enter(List(), 1, 3, "13");
  desktop.Expect("frmInventory.SaveRow -13 Type mismatch");
  EnterAndGoDown(List(), 1, 4, "few");
  database.Execute("UPDATE tb_Inventory SET InStock = 55 WHERE ItemNum = 1003");
  List().UserKey(Key::Down);
  EXPECT_EQ(Item(1003), "1|Saw|80000|0|55|NULL") << "a row walked over is not stored";
  EXPECT_EQ(Connections(), 0);
  Enter(List(), 1, 4, "4");
  // A row that waits is stored in its own category before the next one is shown.
  Stock().cmbCategory.UserPick(2);
  EXPECT_EQ(Item(1001), "1|Hammer|130000|4|2|1 year");
  EXPECT_EQ(Row(1), "|1002|Drill|$89.99|2|4|");
  Main().btnInventory.Press();
  EXPECT_EQ(globals.CurCatNum, 1);
  EnterAndGoDown(List(), 1, 5, "3");
  EXPECT_EQ(Item(1002), "3|Drill|899900|2|3|0") << "an item keeps the category it is listed in";
}

TEST_F(InventoryScreens, TheRowEditedIsMarkedAfterAChangeOfCategory) {
  StartWithStock();
  Stock().cmbCategory.UserPick(2);
  List().SetFocus();
  TypeCells(List(), {"Driller"});
  EXPECT_EQ(Row(1), "?|1002|Driller|$89.99|2|4|");
  EXPECT_EQ(Row(2), "*||||||") << "no row is started";
}

TEST_F(InventoryScreens, AnItemIsDeletedAfterTheQuestionAndItsCategoryStays) {
  StartWithStock();
  Stock().btnDelete.Press();
  EXPECT_TRUE(desktop.boxes.empty()) << "no row was clicked";
  Stock().cmbCategory.UserPick(2);
  List().UserClick(1, 2);
  Press(Stock().btnDelete, "Delete Inventory Item Drill ?", Answer::No);
  ExpectQuestion("Delete Inventory Item ... Drill?");
  EXPECT_EQ(List().Rows(), 3);
  Press(Stock().btnDelete, "Delete Inventory Item Drill ?", Answer::Yes);
  EXPECT_EQ(Item(1002), "");
  EXPECT_FALSE(globals.InventoryStale);
  EXPECT_EQ(Stock().cmbCategory.Text(), "003 Hardware");
  EXPECT_EQ(Row(1), "*||||||");
}

TEST_F(InventoryScreens, WithoutCategoriesOneIsAskedForFirst) {
  database.Execute("DELETE FROM tb_InvCategories");
  StartWithClients();
  desktop.Expect("No categories for which to enter inventory.");
  desktop.WhenModal<InventoryCats>([](InventoryCats& categories) {
    EXPECT_EQ(categories.InventoryList.Cell(1, 0), "*");
    Enter(categories.InventoryList, 1, 2, "Tools");
    EXPECT_EQ(categories.InventoryList.Cell(1, 1), "1");
    categories.btnExit.Press();
  });
  Main().btnInventory.Press();
  EXPECT_FALSE(IsOpen("InventoryCats"));
  ASSERT_TRUE(IsOpen("frmInventory"));
  EXPECT_TRUE(Stock().IsVisible());
  EXPECT_EQ(Stock().cmbCategory.Text(), "001 Tools");
}

TEST_F(InventoryScreens, CategoriesAreEditedAndTakeTheirItemsWithThem) {
  StartWithStock();
  desktop.Expect("All items in  General will be deleted also.", Answer::No);
  desktop.Expect("All items in  General will be deleted also.", Answer::Yes);
  desktop.WhenModal<InventoryCats>([&](InventoryCats& categories) {
    Enter(categories.InventoryList, 2, 2, "Services");
    EXPECT_EQ(database.Cell("SELECT Description FROM tb_InvCategories WHERE CatNum = 2"), "Services");
    categories.btnNew.Press();
    Type(categories.InventoryList, "Books");
    categories.InventoryList.UserKey(Key::Enter);
    EXPECT_EQ(categories.InventoryList.Cell(4, 1), "4");
    categories.InventoryList.UserClick(1, 2);
    categories.btnDelete.Press();
    ExpectQuestion("Delete Inventory Category ... General?");
    EXPECT_EQ(CountOf("tb_Inventory"), "3");
    categories.btnDelete.Press();
    EXPECT_EQ(CountOf("tb_Inventory"), "1");
    categories.btnExit.Press();
  });
  Stock().btnCategories.Press();
  EXPECT_THAT(Stock().cmbCategory.Items(), ElementsAre("002 Services", "003 Hardware", "004 Books"));
  EXPECT_EQ(CountOf("tb_InvCategories"), "3");
}

TEST_F(InventoryScreens, ACategoryNumberAboveThreeDigitsLosesItsLast) {
  database.Execute("DELETE FROM tb_InvCategories; INSERT INTO tb_InvCategories VALUES (12345, 'Far')");
  StartWithClients();
  Main().btnInventory.Press();
  EXPECT_EQ(Stock().cmbCategory.Text(), "12345 Far");
  EXPECT_EQ(globals.CurCatNum, 1234);
}

}  // namespace
}  // namespace norvane::test
