#include <gtest/gtest.h>

#include <QApplication>

#include "tour/Offscreen.h"

int main(int argc, char** argv) {
  const norvane::tour::Offscreen offscreen;
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
