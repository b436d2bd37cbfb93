// The limits of entries, place by place: at each limit, just below and just above it.
#include "core/modGeneral.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

struct Held {
  const char* typed;
  f32 held;
};

class LimitsOnPages : public PageBench {
 protected:
  LimitsOnPages() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
  }

  // A value that the limit leaves alone shows as an echo, one that it changes as a repair.
  void ExpectHeld(const char* name, const f32& field, std::initializer_list<Held> rows) {
    for (const Held& row : rows) {
      SCOPED_TRACE(std::string(name) + " " + row.typed);
      std::string text = row.typed;
      f32 typed = 0;
      ParseEntry(text, typed);
      TextBox& box = Get<TextBox>(name);
      const i32 before = box.Repairs();
      Type(session, box, row.typed);
      Leave(session, box);
      EXPECT_EQ(field, row.held);
      EXPECT_EQ(box.Repairs() > before, typed != row.held);
    }
  }

  DesignRecord& record = session.record;
};

TEST_F(LimitsOnPages, TheDepthOnTheDesignPage) {
  Press("optCauer");
  ExpectHeld("txtStopbandDepth", record.Astop,
             {{"179.99", 179.99F}, {"180", 180}, {"180.01", 180}, {"1", 1}, {"10", 10}});
}

TEST_F(LimitsOnPages, TheIntervalsOnTheAnalysisPage) {
  Press("cmdAnalysis");
  ExpectHeld("txtNrIntervals", record.NrIntervals,
             {{"3.99", 4}, {"4", 4}, {"4.01", 4.01F}, {"2048.9", 2048.9F}, {"2049", 2049}, {"2049.5", 2049}});
}

TEST_F(LimitsOnPages, TheReferenceOnTheAnalysisPage) {
  Press("cmdAnalysis");
  ExpectHeld("txtRetLossRef", record.Rstandard, {{"0", 50}, {"-1", 50}, {"0.01", 0.01F}, {"75", 75}});
}

TEST_F(LimitsOnPages, TheToolsOfTheSmithChart) {
  record.PlotCode = 11;
  Press("cmdPlot");
  ExpectHeld("txtVSWR", session.smithView.VSWRCircle,
             {{"0.99", 1}, {"1", 1}, {"1.01", 1.01F}, {"19.9", 19.9F}, {"20", 20}, {"20.1", 20}});
  ExpectHeld("txtAspect", record.SmithAspect,
             {{"0.49", 0.5F}, {"0.5", 0.5F}, {"0.51", 0.51F}, {"1.49", 1.49F}, {"1.5", 1.5F}, {"1.51", 1.5F}});
}

// What counts as entered lies above 0.01, in Hz and in ohms alike.
TEST_F(LimitsOnPages, WhatCountsAsEnteredForANetwork) {
  Press("optShuntInGeoSymm");
  Enter("txtCenterFrequency", "10M");
  for (const char* name : {"txtBandwidth", "txtCenterFrequency", "txtInputTerm"}) {
    SCOPED_TRACE(name);
    const std::string good = Get<TextBox>(name).text;
    Enter(name, "0.01");
    platform.messages.clear();
    platform.pageEvents.clear();
    Press("cmdSeeNorms");  // the form that asks for it is left as it opens
    ASSERT_FALSE(platform.messages.empty());
    EXPECT_NE(MessageTexts()[0].find("To avoid a program crash, please enter"), std::string::npos);
    Enter(name, "0.0101");
    platform.messages.clear();
    Press("cmdSeeNorms");
    for (const std::string& text : MessageTexts()) {
      EXPECT_EQ(text.find("To avoid a program crash, please enter"), std::string::npos) << text;
    }
    Enter(name, good);
  }
}

TEST_F(LimitsOnPages, TheLowerLimitsOfTheSinglyTerminatedDesignAreAccepted) {
  Press("Command4");
  Enter("txtOrder", "2");
  Enter("txtOutputTermination", ".01");
  Enter("txtRipple", ".0001");
  Enter("txtBandwidth", ".1");
  Press("cmdExit");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(record.Stages, 2);
}

// The failure page of an odd Cauer design, which order 9 with edges 1 : 4 and 50 dB leads to.
class LimitsOnFailurePage : public LimitsOnPages {
 protected:
  LimitsOnFailurePage() {
    Press("optCauer");
    Enter("txtStopbandDepth", "50");
    while (record.Order < 9) Step(session, Get<Spin>("UpDown1"), +1);
  }

  void ReEnter(const char* box, const std::string& text) {
    platform.modalActs.clear();
    record.Order = 9;
    record.Astop = 50;
    session.pages.ShowPage(PageId::Design);
    Enter("txtStopbandFreq", "4M");
    bool opened = false;
    platform.modalActs.push_back([&](Page& page) {
      EXPECT_EQ(page.Id(), PageId::Bailout);
      opened = true;
      Enter(box, text);
      Press("cmdExitCauer");
    });
    Press("cmdSeeNorms");
    EXPECT_TRUE(opened);
  }
};

TEST_F(LimitsOnFailurePage, TheDepthEndsAt180) {
  for (const Held& row : {Held{"179.5", 179.5F}, {"180", 180}, {"180.5", 180}, {"-60", 60}}) {
    ReEnter("txtStopbandDepth", row.typed);
    EXPECT_EQ(record.Astop, row.held) << row.typed;
  }
}

TEST_F(LimitsOnFailurePage, TheOrderIsOddFrom3To21) {
  for (const Held& row :
       {Held{"2", 3}, {"3", 3}, {"4", 3}, {"5.9", 5}, {"20", 19}, {"21", 21}, {"22", 21}, {"1e10", 21}, {"-1", 3}}) {
    ReEnter("txtOrder", row.typed);
    EXPECT_EQ(record.Order, row.held) << row.typed;
  }
}

// It changes the record under the boxes of the Design page: these must say so, or the next press would take back what
// was just tried.
TEST_F(LimitsOnFailurePage, WhatItChangedShowsOnTheDesignPage) {
  Enter("txtStopbandFreq", "4M");
  platform.modalActs.push_back([this](Page&) { Press("cmdStopbandFreq"); });
  Press("cmdPlot");
  ASSERT_EQ(Top().Id(), PageId::Design);
  const f32 tried = 4e6F / 1.01F;
  EXPECT_EQ(record.Fstopband, tried);
  EXPECT_EQ(Get<TextBox>("txtStopbandFreq").text, "3.9604M");
  Press("cmdPlot");
  EXPECT_EQ(record.Fstopband, tried);
}

}  // namespace
}  // namespace quilm
