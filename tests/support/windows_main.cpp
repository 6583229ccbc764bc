#include <gtest/gtest.h>

#include <QApplication>

#include "base/windows/accessibility.h"
#include "base/windows/theme.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  tonarix::theme::apply(application);
  tonarix::install_accessibility();
  return RUN_ALL_TESTS();
}
