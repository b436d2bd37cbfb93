#include <gtest/gtest.h>

#include <QApplication>

#include "app/Palettes.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication app(argc, argv);
  quilm::SetAppearance("light");
  return RUN_ALL_TESTS();
}
