#include "core/DesignRecord.h"
#include "shell/LongRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "shell/Acts.h"
#include "shell/HeadlessPlatform.h"
#include "support/DemoRunPage.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class LongRunTest : public testing::Test {
 protected:
  LongRunTest() {
    session.record.Width = 1000;
    session.pages.ShowPage(PageId::Schematic);
    session.pages.ShowPage(PageId::Plotted);
    // The page may go within the run; what is left to see of it then is its log.
    platform.onYield = [this] {
      ++yields;
      if (yields == actAt) act();
    };
  }

  DemoRunPage& Page(PageId id = PageId::Plotted) { return static_cast<DemoRunPage&>(*session.pages.Find(id)); }
  void Start() { Click(session, Page().cmdStart); }

  // Starts a run in whose yield of this number something happens.
  void StartWith(int yield, std::function<void()> what) {
    yields = 0;
    actAt = yield;
    act = std::move(what);
    Start();
  }

  void ExpectAsBefore() {
    EXPECT_EQ(session.run, nullptr);
    EXPECT_FALSE(Page().cmdEnd.visible);
    EXPECT_FALSE(Page().cmdEnd.enabled);
    EXPECT_FALSE(Page().cmdExtremes.visible);
    EXPECT_EQ(Page().cancelButton, &Page().cmdOther);
    for (Control* control : {static_cast<Control*>(&Page().cmdStart), static_cast<Control*>(&Page().txtValue),
                             static_cast<Control*>(&Page().picPlot)}) {
      EXPECT_TRUE(control->Usable()) << control->name;
    }
    EXPECT_TRUE(Page(PageId::Schematic).cmdOther.Usable());
  }

  RunLog log;
  int yields = 0;
  int actAt = 0;
  std::function<void()> act;
  HeadlessPlatform platform{"/nowhere"};
  Session session{
      platform,
      {{PageId::Plotted, [this](Session& owner) { return std::make_unique<DemoRunPage>(owner, PageId::Plotted, log); }},
       {PageId::Schematic,
        [this](Session& owner) { return std::make_unique<DemoRunPage>(owner, PageId::Schematic, log); }}}};
};

// For a program that ends in the middle of it, and in whatever way it ends itself.
TEST_F(LongRunTest, PutsTheDesignBackWhenAskedAndAtItsEnd) {
  int calls = 0;
  const auto run = [&](bool fails) {
    LongRun running(session, Page(),
                    {.name = "Run", .steps = 3, .stops = {&Page().cmdEnd}, .putBack = [&] { ++calls; }});
    running.Step();
    EXPECT_EQ(calls, 0);
    session.run->PutBack();
    EXPECT_EQ(calls, 1);
    if (fails) throw Fault("fails");
  };
  run(false);
  EXPECT_EQ(calls, 2);
  calls = 0;
  EXPECT_THROW(run(true), Fault);
  EXPECT_EQ(calls, 2);
}

TEST_F(LongRunTest, TakesAllItsStepsAndYieldsAtEach) {
  Start();
  EXPECT_EQ(log.trials, log.most);
  EXPECT_EQ(yields, log.most);
  EXPECT_EQ(session.record.Width, 1000);
  ExpectAsBefore();
}

TEST_F(LongRunTest, StopsAtEveryPointOfItsLoop) {
  for (int n = 1; n <= log.most; ++n) {
    StartWith(n, [this] { Click(session, Page().cmdEnd); });
    EXPECT_EQ(log.trials, n);
    EXPECT_EQ(session.record.Width, 1000);
    ExpectAsBefore();
  }
}

TEST_F(LongRunTest, StopsByEachOfItsButtons) {
  StartWith(3, [this] { Click(session, Page().cmdExtremes); });
  EXPECT_THAT(log.heard, ElementsAre("extremes", "ran 3"));
}

TEST_F(LongRunTest, ShowsItsStopButtonsAndGivesTheFirstTheFocusAndTheEscapeKey) {
  StartWith(1, [this] {
    EXPECT_TRUE(Page().cmdEnd.Usable());
    EXPECT_TRUE(Page().cmdExtremes.Usable());
    EXPECT_EQ(Page().TakeFocusWish(), &Page().cmdEnd);
    EXPECT_EQ(Page().cancelButton, &Page().cmdEnd);
  });
  EXPECT_EQ(Page().TakeFocusWish(), &Page().cmdStart);
}

TEST_F(LongRunTest, LocksEverythingElseOnEveryPage) {
  StartWith(2, [this] {
    EXPECT_THROW(Click(session, Page().cmdOther), ActRefused);
    EXPECT_THROW(Click(session, Page().cmdStart), ActRefused);
    EXPECT_THROW(Type(session, Page().txtValue, "1"), ActRefused);
    EXPECT_THROW(Mouse(session, Page().picPlot, MouseAct::Down, 1, 1, MouseButton::Left), ActRefused);
    EXPECT_THROW(Click(session, Page(PageId::Schematic).cmdStart), ActRefused);
    Page().Timer1.enabled = true;
    Page().Timer1.onTick = [this] { log.heard.push_back("tick"); };
    Tick(session, Page().Timer1);
  });
  EXPECT_THAT(log.heard, ElementsAre("ran 20"));
}

TEST_F(LongRunTest, WhatHandlersChangeMeanwhileStaysChanged) {
  StartWith(2, [this] {
    Page().cmdOther.enabled = false;
    Page().txtValue.visible = false;
  });
  EXPECT_FALSE(Page().cmdOther.enabled);
  EXPECT_FALSE(Page().txtValue.visible);
}

TEST_F(LongRunTest, TellsItsProgress) {
  std::string told;
  StartWith(7, [&] { told = session.note; });
  EXPECT_EQ(told, "Demo run: 7 of 20");
  EXPECT_EQ(session.note, "Demo run: 20 of 20");
}

TEST_F(LongRunTest, ASecondRunStartsFresh) {
  StartWith(5, [this] { Click(session, Page().cmdEnd); });
  session.random.Seed(1);
  Start();
  const Picture first = Page().picPlot.picture;
  session.random.Seed(1);
  Start();
  EXPECT_EQ(log.trials, log.most);
  EXPECT_EQ(Page().picPlot.picture, first);
}

TEST_F(LongRunTest, OneAtATime) {
  StartWith(1, [this] {
    const auto another = [this] { const LongRun run(session, Page(), {"Another", 1, {}, nullptr}); };
    EXPECT_THROW(another(), Fault);
  });
  EXPECT_EQ(log.trials, log.most);
  ExpectAsBefore();
}

TEST_F(LongRunTest, EndsWhenItsPageIsLeft) {
  StartWith(4, [this] { session.pages.UnloadPage(PageId::Plotted); });
  EXPECT_THAT(log.heard, ElementsAre("ran 4"));
  EXPECT_EQ(session.record.Width, 1000);
  EXPECT_EQ(session.run, nullptr);
  EXPECT_TRUE(Page(PageId::Schematic).cmdStart.Usable());
}

// The same page shown anew is another page.
TEST_F(LongRunTest, EndsWhenItsPageIsLeftAndComesBack) {
  StartWith(4, [this] {
    session.pages.UnloadPage(PageId::Plotted);
    session.pages.ShowPage(PageId::Plotted);
  });
  EXPECT_EQ(log.trials, 4);
  EXPECT_TRUE(Page().cmdStart.Usable());
}

TEST_F(LongRunTest, TheCloseBoxUnwindsIt) {
  StartWith(1, [this] { PressCloseBox(session, Page()); });
  EXPECT_TRUE(session.ended);
  EXPECT_THAT(log.heard, ElementsAre("close box"));
  EXPECT_EQ(session.run, nullptr);
  EXPECT_EQ(session.handlerDepth, 0);
  EXPECT_TRUE(Page().cmdStart.Usable());
}

TEST_F(LongRunTest, AFaultInATrialLeavesNothingLocked) {
  log.trial = [this] {
    if (log.trials == 3) throw Fault("no such value");
  };
  Start();
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_THAT(log.heard, Not(Contains("ran 3")));
  ExpectAsBefore();
}

TEST_F(LongRunTest, AFaultInTheStopHandlerIsToldAndTheRunGoesOn) {
  Page().cmdEnd.onClick = [] { throw Fault("out of paper"); };
  StartWith(3, [this] { Click(session, Page().cmdEnd); });
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(log.trials, log.most);
}

// With an interval the first step yields, so that the stop button appears, and those that come too soon do not.
TEST_F(LongRunTest, YieldsNoMoreOftenThanThePlatformWants) {
  platform.yieldInterval = 3600;
  Start();
  EXPECT_EQ(yields, 1);
  platform.yieldInterval = 0.001;
  log.trial = [] { std::this_thread::sleep_for(std::chrono::milliseconds(2)); };
  yields = 0;
  Start();
  EXPECT_EQ(yields, log.most);
}

TEST(PageLock, SeveralHoldTogether) {
  HeadlessPlatform platform("/nowhere");
  Session session(platform, {});
  RunLog log;
  DemoRunPage page(session, PageId::Plotted, log);
  const PageLock outer(page, {&page.cmdOther, &page.picPlot});
  EXPECT_TRUE(page.picPlot.Active());
  {
    const PageLock inner(page, {&page.cmdOther, &page.cmdStart});
    EXPECT_TRUE(page.cmdOther.Active());
    EXPECT_FALSE(page.cmdStart.Active());
    EXPECT_FALSE(page.picPlot.Active());
  }
  EXPECT_TRUE(page.picPlot.Active());
  EXPECT_FALSE(page.cmdStart.Active());
  EXPECT_TRUE(page.fraTools.Active()) << "a frame takes no act, and a stop button may stand in it";
}

}  // namespace
}  // namespace quilm
