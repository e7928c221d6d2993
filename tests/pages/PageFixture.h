#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "pages/DocumentBuilder.h"
#include "pages/Layout.h"
#include "support/PagesText.h"
#include "support/PinnedFontMetrics.h"

namespace norvane::pages {

using ::testing::HasSubstr;
using ::testing::Not;

/// A document with margins of half an inch, already started; its body is 720 points high.
class PageFixture : public testing::Test {
 protected:
  PageFixture() {
    report.SetMargins("0.5in", "0.5in", "0.5in", "0.5in");
    report.StartDocument();
  }

  Pages Laid() const { return LayOut(report.Recorded().value(), metrics); }
  std::string Text() const { return PagesText(Laid(), metrics); }

  /// All text of the pages without spaces.
  std::string Letters() const {
    const Pages pages = Laid();
    std::string letters;
    for (const Page& page : pages.pages) letters += page.text;
    std::erase(letters, ' ');
    return letters;
  }

  PinnedFontMetrics metrics;
  DocumentBuilder report;
};

}  // namespace norvane::pages
