#include "data/DataTest.h"
#include "data/cSetup.h"

namespace norvane::test {

using ::testing::ElementsAre;

class cSetupTest : public DataTest {
 protected:
  std::shared_ptr<cSetup> setup = Opened<cSetup>();
};

TEST_F(cSetupTest, EverySaveAddsABlankToTheSecondAddress) {
  setup->Name = "Kept";
  setup->GetCompanyInfo();
  EXPECT_EQ(setup->Name, "Kept") << "there is no company yet";
  database.Execute("insert into tb_Company (Statetaxrate) values (8.25)");
  FillTexts("tb_Company");
  database.Execute("update tb_Company set Address2 = 'Suite 2'");
  const std::string row = database.Rows("select * from tb_Company")[0];
  setup->GetCompanyInfo();
  EXPECT_EQ(setup->City, "\"City\"; --");
  for (const char* address : {"Suite 2 ", "Suite 2  "}) {
    setup->SaveCompanyInfo();
    setup->GetCompanyInfo();
    EXPECT_EQ(setup->Address2, address);
  }
  database.Execute("update tb_Company set Address2 = 'Suite 2'");
  EXPECT_THAT(database.Rows("select * from tb_Company"), ElementsAre(row));
}

TEST_F(cSetupTest, TypesAreKeysWhateverTheirCase) {
  database.Clear();
  setup->SavePaymentType("check");
  setup->SavePaymentType("Cash");
  setup->SavePaymentType("Check");
  ExpectReport("cSetup.SavePaymentType -", kFileOrKey);
  EXPECT_THAT(Rows(setup->rsPaymentTypes(), {"type"}), ElementsAre("Cash", "check"));
  setup->DeletePaymentType("CHECK");
  EXPECT_THAT(Rows(setup->rsPaymentTypes(), {"Type"}), ElementsAre("Cash"));

  setup->SaveExpenseType("Rent");
  setup->SaveExpenseType("Owner's");
  ExpectReport("cSetup.SaveExpenseType -", kSyntaxError);
  setup->DeleteExpenseType("none");
  EXPECT_THAT(Rows(setup->rsExpenseTypes(), {"Type"}), ElementsAre("Rent"));
}

TEST_F(cSetupTest, ServiceAndOptionAreTheKeyOfShipping) {
  database.Clear();
  setup->SaveShippingType("UPS", "5 lb", Money(7.5));
  setup->SaveShippingType("UPS", "20 lb", Money(9));
  setup->SaveShippingType("Air", "5 lb", Money(30));
  setup->SaveShippingType("ups", "5 LB", Money(8.0001));
  EXPECT_THAT(Rows(setup->rsShippingTypes(), {"Service", "Option", "Charge"}),
              ElementsAre("Air|5 lb|30", "UPS|20 lb|9", "ups|5 LB|8.0001"));
  setup->DeleteShippingType("UPS", "20 lb");
  setup->SaveShippingType("Air", "5' box", Money(1));
  ExpectReport("cSetup.SaveShippingType -", kSyntaxError);
  EXPECT_THAT(Rows(setup->rsShippingTypes(), {"Option"}), ElementsAre("5 lb", "5 LB"));
}

}  // namespace norvane::test
