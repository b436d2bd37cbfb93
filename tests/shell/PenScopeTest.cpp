#include "shell/PenScope.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "shell/Picture.h"

namespace quilm {
namespace {

void ChangePen(Canvas& canvas) {
  canvas.DrawWidth = 5;
  canvas.DrawStyle = LineStyle::Dot;
  canvas.DrawMode = PenMode::ExclusiveOr;
  canvas.ForeColor = colorRed;
  canvas.FontName = "Courier New";
  canvas.FontSize = 20;
  canvas.FontBold = true;
  canvas.Fit = {1, 100};
  canvas.ShowOn = Medium::Paper;
}

void ExpectPenAsMade(const Canvas& canvas) {
  const Picture fresh;
  EXPECT_EQ(canvas.DrawWidth, fresh.DrawWidth);
  EXPECT_EQ(canvas.DrawStyle, fresh.DrawStyle);
  EXPECT_EQ(canvas.DrawMode, fresh.DrawMode);
  EXPECT_EQ(canvas.ForeColor, fresh.ForeColor);
  EXPECT_EQ(canvas.CurrentFont(), fresh.CurrentFont());
  EXPECT_EQ(canvas.Fit, fresh.Fit);
  EXPECT_EQ(canvas.ShowOn, fresh.ShowOn);
}

TEST(PenScope, PutsEverythingOfThePenBack) {
  Picture canvas;
  {
    const PenScope pen(canvas);
    ChangePen(canvas);
  }
  ExpectPenAsMade(canvas);
}

TEST(PenScope, PutsThePenBackWhenDrawingFails) {
  Picture canvas;
  try {
    const PenScope pen(canvas);
    ChangePen(canvas);
    throw std::runtime_error("failed");
  } catch (const std::runtime_error&) {
  }
  ExpectPenAsMade(canvas);
}

TEST(PenScope, InnerScopesPutBackWhatTheOuterOneSet) {
  Picture canvas;
  const PenScope outer(canvas);
  canvas.DrawWidth = 3;
  {
    const PenScope inner(canvas);
    canvas.DrawWidth = 7;
  }
  EXPECT_EQ(canvas.DrawWidth, 3);
}

TEST(PenScope, LeavesTheSheetAsItBecame) {
  Picture canvas;
  {
    const PenScope pen(canvas);
    canvas.SetScale({1, 2, 3, 4});
    canvas.BackColor = colorBlue;
    canvas.CurrentX = 9;
  }
  EXPECT_EQ(canvas.CurrentScale(), (Scale{1, 2, 3, 4}));
  EXPECT_EQ(canvas.BackColor, colorBlue);
  EXPECT_EQ(canvas.CurrentX, 9);
}

}  // namespace
}  // namespace quilm
