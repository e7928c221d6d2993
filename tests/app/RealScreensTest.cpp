#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Composition.h"
#include "app/CutOffText.h"
#include "forms/Form.h"
#include "sample/Sample.h"
#include "support/Database.h"
#include "tour/Visit.h"

namespace norvane {
namespace {

constexpr auto kDay = std::chrono::year{2025} / 10 / 17;

/// The screens of the program over a small business.
class RealScreens : public testing::TestWithParam<ui::Theme> {
 protected:
  RealScreens() {
    const auto delivered = database.Folder() / "delivered.mdb";
    std::filesystem::rename(database.File(), delivered);
    sample::WriteSample(delivered, database.File(),
                        {.size = {.clients = 60, .invoices = 300, .lines = 900, .items = 40, .payments = 150},
                         .seed = 1,
                         .today = sample::ToDay(kDay)});
  }
  std::vector<const tour::Stop*> Stops() {
    tour::TourDesktop desktop(GetParam(), Date(sample::ToDay(kDay)));
    Program program(desktop, {}, database.Folder());
    Compose(program);
    return tour::StopsOf(program);
  }

  test::Database database;
};

TEST_P(RealScreens, CutOffNoTextAtTheirFirstAndTheirSmallestSize) {
  for (const tour::Stop* stop : Stops()) {
    tour::Visit visit(*stop, GetParam(), Date(sample::ToDay(kDay)), database.Folder());
    const std::string problem = visit.Make([&](Form& form, ui::FormWindow& window) {
      visit.Settle();
      EXPECT_THAT(test::CutOffTexts(window), testing::IsEmpty()) << stop->picture << " at its first size";
      if (!form.Style().resizable) return;
      window.resize(window.minimumSizeHint());
      for (int i = 0; i < 3; ++i) visit.Settle();
      EXPECT_THAT(test::CutOffTexts(window), testing::IsEmpty()) << stop->picture << " at its smallest size";
    });
    EXPECT_EQ(problem, "") << stop->picture;
  }
}

INSTANTIATE_TEST_SUITE_P(Themes, RealScreens, testing::Values(ui::Theme::Light, ui::Theme::Dark));

}  // namespace
}  // namespace norvane
