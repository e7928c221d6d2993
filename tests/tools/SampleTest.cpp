#include <fstream>
#include <gmock/gmock.h>
#include <iterator>

#include "sample/Sample.h"
#include "support/Database.h"

namespace norvane::sample {
namespace {

using testing::IsEmpty;

const Day kToday = ToDay(std::chrono::year{2026} / 11 / 22);

/// A sample written over the fixture's database, so that the fixture's queries look into it.
class SampleTest : public testing::Test {
 protected:
  void Write(const Order& order) {
    std::filesystem::rename(database.File(), Delivered());
    WriteSample(Delivered(), database.File(), order);
  }
  std::filesystem::path Delivered() const { return database.Folder() / "delivered.mdb"; }
  int Count(const std::string& query) { return std::stoi(database.Cell(query)); }

  test::Database database;
};

std::string Bytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(SampleTest, IsTheSameForASeedAndADay) {
  const auto write = [&](const char* name, std::uint64_t seed, Day today) {
    WriteSample(database.File(), database.Folder() / name, {.size = {}, .seed = seed, .today = today});
    return Bytes(database.Folder() / name);
  };
  const std::string first = write("first", 7, kToday);
  EXPECT_EQ(first, write("again", 7, kToday));
  EXPECT_NE(first, write("seed", 8, kToday));
  EXPECT_NE(first, write("day", 7, kToday + 1));
}

TEST_F(SampleTest, NeverTouchesADatabaseThatIsThere) {
  const std::string before = Bytes(database.File());
  EXPECT_THROW(WriteSample(database.File(), database.File(), {.size = {}, .seed = 1, .today = kToday}),
               std::runtime_error);
  EXPECT_EQ(Bytes(database.File()), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(database.Folder()), {}), 1) << "a draft is left";
}

TEST_F(SampleTest, HasTheSizeAskedFor) {
  Write({.size = {.clients = 40, .invoices = 333, .lines = 2'000, .items = 190, .payments = 150, .entries = 700},
         .seed = 3,
         .today = kToday});
  EXPECT_EQ(Count("SELECT count(*) FROM tb_Client"), 40);
  EXPECT_EQ(Count("SELECT count(*) FROM tb_Invoice"), 333);
  EXPECT_EQ(Count("SELECT count(*) FROM tb_trans"), 2'000);
  EXPECT_EQ(Count("SELECT count(*) FROM tb_Invoice WHERE InvoiceNum NOT IN (SELECT InvoiceNum FROM tb_trans)"), 0);
}

TEST_F(SampleTest, CanBeSmallerThanItsOwnRhythm) {
  Write({.size = {.clients = 1, .invoices = 1, .lines = 1, .items = 1, .payments = 1, .entries = 1},
         .seed = 1,
         .today = kToday});
  EXPECT_EQ(Count("SELECT count(*) FROM tb_Client JOIN tb_Invoice USING (CustNum) JOIN tb_trans USING (InvoiceNum)"),
            1);
}

/// Queries that find what the program could not have written, or what would look odd on a screen.
struct Flaw {
  const char* name;
  const char* query;
};
const Flaw kFlaws[] = {
    {"LineIsNotQuantityTimesPrice",
     "SELECT TransNum FROM tb_trans JOIN tb_Inventory USING (ItemNum) WHERE Amount <> Qty * Charge"},
    {"BackOrdersAreNotWhatIsShort",
     "SELECT ItemNum FROM tb_Inventory AS item WHERE Par > 0 AND min(InStock, 0) <> "
     "ifnull((SELECT sum(BackOrder) FROM tb_trans WHERE tb_trans.ItemNum = item.ItemNum), 0) "
     "LIMIT -1 OFFSET 1"},  // goods have arrived for one item
    {"OrderedWithoutBackOrder", "SELECT TransNum FROM tb_trans WHERE Ordered IS NOT NULL AND BackOrder >= 0"},
    {"TaxIsNotTheStates",
     "SELECT InvoiceNum FROM tb_Invoice JOIN (SELECT InvoiceNum, sum(Amount) AS Lines FROM tb_trans GROUP BY 1) "
     "USING (InvoiceNum), tb_Company WHERE Tax <> 0 AND "
     "abs(Tax - Lines * (100 - Discount) / 100 * Statetaxrate / 100) > 50"},
    {"BalanceHasPartsOfACent", "SELECT CustNum FROM ClientBals WHERE Balance % 100 <> 0"},
    {"UnknownCategory", "SELECT Category FROM tb_GL WHERE Category <> '' AND Category NOT IN tb_ExpenseTypes"},
    {"UnknownPaymentType",
     "SELECT Type FROM tb_Receive WHERE Type NOT IN tb_PaymentTypes UNION "
     "SELECT PaymentType1 FROM tb_Client WHERE PaymentType1 <> '' AND PaymentType1 NOT IN tb_PaymentTypes"},
    {"SharedTelephone",
     "SELECT phone FROM (SELECT HomePhone AS phone FROM tb_Client UNION ALL SELECT CelPhone FROM tb_Client UNION ALL "
     "SELECT WorkPhone FROM tb_Client UNION ALL SELECT Phone FROM tb_Vendor) WHERE phone <> '' GROUP BY phone "
     "HAVING count(*) > 1"},
    {"NoAreaCode",
     "SELECT HomePhone FROM tb_Client WHERE HomePhone NOT GLOB '[2-9][0-9][0-9]-555-01[0-9][0-9]' AND "
     "HomePhone <> ''"},
    {"MailThatMayBeSomeones",
     "SELECT Email FROM tb_Client WHERE Email NOT LIKE '%_@_%.example' UNION "
     "SELECT Email FROM tb_Vendor WHERE Email NOT LIKE '%_@_%.example'"},
    {"UnknownShipping",
     "SELECT ShippingType FROM tb_Invoice WHERE ShippingType NOT IN (SELECT Service || ' ' || \"Option\" FROM "
     "tb_Shipping)"},
};

TEST_F(SampleTest, HoldsTogether) {
  Write({.size = {}, .seed = 1, .today = kToday});
  EXPECT_EQ(database.Cell("PRAGMA integrity_check"), "ok");
  for (const Flaw& flaw : kFlaws) EXPECT_THAT(database.Rows(flaw.query), IsEmpty()) << flaw.name;
}

TEST_F(SampleTest, HasNoTextThatTheProgramCouldNotSaveAgain) {
  Write({.size = {}, .seed = 1, .today = kToday});
  for (const std::string& table : database.Rows("SELECT name FROM sqlite_master WHERE type = 'table'"))
    for (const std::string& column : database.Rows("SELECT name FROM pragma_table_info('" + table + "')"))
      EXPECT_THAT(database.Rows("SELECT * FROM " + table + " WHERE \"" + column + "\" LIKE '%''%'"), IsEmpty());
}

}  // namespace
}  // namespace norvane::sample
