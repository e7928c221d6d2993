#include "data/DataTest.h"
#include "data/Inventory.h"
#include "data/SharedLists.h"
#include "data/cSetup.h"

namespace norvane::test {

using ::testing::ElementsAre;

class SharedListsTest : public DataTest {};

TEST_F(SharedListsTest, InventoryIsReadAnewAndAPendingDeletionCarriedOutFirst) {
  database.Execute("insert into tb_Inventory (ItemNum, CatNum) values (7, 1), (8, 1), (9, 2)");
  GetInventory(workspace, 1, 7);
  EXPECT_EQ(globals.rsInventory->RecordCount(), 2);
  EXPECT_EQ(globals.rsCategories->RecordCount(), 1);
  const Object<Recordset> before = globals.rsInventory;
  const Object<Inventory> object = globals.oInventory;

  globals.InventoryStale = true;
  GetInventory(workspace, 1, 7);
  EXPECT_FALSE(globals.InventoryStale);
  EXPECT_EQ(before->State(), 0);
  EXPECT_NE(object.Share(), globals.oInventory.Share());
  EXPECT_THAT(Rows(globals.rsInventory, {"ItemNum"}), ElementsAre("8"));
  EXPECT_EQ(engine.OpenConnections(database.File()), 0);
}

TEST_F(SharedListsTest, SetupReadsTheRateAndTheLookupLists) {
  database.Execute("insert into tb_Company (Name, Statetaxrate) values ('Acme', 8.25)");
  SetupInit(workspace);
  EXPECT_EQ(globals.StateTaxRate, 8.25);
  EXPECT_EQ(globals.oSetup->Name, "Acme");
  EXPECT_EQ(globals.rsPaymentTypes->Text("type"), "Cash");
  EXPECT_EQ(globals.rsExpenseTypes->Text("type"), "Advertising");
  EXPECT_EQ(globals.rsShippingTypes->Text("service"), "Ground");
  const Object<Recordset> before = globals.rsPaymentTypes;
  SetupInit(workspace);
  EXPECT_EQ(before->State(), 0);
  EXPECT_EQ(engine.OpenConnections(database.File()), 0);
}

}  // namespace norvane::test
