// The monkey itself: it must see what is wrong, and shrink what led there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "monkey/MonkeyChecks.h"
#include "monkey/MonkeyRun.h"
#include "monkey/Trial.h"
#include "pages/PageDirectory.h"
#include "script/ScriptRun.h"
#include "shell/Page.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Steps StepsOf(std::initializer_list<const char*> acts) {
  Steps steps;
  for (const char* act : acts) steps.push_back({act, {}});
  return steps;
}

std::vector<std::string> ActsOf(const Steps& steps) {
  std::vector<std::string> acts;
  for (const Step& step : steps) acts.push_back(step.act);
  return acts;
}

TEST(Shrink, LeavesOutWhatDoesNotMatter) {
  Steps steps;
  for (int i = 0; i < 100; ++i) steps.push_back({std::to_string(i), {}});
  const auto fails = [](const Steps& some) {
    const auto acts = ActsOf(some);
    return std::find(acts.begin(), acts.end(), "17") != acts.end() &&
           std::find(acts.begin(), acts.end(), "80") != acts.end();
  };
  EXPECT_THAT(ActsOf(Shrink(steps, fails, 1000)), ElementsAre("17", "80"));
}

TEST(Shrink, StopsAfterSoManyTrials) {
  int trials = 0;
  Shrink(
      Steps(1000),
      [&](const Steps&) {
        ++trials;
        return false;
      },
      20);
  EXPECT_EQ(trials, 20);
}

TEST(ScriptOfSteps, PutsAnswersBeforeTheirAct) {
  const Steps steps{
      {"press a", {"answer ok"}}, {"press b", {"answer ok", "answer yes", "file open x"}}, {"press c", {}, true}};
  EXPECT_EQ(ScriptOf(steps), "press a\nanswer ok\nanswer yes\nfile open x\npress b\n# refused: press c\n");
}

// A page on which everything is wrong.
class FaultyPage : public Page {
 public:
  explicit FaultyPage(Session& session) : Page(session, PageId::Design, "Faulty") {
    entries.Bind({.box = txtWidth, .field = session.record.Width, .format = FormatFrequency});
    cmdApart.onClick = [this] { session_.record.Width = 5; };
    cmdNone.onClick = [this] { session_.record.Apass = std::numeric_limits<f32>::quiet_NaN(); };
    cmdThrow.onClick = [] { throw Fault("out of paper"); };
    cmdOrder.onClick = [this] { session_.record.Order += 1; };
    cmdAsk.onClick = [this] {
      const Answer answer = session_.platform.MessageBox("Really?", Buttons::YesNo, Icon::Question, "");
      if (answer == Answer::Yes) cmdNone.onClick();
    };
    cmdGrey.enabled = false;
  }
  void Load() override { entries.Fill(); }
  // Undo shows it so, and loses the centre on the way.
  void Reload() override {
    entries.Fill();
    session_.record.Fcenter = 0;
  }
  Layout MakeLayout() override { return Column({}); }

  TextBox txtWidth{*this, "txtWidth", "Width"};
  Button cmdApart{*this, "cmdApart", "Apart"};
  Button cmdNone{*this, "cmdNone", "None"};
  Button cmdThrow{*this, "cmdThrow", "Throw"};
  Button cmdOrder{*this, "cmdOrder", "Order"};
  Button cmdAsk{*this, "cmdAsk", "Ask"};
  Button cmdGrey{*this, "cmdGrey", "Grey"};
};

MonkeyReport Do(const Steps& steps) {
  const PageDirectory pages{{PageId::Design, [](Session& session) { return std::make_unique<FaultyPage>(session); }}};
  return RunMonkey(
      pages,
      [](Session& session) {
        session.record.Fcenter = 7;
        session.pages.ShowPage(PageId::Design);
      },
      Repeating(steps));
}

TEST(Monkey, ABoxApartFromTheRecordIsAFinding) {
  EXPECT_EQ(Do(StepsOf({"type txtWidth 1k", "press cmdOrder"})).finding, "");
  EXPECT_EQ(Do(StepsOf({"type txtWidth 1k", "press cmdApart"})).finding,
            "box txtWidth of frmDesign does not say what the record holds");
}

TEST(Monkey, ANumberThatIsNoneIsAFinding) {
  EXPECT_EQ(Do(StepsOf({"press cmdNone"})).finding, "the record holds what is no number: record.Apass");
}

TEST(Monkey, AnExceptionThatLeavesAHandlerIsAFinding) {
  EXPECT_THAT(Do(StepsOf({"press cmdThrow"})).finding, HasSubstr("out of paper"));
}

TEST(Monkey, AnUndoThatTheRedoDoesNotTakeBackIsAFinding) {
  EXPECT_EQ(Do(StepsOf({"press cmdOrder", "undo"})).finding, "");
  EXPECT_EQ(Do(StepsOf({"press cmdOrder", "undo", "redo"})).finding, "undo and redo change Fcenter");
}

TEST(Monkey, WhatIsRefusedIsMarkedAndNoFinding) {
  const MonkeyReport report = Do(StepsOf({"press cmdGrey", "press cmdOrder"}));
  EXPECT_EQ(report.finding, "");
  ASSERT_EQ(report.steps.size(), 2U);
  EXPECT_TRUE(report.steps[0].refused);
  EXPECT_FALSE(report.steps[1].refused);
}

TEST(Monkey, AnswersBelongToTheirActAndAreNoOtherwise) {
  EXPECT_EQ(Do({{"press cmdAsk", {"answer yes"}}}).finding, "the record holds what is no number: record.Apass");
  const MonkeyReport report = Do({{"press cmdAsk", {"file cancel"}}});
  EXPECT_EQ(report.finding, "");
  EXPECT_THAT(report.steps[0].answers, ElementsAre("answer no"));
}

// A lowpass that is designed, saved, read again and stored on the way out of the real pages.
const Steps savedLowpass{{"press cmdDesignNew", {}},
                         {"press optButterworth", {}},
                         {"press optCapInLowpass", {}},
                         {"type txtBandwidth 1M", {}},
                         {"type txtInputTerm 50", {}},
                         {"press cmdPlot", {}},
                         {"press cmdSave", {"file save a.QLM"}},
                         {"press cmdGet", {"file open a.QLM"}},
                         {"close", {}}};

TEST(Monkey, ARunThatEndsWellIsNoFinding) {
  const WorkFolder work;
  const MonkeyReport report = TryOut(work.Path(), Repeating(savedLowpass), false);
  EXPECT_EQ(report.finding, "");
  EXPECT_EQ(report.steps.size(), savedLowpass.size());
  EXPECT_TRUE(std::filesystem::exists(work.Path() / "program/LASTSESSION.QLM"));
}

TEST(Monkey, ASavedFileThatCannotBeReadOrComesBackOtherwiseIsAFinding) {
  const WorkFolder work;
  TryOut(work.Path(), Repeating(savedLowpass), false);
  const std::string path = work.Path() / "a.QLM";
  std::ifstream in(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(in), {}};
  EXPECT_EQ(CheckSavedFile(path), "");
  std::ofstream(path, std::ios::binary) << text.substr(0, text.size() / 2);
  EXPECT_THAT(CheckSavedFile(path), HasSubstr("cannot be read"));
  // Titles of a single letter are no titles.
  const std::size_t title = text.find("Untitled");
  ASSERT_NE(title, std::string::npos);
  std::ofstream(path, std::ios::binary) << text.replace(title, 8, "x");
  EXPECT_EQ(CheckSavedFile(path), "a saved design is written otherwise when it was read");
}

TEST(Monkey, ACrashIsAFinding) {
  const WorkFolder work;
  MonkeyMind mind = Repeating(StepsOf({"press cmdDesignNew", "press optButterworth"}));
  const auto next = mind.next;
  mind.next = [next](ScriptRun& run) {
    const auto act = next(run);
    if (act == "press optButterworth") std::_Exit(7);
    return act;
  };
  const MonkeyReport report = TryOut(work.Path(), mind, true);
  EXPECT_EQ(report.finding, "it ends with status 7");
  EXPECT_THAT(ActsOf(report.steps), ElementsAre("press cmdDesignNew"));
}

}  // namespace
}  // namespace quilm
