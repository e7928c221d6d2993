#include "PageFixture.h"
#include "support/Golden.h"
#include "support/SampleInvoice.h"

namespace norvane::pages {
namespace {

TEST_F(PageFixture, AnInvoiceStandsOnOneLetterPage) {
  WriteInvoice(report, {});
  EXPECT_EQ(Laid().pages.size(), 1u);
  ExpectGolden("invoice.txt", Text());
}

TEST_F(PageFixture, MovesTheWholeTotalsBlockBelowALongDescription) {
  WriteInvoice(report, {.description = "first line\nsecond line"});
  ASSERT_EQ(Laid().pages.size(), 2u);
  const std::string second = Text().substr(Text().find("page 2/2"));
  for (const char* part : {"text 6.20in 0.51in 11.25pt \"SubTotal\"", "\"Total:\"", "\"Invoice #1042\"",
                           "\"We appreciate your business!\""}) {
    EXPECT_NE(second.find(part), std::string::npos) << part;
  }
}

}  // namespace
}  // namespace norvane::pages
