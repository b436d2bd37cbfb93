#include "app/FirstPlace.h"

#include <gtest/gtest.h>

#include <QSize>

namespace quilm {
namespace {

constexpr QSize usual(1280, 860);

// Title bars of the common desktops are 24 to 46 pixels high, their frames up to 8 wide.
constexpr QMargins frame(8, 46, 8, 8);

TEST(FirstPlace, TheTitleBarIsOnASmallScreen) {
  const QRect screen(0, 0, 1366, 768);
  const QRect place = FirstPlace(screen, usual);
  EXPECT_TRUE(screen.contains(place.marginsAdded(frame)));
  EXPECT_EQ(place.width(), 1280);
  EXPECT_GE(place.height(), 700);
}

TEST(FirstPlace, PanelsAreLeftFree) {
  const QRect belowAPanel(72, 32, 1294, 736);
  EXPECT_TRUE(belowAPanel.contains(FirstPlace(belowAPanel, usual).marginsAdded(frame)));
}

TEST(FirstPlace, OnALargeScreenItHasItsUsualSizeInTheMiddle) {
  const QRect screen(0, 0, 1920, 1080);
  const QRect place = FirstPlace(screen, usual);
  EXPECT_EQ(place.size(), usual);
  EXPECT_NEAR(place.center().x(), 959, 1);
  EXPECT_TRUE(screen.contains(place.marginsAdded(frame)));
}

}  // namespace
}  // namespace quilm
