#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

#include "ui/FlowLayout.h"

namespace norvane::ui {
namespace {

TEST(FlowLayout, GoesWithTheLayoutsThatStandInIt) {
  QPointer<QLayout> inner;
  {
    QWidget window;
    auto* strip = new FlowLayout(&window);
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
