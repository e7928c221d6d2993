#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

#include <QTemporaryDir>

#include "app/AccessibleNames.h"
#include "app/Composition.h"
#include "app/CutOffText.h"
#include "forms/Form.h"
#include "forms/Preview.h"
#include "sample/Sample.h"
#include "support/Database.h"
#include "tour/Visit.h"
#include "ui/PagePdf.h"
#include "ui/PdfReader.h"

namespace norvane {
namespace {

const Date kDay(sample::ToDay(std::chrono::year{2025} / 10 / 17));

/// The screens of the program over the sample business.
class RealScreens : public testing::Test {
 protected:
  RealScreens() {
    const auto delivered = database.Folder() / "delivered.mdb";
    std::filesystem::rename(database.File(), delivered);
    sample::WriteSample(delivered, database.File(),
                        {.size = {}, .seed = 1, .today = static_cast<sample::Day>(kDay.Day())});
  }

  /// Calls `look` with each screen in its window, or with those whose names begin so.
  template <class Look>
  void VisitAll(ui::Theme theme, Look look, std::string_view wanted = {}) {
    for (const tour::Stop* stop : Stops()) {
      if (!stop->screen.starts_with(wanted)) continue;
      if (stop->shot != tour::Stop::Shot::Screen || stop->isEmpty) continue;
      SCOPED_TRACE(std::string(stop->picture) + (theme == ui::Theme::Dark ? ", dark" : ""));
      tour::Visit visit(*stop, theme, kDay, database.Folder());
      const std::string problem = visit.Make([&](Form& form, QWidget& window) {
        visit.Settle();
        look(visit, form, window);
      });
      EXPECT_EQ(problem, "");
    }
  }

  test::Database database;

 private:
  std::vector<const tour::Stop*> Stops() {
    tour::TourDesktop desktop(ui::Theme::Light, kDay);
    Program program(desktop, {}, database.Folder());
    Compose(program);
    return tour::StopsOf(program);
  }
};

TEST_F(RealScreens, CutOffNoTextAtTheirFirstAndTheirSmallestSize) {
  for (const ui::Theme theme : {ui::Theme::Light, ui::Theme::Dark}) {
    VisitAll(theme, [](tour::Visit& visit, Form& form, QWidget& window) {
      EXPECT_THAT(test::CutOffTexts(window), testing::IsEmpty()) << "at its first size";
      if (!form.Style().resizable) return;
      window.resize(window.minimumSizeHint());
      for (int i = 0; i < 3; ++i) visit.Settle();
      EXPECT_THAT(test::CutOffTexts(window), testing::IsEmpty()) << "at its smallest size";
    });
  }
}

TEST_F(RealScreens, GiveAssistiveToolsNamesRolesAndValues) {
  VisitAll(ui::Theme::Light, [](tour::Visit&, Form&, QWidget& window) {
    EXPECT_THAT(test::InaccessibleParts(window), testing::IsEmpty());
  });
}

/// The words of a page, in any order.
std::multiset<std::string> WordsOf(const pages::Page& page) {
  std::multiset<std::string> words;
  for (const pages::TextRun& run : page.runs) {
    std::istringstream text{std::string(page.TextOf(run))};
    words.insert(std::istream_iterator<std::string>(text), {});
  }
  return words;
}

TEST_F(RealScreens, SaveReportsAsPdfsOfTheTextsOnTheirPages) {
  const QTemporaryDir folder;
  const auto look = [&](tour::Visit&, Form& form, QWidget&) {
    const auto isPreview = [](Control* control) { return dynamic_cast<Preview*>(control) != nullptr; };
    const auto& controls = form.Controls();
    const auto& preview = dynamic_cast<Preview&>(**std::ranges::find_if(controls, isPreview));
    const QString file = folder.filePath(QString::fromStdString(form.Name()) + ".pdf");
    ASSERT_EQ(ui::WritePdf(preview.Pages(), "Report", file).painted, ui::Painted::All);
    const auto printed = ui::PagesOfPdf(file);
    ASSERT_EQ(printed.size(), preview.Pages().pages.size());
    for (std::size_t i = 0; i < printed.size(); ++i) {
      std::multiset<std::string> words;
      for (const ui::PdfWord& word : printed[i].words) words.insert(word.text.toStdString());
      EXPECT_EQ(words, WordsOf(preview.Pages().pages[i])) << "page " << i + 1;
    }
  };
  VisitAll(ui::Theme::Light, look, "Prt");
}

}  // namespace
}  // namespace norvane
