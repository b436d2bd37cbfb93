#include "shell/Layout.h"

#include "shell/ShellBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

class LayoutTest : public testing::Test {
 protected:
  ShellBench bench;
  BenchPage& page = bench.Show();
};

TEST_F(LayoutTest, ControlsComeInReadingOrder) {
  const Layout layout = Column({Row({Put(page.cmdGo), Space(), Put(page.optOne)}),
                                Grid(2, {Put(page.optTwo), Put(page.lstLines)}), Fill(Put(page.picPlot))});
  EXPECT_THAT(ControlsOf(layout), ElementsAre(&page.cmdGo, &page.optOne, &page.optTwo, &page.lstLines, &page.picPlot));
}

TEST_F(LayoutTest, AFrameComesBeforeWhatItHolds) {
  EXPECT_THAT(ControlsOf(Group(page.fraBox, Row({Put(page.cmdGo)}))), ElementsAre(&page.fraBox, &page.cmdGo));
}

TEST_F(LayoutTest, AHeadingIsNoControl) {
  EXPECT_THAT(ControlsOf(Group("Sweep", Put(page.cmdGo))), ElementsAre(&page.cmdGo));
}

TEST_F(LayoutTest, AFormHasLabelsAndFieldsInTurn) {
  const Layout form = Form({{Put(page.lblValue), Row({Put(page.txtValue), Put(page.UpDown1)})}});
  EXPECT_EQ(form.kind, Layout::Kind::Form);
  EXPECT_EQ(form.columns, 2);
  ASSERT_EQ(form.items.size(), 2U);
  EXPECT_THAT(ControlsOf(form), ElementsAre(&page.lblValue, &page.txtValue, &page.UpDown1));
}

TEST_F(LayoutTest, FillAndKeepPlaceMarkTheirNodeAlone) {
  const Layout layout = Row({Fill(Put(page.picPlot)), KeepPlace(Put(page.lblValue))});
  EXPECT_FALSE(layout.fills);
  EXPECT_TRUE(layout.items[0].fills);
  EXPECT_FALSE(layout.items[0].keepsPlace);
  EXPECT_TRUE(layout.items[1].keepsPlace);
}

TEST(Layout, SpaceHoldsNothing) { EXPECT_TRUE(ControlsOf(Row({Space(), Space()})).empty()); }

}  // namespace
}  // namespace quilm
