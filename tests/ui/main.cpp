#include <gtest/gtest.h>

#include <QApplication>

/// Without a platform named in the environment the windows are drawn nowhere. Dialogs are the toolkit's own on every
/// desktop, so that tests can answer them.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
