#include "shell/PageDesk.h"

#include <set>

#include "shell/ShellBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;

TEST(PageDesk, KnowsWhichPagesThereAre) {
  ShellBench bench;
  EXPECT_TRUE(bench.session.pages.Has(PageId::Design));
  EXPECT_FALSE(bench.session.pages.Has(PageId::Schematic));
}

TEST(PageDesk, NothingIsOnTopBeforeTheFirstPage) {
  ShellBench bench;
  EXPECT_EQ(bench.session.pages.Top(), nullptr);
}

TEST(PageDesk, AnUnknownPageIsAFault) {
  ShellBench bench;
  EXPECT_THROW(bench.session.pages.ShowPage(PageId::Schematic), Fault);
  EXPECT_THROW(bench.session.pages.ShowModal(PageId::Schematic), Fault);
  EXPECT_EQ(bench.session.pages.Top(), nullptr);
}

TEST(PageDesk, TheLoadStepRunsBeforeThePageIsShown) {
  ShellBench bench;
  bench.prepare = [&](BenchPage& page) { page.onLoad = [&] { EXPECT_TRUE(bench.platform.pageEvents.empty()); }; };
  bench.Show();
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign"));
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign"));
}

TEST(PageDesk, TheLoadStepRunsOnEveryVisit) {
  ShellBench bench;
  bench.Show();
  bench.Show();
  bench.session.pages.UnloadPage(PageId::Design);
  bench.session.pages.Sweep();
  bench.Show();
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "load frmDesign", "destroyed frmDesign", "load frmDesign"));
}

TEST(PageDesk, APageThatIsLeftForgetsItsControls) {
  ShellBench bench;
  bench.Show().txtValue.text = "7";
  bench.session.pages.UnloadPage(PageId::Design);
  EXPECT_EQ(bench.Show().txtValue.text, "");
}

TEST(PageDesk, TheTargetIsShownBeforeThePageIsUnloaded) {
  ShellBench bench;
  BenchPage& page = bench.Show();
  page.cmdGo.onClick = [&] {
    bench.session.pages.ShowPage(PageId::Plotted);
    bench.session.pages.UnloadPage(PageId::Design);
  };
  Click(bench.session, page.cmdGo);
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "show frmPlotted", "unload frmDesign"));
  EXPECT_EQ(bench.session.pages.Top()->Id(), PageId::Plotted);
}

TEST(PageDesk, APageThatIsOpenIsNotOpenedAgain) {
  ShellBench bench;
  BenchPage& page = bench.Show();
  int asked = 0;
  page.cmdGo.onClick = [&] {
    ++asked;
    bench.session.pages.ShowModal(PageId::EnterWidth);
  };
  bench.platform.modalActs.push_back([&](Page& form) {
    EXPECT_THROW(Click(bench.session, page.cmdGo), ActRefused);  // the second press was on its way
    EXPECT_THROW(bench.session.pages.ShowModal(PageId::EnterWidth), ActRefused);
    EXPECT_EQ(bench.session.pages.Top(), &form);
  });
  Click(bench.session, page.cmdGo);
  EXPECT_EQ(asked, 1);
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "modal frmEnterWidth", "unload frmEnterWidth"));
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "load frmEnterWidth", "destroyed frmEnterWidth"));
  EXPECT_EQ(bench.session.handlerDepth, 0);
}

TEST(PageDesk, APageOutlivesItsOwnHandler) {
  ShellBench bench;
  BenchPage& page = bench.Show();
  page.cmdGo.onClick = [&] {
    bench.session.pages.UnloadPage(PageId::Design);
    EXPECT_FALSE(page.IsOpen());
    page.txtValue.text = "still here";
    bench.log.push_back(page.txtValue.text);
  };
  Click(bench.session, page.cmdGo);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "still here", "destroyed frmDesign"));
}

TEST(PageDesk, APageOutlivesTheHandlersAroundIt) {
  ShellBench bench;
  BenchPage& page = bench.Show();
  page.cmdGo.onClick = [&] {
    RunHandler(bench.session, [&] { bench.session.pages.UnloadPage(PageId::Design); });
    bench.log.push_back("after");
  };
  Click(bench.session, page.cmdGo);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "after", "destroyed frmDesign"));
}

TEST(PageDesk, AnOpenPageThatIsShownAgainComesToTheTop) {
  ShellBench bench;
  const BenchPage& first = bench.Show();
  bench.Show(PageId::Plotted);
  EXPECT_EQ(&bench.Show(), &first);
  EXPECT_EQ(bench.session.pages.Top(), &first);
}

TEST(PageDesk, UnloadingAPageThatIsNotOpenIsNothing) {
  ShellBench bench;
  bench.session.pages.UnloadPage(PageId::Design);
  EXPECT_TRUE(bench.platform.pageEvents.empty());
}

TEST(PageDesk, ShowModalReturnsWhenThePageHasClosed) {
  ShellBench bench;
  bench.Show();
  bench.platform.modalActs.push_back([&](Page& page) {
    EXPECT_EQ(bench.session.pages.Top(), &page);
    bench.log.push_back("in the form");
    bench.session.pages.UnloadPage(page.Id());
  });
  bench.session.pages.ShowModal(PageId::EnterWidth);
  bench.log.push_back("returned");
  EXPECT_EQ(bench.session.pages.Find(PageId::EnterWidth), nullptr);
  EXPECT_EQ(bench.session.pages.Top()->Id(), PageId::Design);
  EXPECT_THAT(bench.log, ElementsAre("load frmDesign", "load frmEnterWidth", "in the form", "returned"));
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "modal frmEnterWidth", "unload frmEnterWidth"));
}

TEST(PageDesk, ALoadStepMayLeadElsewhere) {
  ShellBench bench;
  bench.prepare = [&](BenchPage& page) {
    if (page.Id() != PageId::Plotted) return;
    page.onLoad = [&] {
      bench.session.pages.ShowPage(PageId::Design);
      bench.session.pages.UnloadPage(PageId::Plotted);
    };
  };
  bench.session.pages.ShowPage(PageId::Plotted);
  EXPECT_EQ(bench.session.pages.Top()->Id(), PageId::Design);
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "unload frmPlotted"));
}

TEST(PageDesk, APageWhoseLoadStepFailsIsShownWithWhatItHas) {
  ShellBench bench;
  BenchPage& first = bench.Show();
  bench.prepare = [&](BenchPage& page) {
    page.onLoad = [&page] {
      page.lblValue.caption = "half";
      throw Fault("no such folder");
    };
  };
  first.cmdGo.onClick = [&] {
    bench.session.pages.ShowPage(PageId::Plotted);
    bench.session.pages.UnloadPage(PageId::Design);
  };
  Click(bench.session, first.cmdGo);
  ASSERT_EQ(bench.platform.messages.size(), 1U);
  EXPECT_EQ(bench.platform.messages[0].text, "This action could not be finished:\r\nno such folder");
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign", "show frmPlotted", "unload frmDesign"));
  EXPECT_EQ(bench.session.pages.Top()->Find("lblValue")->caption, "half");
  bench.session.pages.ShowModal(PageId::EnterWidth);
  EXPECT_EQ(bench.platform.messages.size(), 2U);
  EXPECT_EQ(bench.platform.pageEvents[3], "modal frmEnterWidth");
}

TEST(PageDesk, APageThatCannotBeMadeLeavesTheOneBefore) {
  ShellBench bench;
  BenchPage& first = bench.Show();
  bench.prepare = [](BenchPage&) { throw Fault("no memory"); };
  first.cmdGo.onClick = [&] {
    bench.session.pages.ShowPage(PageId::Plotted);
    bench.session.pages.UnloadPage(PageId::Design);
  };
  Click(bench.session, first.cmdGo);
  EXPECT_EQ(bench.platform.messages.size(), 1U);
  EXPECT_THAT(bench.platform.pageEvents, ElementsAre("show frmDesign"));
  EXPECT_EQ(bench.session.pages.Top(), &first);
}

TEST(PageDesk, TheEndOfTheProgramPassesThroughALoadStep) {
  ShellBench bench;
  bench.prepare = [](BenchPage& page) { page.onLoad = [] { throw ProgramEnd{}; }; };
  EXPECT_THROW(bench.Show(), ProgramEnd);
  EXPECT_TRUE(bench.platform.messages.empty());
}

TEST(Page, FindsItsControlsByName) {
  ShellBench bench;
  BenchPage& page = bench.Show();
  EXPECT_EQ(page.Find("txtValue"), &page.txtValue);
  EXPECT_EQ(page.Find("txtvalue"), nullptr);
}

TEST(Page, AWishForTheFocusIsTakenOnce) {
  ShellBench bench;
  BenchPage& page = bench.Show();
  page.SetFocus(page.txtValue);
  EXPECT_EQ(page.TakeFocusWish(), &page.txtValue);
  EXPECT_EQ(page.TakeFocusWish(), nullptr);
}

TEST(Page, ItsCloseBoxClosesIt) {
  ShellBench bench;
  PressCloseBox(bench.session, bench.Show());
  EXPECT_EQ(bench.session.pages.Top(), nullptr);
}

TEST(FormName, EveryPageHasOneOfItsOwn) {
  std::set<std::string_view> names;
  const int last = static_cast<int>(PageId::Blank);
  for (int id = 0; id <= last; ++id) {
    const std::string_view name = FormName(static_cast<PageId>(id));
    EXPECT_TRUE(name.starts_with("frm")) << id;
    EXPECT_TRUE(names.insert(name).second) << name;
  }
}

}  // namespace
}  // namespace quilm
