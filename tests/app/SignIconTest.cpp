#include "app/SignIcon.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "app/Palettes.h"

namespace quilm {
namespace {

Picture Sign() {
  Picture picture(Scale{0, 0, 300, 300});
  picture.Rectangle(0, 0, 300, 300, colorWhite, true);
  picture.DrawWidth = 3;
  picture.Line(0, 150, 300, 150, colorBlack);
  return picture;
}

class SignIconTest : public testing::Test {
 protected:
  ~SignIconTest() override { SetAppearance("light"); }
  static QColor Middle(QIcon::Mode mode = QIcon::Normal) {
    return SignIcon(Sign()).pixmap(QSize(20, 20), mode).toImage().pixelColor(10, 10);
  }
};

TEST_F(SignIconTest, BlackIsTheColourOfTheText) {
  SetAppearance("dark");
  EXPECT_EQ(Middle(), DarkPalette().color(QPalette::ButtonText));
  SetAppearance("light");
  EXPECT_EQ(Middle(), LightPalette().color(QPalette::ButtonText));
}

TEST_F(SignIconTest, ThePaperIsTransparent) {
  EXPECT_EQ(SignIcon(Sign()).pixmap(QSize(20, 20)).toImage().pixelColor(10, 3).alpha(), 0);
}

TEST_F(SignIconTest, ADisabledSignIsPaler) {
  EXPECT_EQ(Middle(QIcon::Disabled), LightPalette().color(QPalette::Disabled, QPalette::ButtonText));
}

TEST_F(SignIconTest, ItsSizeKeepsTheProportions) {
  EXPECT_EQ(SignSize(Picture(Scale{0, 0, 900, 300}), 20), QSize(60, 20));
}

}  // namespace
}  // namespace quilm
