#include "shell/HitArea.h"

#include "shell/ShellBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

// Two columns of three, as a palette stands.
HitAreas Palette() {
  HitAreas areas;
  for (const f32 x : {0.0F, 200.0F}) {
    for (const f32 y : {0.0F, 50.0F, 100.0F}) {
      areas.push_back({std::to_string(areas.size()), {x, y}, {x + 100, y + 40}, "", true, {}});
    }
  }
  return areas;
}

TEST(HitArea, HoldsItsEdgesWhicheverCornersAreGiven) {
  const HitArea area{"L1", {20, 30}, {10, 10}, "", true, {}};
  EXPECT_TRUE(area.Contains({10, 30}));
  EXPECT_TRUE(area.Contains({20, 10}));
  EXPECT_FALSE(area.Contains({20.1F, 20}));
  EXPECT_FALSE(area.Contains({15, 9.9F}));
  EXPECT_EQ(area.Middle(), (Point{15, 20}));
}

TEST(HitArea, IsSpokenOfByItsToolTip) {
  EXPECT_EQ((HitArea{"L1", {}, {}, "Inductor 1", true, {}}.SpokenName()), "Inductor 1");
  EXPECT_EQ((HitArea{"L1", {}, {}, "", true, {}}.SpokenName()), "L1");
}

TEST(AreaToward, LeadsToTheNeighbour) {
  const HitAreas areas = Palette();
  EXPECT_EQ(AreaToward(areas, 0, Direction::Down), 1U);
  EXPECT_EQ(AreaToward(areas, 1, Direction::Up), 0U);
  EXPECT_EQ(AreaToward(areas, 1, Direction::Right), 4U);
  EXPECT_EQ(AreaToward(areas, 5, Direction::Left), 2U);
}

TEST(AreaToward, EndsAtTheEdge) {
  const HitAreas areas = Palette();
  EXPECT_EQ(AreaToward(areas, 0, Direction::Up), std::nullopt);
  EXPECT_EQ(AreaToward(areas, 2, Direction::Left), std::nullopt);
  EXPECT_EQ(AreaToward(areas, 5, Direction::Down), std::nullopt);
  EXPECT_EQ(AreaToward(areas, 5, Direction::Right), std::nullopt);
}

TEST(AreaToward, PrefersWhatLiesAheadToWhatIsNearerAside) {
  const HitAreas areas = {{"start", {0, 0}, {10, 10}, "", true, {}},
                          {"aside", {40, 50}, {50, 60}, "", true, {}},
                          {"ahead", {0, 100}, {10, 110}, "", true, {}}};
  EXPECT_EQ(AreaToward(areas, 0, Direction::Down), 2U);
}

TEST(AreaToward, PassesOverWhatIsDisabled) {
  HitAreas areas = Palette();
  areas[1].enabled = false;
  EXPECT_EQ(AreaToward(areas, 0, Direction::Down), 2U);
}

TEST(AreaAfter, WalksInOrderAndPassesOverWhatIsDisabled) {
  HitAreas areas = Palette();
  areas[0].enabled = areas[2].enabled = false;
  EXPECT_EQ(AreaAfter(areas, std::nullopt, +1), 1U);
  EXPECT_EQ(AreaAfter(areas, 1, +1), 3U);
  EXPECT_EQ(AreaAfter(areas, 3, -1), 1U);
  EXPECT_EQ(AreaAfter(areas, 1, -1), std::nullopt);
  EXPECT_EQ(AreaAfter(areas, std::nullopt, -1), 5U);
  EXPECT_EQ(AreaAfter(areas, 5, +1), std::nullopt);
  EXPECT_EQ(AreaAfter({}, std::nullopt, +1), std::nullopt);
}

TEST(SameToTheUser, DoesNotAskWhatAPressDoes) {
  HitAreas other = Palette();
  other[3].onPress = [] {};
  EXPECT_TRUE(SameToTheUser(Palette(), other));
  other[3].enabled = false;
  EXPECT_FALSE(SameToTheUser(Palette(), other));
  EXPECT_FALSE(SameToTheUser(Palette(), {}));
}

// Two buttons with three walked cells between them, the second of which is the present one.
HitAreas Walk() {
  HitAreas areas(5);
  const char* names[] = {"before", "one", "two", "three", "behind"};
  for (std::size_t i = 0; i < areas.size(); ++i) {
    areas[i].name = names[i];
    areas[i].from = {static_cast<f32>(i), 0};
    areas[i].to = {static_cast<f32>(i) + 1, 1};
    areas[i].walked = i >= 1 && i <= 3;
    areas[i].present = i == 2;
  }
  return areas;
}

TEST(AreaAfter, WalkedAreasAreOneStopAtThePresentOne) {
  const HitAreas areas = Walk();
  EXPECT_EQ(AreaAfter(areas, 0, +1), 2U);
  EXPECT_EQ(AreaAfter(areas, 1, +1), 4U);
  EXPECT_EQ(AreaAfter(areas, 4, -1), 2U);
  EXPECT_EQ(AreaAfter(areas, 3, -1), 0U);
}

TEST(AreaAfter, WithoutAPresentOneTheWalkBeginsAtItsNearerEnd) {
  HitAreas areas = Walk();
  areas[2].present = false;
  EXPECT_EQ(AreaAfter(areas, 0, +1), 1U);
  EXPECT_EQ(AreaAfter(areas, 4, -1), 3U);
  areas[1].enabled = false;
  EXPECT_EQ(AreaAfter(areas, 0, +1), 2U);
}

TEST(SameToTheUser, WalksDiffer) {
  HitAreas areas = Walk();
  areas[2].present = false;
  EXPECT_FALSE(SameToTheUser(areas, Walk()));
  areas = Walk();
  areas[0].walked = true;
  EXPECT_FALSE(SameToTheUser(areas, Walk()));
}

class PictureWithAreas : public testing::Test {
 protected:
  PictureWithAreas() {
    box.areas = {{"wide", {0, 0}, {100, 100}, "", true, Heard("wide")},
                 {"small", {40, 40}, {60, 60}, "", true, Heard("small")},
                 {"off", {80, 80}, {90, 90}, "", false, Heard("off")},
                 {"place", {200, 0}, {300, 100}, "", true, {}}};
    box.onMouseDown = [this](f32 x, f32 y, MouseButton) { Hear("down", x, y); };
    box.onMouseUp = [this](f32 x, f32 y, MouseButton) { Hear("up", x, y); };
  }

  std::function<void()> Heard(const char* name) {
    return [this, name] { heard.push_back(name); };
  }
  void Hear(const char* act, f32 x, f32 y) {
    heard.push_back(std::string(act) + " " + std::to_string(std::lround(x)) + " " + std::to_string(std::lround(y)));
  }
  void PressAt(f32 x, f32 y, MouseButton button = MouseButton::Left) {
    Mouse(bench.session, box, MouseAct::Down, x, y, button);
  }

  std::vector<std::string> heard;
  ShellBench bench;
  PictureBox& box = bench.Show().picPlot;
};

TEST_F(PictureWithAreas, TheOneOnTopTakesThePress) {
  PressAt(50, 50);
  PressAt(10, 10);
  EXPECT_THAT(heard, ElementsAre("small", "wide"));
}

TEST_F(PictureWithAreas, ADisabledOneSwallowsThePress) {
  PressAt(85, 85);
  EXPECT_TRUE(heard.empty());
}

TEST_F(PictureWithAreas, WhatNoAreaTakesIsThePictures) {
  PressAt(250, 50);
  PressAt(500, 50);
  PressAt(50, 50, MouseButton::Right);
  Mouse(bench.session, box, MouseAct::Up, 50, 50, MouseButton::Left);
  EXPECT_THAT(heard, ElementsAre("down 250 50", "down 500 50", "down 50 50", "up 50 50"));
}

TEST_F(PictureWithAreas, WhoListensIsKnownBeforehand) {
  EXPECT_TRUE(HearsMouse(box, MouseAct::Down, 50, 50, MouseButton::Left));
  EXPECT_FALSE(HearsMouse(box, MouseAct::Down, 85, 85, MouseButton::Left));
  EXPECT_TRUE(HearsMouse(box, MouseAct::Down, 500, 50, MouseButton::Left));
  EXPECT_FALSE(HearsMouse(box, MouseAct::Move, 50, 50, MouseButton::Left));
}

TEST_F(PictureWithAreas, PressedByNameItRunsItsHandlerOrTheMouseInItsMiddle) {
  PressArea(bench.session, box, "wide");
  PressArea(bench.session, box, "place");
  EXPECT_THAT(heard, ElementsAre("wide", "down 250 50", "up 250 50"));
}

TEST_F(PictureWithAreas, WhatCannotBePressedIsRefused) {
  EXPECT_THROW(PressArea(bench.session, box, "off"), ActRefused);
  EXPECT_THROW(PressArea(bench.session, box, "none"), ActRefused);
  box.visible = false;
  EXPECT_THROW(PressArea(bench.session, box, "wide"), ActRefused);
  EXPECT_TRUE(heard.empty());
}

TEST_F(PictureWithAreas, AHandlerMayLayOutOtherAreas) {
  const std::string kept(100, 'x');  // dies with the function that holds it
  box.areas[0].onPress = [this, kept] {
    box.areas.clear();
    heard.push_back(kept);
  };
  PressArea(bench.session, box, "wide");
  EXPECT_THAT(heard, ElementsAre(kept));
}

TEST_F(PictureWithAreas, AfterThePageHasGoneNothingIsReleased) {
  box.onMouseDown = [this](f32, f32, MouseButton) { bench.session.pages.UnloadPage(PageId::Design); };
  PressArea(bench.session, box, "place");
  EXPECT_TRUE(heard.empty());
}

TEST(PictureBox, AsSeenIsThePictureWithWhatLiesOverIt) {
  ShellBench bench;
  PictureBox& box = bench.Show().picPlot;
  box.picture.SetScale({0, 0, 100, 50});
  box.picture.Line(1, 2, 3, 4, colorRed);
  EXPECT_EQ(box.AsSeen(), box.picture);
  box.live.SetScale({0, 0, 100, 50});
  box.live.Line(9, 9, 10, 10, colorBlack);
  box.mark.SetScale({0, 0, 100, 50});
  box.mark.DrawMode = PenMode::ExclusiveOr;
  box.mark.PSet(5, 6, colorBlue);
  Picture both({0, 0, 100, 50});
  both.Line(1, 2, 3, 4, colorRed);
  both.Line(9, 9, 10, 10, colorBlack);
  both.DrawMode = PenMode::ExclusiveOr;
  both.PSet(5, 6, colorBlue);
  EXPECT_EQ(box.AsSeen(), both);
}

}  // namespace
}  // namespace quilm
