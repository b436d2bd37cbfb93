// A tool beside a page takes the commands that follow, while the page stays in sight.
#include "script/ScriptBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

TEST(Beside, TakesTheCommandsUntilItCloses) {
  const Outcome outcome = RunText("press cmdBeside\ntype txtEntry 5\npress cmdOk\npress cmdLog\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_THAT(outcome.log, ElementsAre("left entry [5]", "beside closed", "log"));
  EXPECT_EQ(outcome.One("modal")["page"], "frmEnterWidth");
  EXPECT_EQ(outcome.One("unload")["page"], "frmEnterWidth");
}

TEST(Beside, BothPagesArePrintedTheToolFirst) {
  const auto pages = RunText("press cmdBeside\npage\npress cmdOk\n").Of("page");
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0]["page"], "frmEnterWidth");
  EXPECT_EQ(pages[1]["page"], "frmDesign");
  EXPECT_EQ(RunText("press cmdBeside\npress cmdOk\npage\n").Of("page").size(), 1U);
}

TEST(Beside, ItsCloseBoxClosesItAlone) {
  EXPECT_THAT(RunText("press cmdBeside\nclose\npress cmdLog\n").log,
              ElementsAre("left entry []", "beside closed", "log"));
}

TEST(Beside, ThePageIsInSightAndLocked) {
  const Outcome outcome = RunText("press cmdBeside\ncanvas\ncanvas picPlot\npress cmdLog\n");
  EXPECT_EQ(outcome.Of("canvas").size(), 2U);
  EXPECT_EQ(outcome.Reason(), "cmdLog is disabled");
  EXPECT_EQ(RunText("press cmdBeside\nmouse down 1 2\n").Reason(), "picPlot is disabled");
  EXPECT_EQ(RunText("press cmdBeside\npress L1\n").Reason(), "picPlot is disabled");
}

TEST(Beside, WhatTheToolWantsOfThePageIsFree) {
  const Outcome outcome =
      RunText("press cmdMeasure\nmouse down 1 2\npress L1\npress cmdLog\npress cmdOk\npress cmdLog\n");
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  EXPECT_THAT(outcome.log, ElementsAre("down 1 2 left", "left entry []", "area L1", "log", "log"));
  EXPECT_EQ(RunText("press cmdMeasure\npress cmdForm\n").Reason(), "cmdForm is disabled");
}

}  // namespace
}  // namespace quilm
