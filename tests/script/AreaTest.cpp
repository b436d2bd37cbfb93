// Named areas and the mark of a picture.
#include <fstream>
#include <iterator>

#include "script/ScriptBench.h"
#include "script/TemporaryFolder.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(PressArea, RunsItsHandler) { EXPECT_THAT(RunText("press L1").log, ElementsAre("area L1")); }

TEST(PressArea, WithoutAHandlerIsThatOfTheMouseInItsMiddle) {
  EXPECT_THAT(RunText("press C2").log, ElementsAre("down 80 20 left", "up 80 20 left"));
}

TEST(PressArea, DisabledAndHiddenOnesAreRefused) {
  EXPECT_EQ(RunText("press R3").Reason(), "R3 is disabled");
  EXPECT_EQ(RunText("press T1").Reason(), "picHidden is hidden");
  EXPECT_EQ(RunText("press T2").Reason(), "there is no T2 on frmDesign");
}

TEST(PressArea, LeavesTheBoxThatWasTypedIn) {
  EXPECT_THAT(RunText("type txtValue 1\npress L1\n").log, ElementsAre("change [1]", "leave [1]", "area L1"));
}

TEST(PressArea, AnAreaIsNoOtherControl) {
  EXPECT_EQ(RunText("type L1 5").Reason(), "there is no L1 on frmDesign");
  EXPECT_EQ(RunText("choose L1 1").Reason(), "there is no L1 on frmDesign");
}

TEST(MouseOnAnArea, RunsItsHandler) {
  EXPECT_THAT(RunText("mouse down 65 20\nmouse down 80 20\nmouse down 93 20\nmouse down 65 20 right\n").log,
              ElementsAre("area L1", "down 80 20 left", "down 65 20 right"));
}

TEST(CanvasCommand, ListsTheAreas) {
  const Json areas = RunText("canvas").One("canvas")["areas"];
  ASSERT_EQ(areas.size(), 3U);
  EXPECT_EQ(areas[0], Json({{"name", "L1"},
                            {"x1", 60.0},
                            {"y1", 10.0},
                            {"x2", 70.0},
                            {"y2", 30.0},
                            {"enabled", true},
                            {"toolTip", "Inductor 1"}}));
  EXPECT_EQ(areas[2]["enabled"], false);
  EXPECT_TRUE(RunText("canvas cmdLog").One("canvas")["areas"].empty());
}

void MarkThePlot(Session& session) {
  session.pages.ShowPage(PageId::Design);
  auto& box = static_cast<BenchPage&>(*session.pages.Top()).picPlot;
  box.picture.Line(1, 2, 3, 4, colorBlack);
  box.mark.SetScale(box.picture.CurrentScale());
  box.mark.PrintAt(5, 6, "readout");
}

TEST(CanvasCommand, PrintsTheMarkApart) {
  const Json event = RunText("canvas", MarkThePlot).One("canvas");
  ASSERT_EQ(event["operations"].size(), 1U);
  ASSERT_EQ(event["mark"].size(), 1U);
  EXPECT_EQ(event["mark"][0]["op"], "Print");
  EXPECT_EQ(event["mark"][0]["text"], "readout");
  EXPECT_EQ(event["mark"][0]["x"], 5.0);
  EXPECT_TRUE(RunText("canvas").One("canvas")["mark"].empty());
}

TEST(PictureCommand, WritesTheMarkOverThePicture) {
  const TemporaryFolder folder;
  const Outcome outcome = RunText("picture " + folder.Path() + "/plot.svg", MarkThePlot);
  EXPECT_FALSE(outcome.error) << outcome.Reason();
  std::ifstream file(folder.Path() + "/plot.svg", std::ios::binary);
  EXPECT_THAT(std::string(std::istreambuf_iterator<char>(file), {}), HasSubstr("readout"));
}

}  // namespace
}  // namespace quilm
