#include "shell/Control.h"

#include "shell/ShellBench.h"

namespace quilm {
namespace {

class ControlTest : public testing::Test {
 protected:
  ShellBench bench;
  BenchPage& page = bench.Show();
};

TEST_F(ControlTest, OptionsOfOneGroupExcludeOneAnother) {
  page.optOne.Set();
  page.optTwo.Set();
  EXPECT_FALSE(page.optOne.Value());
  EXPECT_TRUE(page.optTwo.Value());
  EXPECT_EQ(page.group.Chosen(), &page.optTwo);
}

TEST_F(ControlTest, AGroupMayHaveNoneSet) {
  EXPECT_EQ(page.group.Chosen(), nullptr);
  page.optOne.Set();
  page.group.Clear();
  EXPECT_EQ(page.group.Chosen(), nullptr);
  page.optOne.Set();
  page.optOne.Unset();
  EXPECT_EQ(page.group.Chosen(), nullptr);
}

TEST_F(ControlTest, GroupsDoNotTouchOneAnother) {
  OptionGroup other;
  OptionButton third(page, other, "optThree", "Three");
  page.optOne.Set();
  third.Set();
  EXPECT_TRUE(page.optOne.Value());
}

TEST_F(ControlTest, FramesMayStandInFrames) {
  Frame outer(page, "fraOuter", "Outer");
  outer.Hold({&page.fraBox});
  page.fraBox.Hold({&page.cmdGo, &page.txtValue});
  EXPECT_TRUE(page.cmdGo.Usable());
  outer.visible = false;
  EXPECT_FALSE(page.cmdGo.Shown());
  EXPECT_TRUE(page.cmdGo.Active());
  outer.visible = true;
  outer.enabled = false;
  EXPECT_TRUE(page.txtValue.Shown());
  EXPECT_FALSE(page.txtValue.Active());
  EXPECT_FALSE(page.txtValue.Usable());
}

TEST_F(ControlTest, IsSpokenByItsCaptionElseItsTipElseItsName) {
  Button button(page, "cmdBare", "");
  EXPECT_EQ(button.SpokenName(), "cmdBare");
  button.toolTip = "Get a design from disk";
  EXPECT_EQ(button.SpokenName(), "Get a design from disk");
  button.caption = "Get";
  EXPECT_EQ(button.SpokenName(), "Get");
  button.accessibleName = "Get a file";
  EXPECT_EQ(button.SpokenName(), "Get a file");
  EXPECT_EQ(page.txtValue.SpokenName(), "Value");
}

TEST_F(ControlTest, RepairsAreCounted) {
  page.txtValue.Repair("180");
  page.txtValue.Repair("180");
  EXPECT_EQ(page.txtValue.text, "180");
  EXPECT_EQ(page.txtValue.Repairs(), 2);
}

TEST_F(ControlTest, TimersStartDisabled) { EXPECT_FALSE(page.Timer1.enabled); }

TEST_F(ControlTest, RegistersInTheOrderOfDeclaration) {
  std::vector<std::string> names;
  for (const Control* control : page.Controls()) names.push_back(control->name);
  EXPECT_THAT(names, testing::ElementsAre("fraBox", "cmdGo", "optOne", "optTwo", "txtValue", "lblValue", "UpDown1",
                                          "lstLines", "Timer1", "picPlot"));
}

TEST(KindName, EveryKindHasItsWord) {
  const std::pair<ControlKind, const char*> words[] = {
      {ControlKind::Button, "button"}, {ControlKind::Option, "option"}, {ControlKind::Text, "text"},
      {ControlKind::Label, "label"},   {ControlKind::Frame, "frame"},   {ControlKind::List, "list"},
      {ControlKind::Spin, "spin"},     {ControlKind::Timer, "timer"},   {ControlKind::Picture, "picture"}};
  for (const auto& [kind, word] : words) EXPECT_EQ(KindName(kind), word);
}

}  // namespace
}  // namespace quilm
