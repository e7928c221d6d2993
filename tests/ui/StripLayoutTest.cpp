#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

#include "ui/StripLayout.h"

namespace norvane::ui {
namespace {

TEST(StripLayout, GoesWithTheLayoutsThatStandInIt) {
  QPointer<QLayout> inner;
  {
    QWidget window;
    auto* strip = new StripLayout(&window);
    strip->AddWidget(new QLabel("first"));
    for (int group = 0; group < 3; ++group) {
      auto* pair = new QHBoxLayout;
      pair->addWidget(new QLabel("label"));
      inner = pair;
      strip->AddLayout(pair);
    }
    strip->AddStretch();
  }
  EXPECT_TRUE(inner.isNull());
}

}  // namespace
}  // namespace norvane::ui
