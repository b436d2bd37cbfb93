// Tools that stand beside a page.
#include "shell/PageLock.h"
#include "shell/ShellBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

class BesideTest : public testing::Test {
 protected:
  BesideTest() { page.place = SidePlace(Column({})); }

  // Opens the tool from a handler of the page and does something while it stands there.
  void WithTool(std::function<void(Page&)> what, std::vector<const Control*> free = {}) {
    bench.platform.modalActs.push_back(std::move(what));
    page.cmdGo.onClick = [this, free] { pages.ShowBeside(PageId::EnterWidth, free); };
    Click(bench.session, page.cmdGo);
  }

  ShellBench bench;
  BenchPage& page = bench.Show();
  PageDesk& pages = bench.session.pages;
};

TEST_F(BesideTest, ReturnsWhenTheToolHasClosed) {
  WithTool([&](Page& tool) {
    EXPECT_EQ(pages.Top(), &tool);
    EXPECT_EQ(pages.Beside(), &page);
    pages.UnloadPage(tool.Id());
  });
  EXPECT_EQ(pages.Top(), &page);
  EXPECT_EQ(pages.Beside(), nullptr);
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "modal frmEnterWidth", "unload frmEnterWidth"));
}

TEST_F(BesideTest, ThePageIsLocked) {
  WithTool([&](Page&) {
    EXPECT_TRUE(page.picPlot.Shown());
    EXPECT_THROW(Click(bench.session, page.cmdGo), ActRefused);
    EXPECT_THROW(Mouse(bench.session, page.picPlot, MouseAct::Down, 0, 0, MouseButton::Left), ActRefused);
  });
  EXPECT_TRUE(page.cmdGo.Usable());
}

TEST_F(BesideTest, WhatTheToolWantsIsFree) {
  int pressed = 0;
  page.picPlot.onMouseDown = [&](f32, f32, MouseButton) { ++pressed; };
  WithTool(
      [&](Page&) {
        Mouse(bench.session, page.picPlot, MouseAct::Down, 0, 0, MouseButton::Left);
        EXPECT_THROW(Click(bench.session, page.cmdGo), ActRefused);
      },
      {&page.picPlot});
  EXPECT_EQ(pressed, 1);
}

TEST_F(BesideTest, AToolMayGiveItsPlaceToAnother) {
  WithTool(
      [&](Page& tool) {
        bench.platform.modalActs.push_back([&](Page& second) {
          EXPECT_EQ(pages.Top(), &second);
          EXPECT_EQ(pages.Beside(), &page);
          EXPECT_FALSE(static_cast<BenchPage&>(tool).cmdGo.Usable());
          EXPECT_FALSE(page.picPlot.Usable());
        });
        pages.ShowBeside(PageId::Plotted);
        EXPECT_EQ(pages.Top(), &tool);
        EXPECT_EQ(pages.Beside(), &page);
        EXPECT_TRUE(static_cast<BenchPage&>(tool).cmdGo.Usable());
        EXPECT_TRUE(page.picPlot.Usable());
      },
      {&page.picPlot});
}

TEST_F(BesideTest, AModalPageOverAToolStandsAlone) {
  WithTool([&](Page&) {
    bench.platform.modalActs.push_back([&](Page&) { EXPECT_EQ(pages.Beside(), nullptr); });
    pages.ShowModal(PageId::Plotted);
    EXPECT_EQ(pages.Beside(), &page);
  });
}

TEST_F(BesideTest, ThePageTakesItsToolsAlong) {
  WithTool([&](Page&) {
    bench.platform.modalActs.push_back([&](Page&) { pages.UnloadPage(PageId::Design); });
    pages.ShowBeside(PageId::Plotted);
  });
  EXPECT_EQ(pages.Top(), nullptr);
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "modal frmEnterWidth", "modal frmPlotted",
                                                     "unload frmPlotted", "unload frmEnterWidth", "unload frmDesign"));
}

TEST_F(BesideTest, TheEndOfTheProgramUnwindsIt) {
  WithTool([](Page&) { throw ProgramEnd{}; });
  EXPECT_TRUE(bench.session.ended);
  EXPECT_FALSE(page.Locks(page.cmdGo));
}

TEST_F(BesideTest, WithoutAPlaceForItAToolIsAFault) {
  page.place = Column({});
  EXPECT_THROW(pages.ShowBeside(PageId::EnterWidth), Fault);
  EXPECT_EQ(pages.Find(PageId::EnterWidth), nullptr);
  pages.UnloadPage(PageId::Design);
  EXPECT_THROW(pages.ShowBeside(PageId::EnterWidth), Fault);
}

TEST(HasSidePlace, FindsItAtAnyDepth) {
  EXPECT_TRUE(HasSidePlace(Row({Space(), Column({SidePlace(Space())})})));
  EXPECT_FALSE(HasSidePlace(Row({Space(), Column({})})));
}

}  // namespace
}  // namespace quilm
