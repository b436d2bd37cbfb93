// What every bound entry of every page owes the user: the box says what the record holds, as far as the display format
// can show it, after every act.
#include <algorithm>
#include <cmath>

#include "core/modGeneral.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

// The formats show four to six significant digits, and five places behind the point of a small figure.
f32 DisplayError(f32 value) { return 5.1e-4F * std::fabs(value) + 5.1e-6F; }

// The formats of frequencies and resistances have no text for what is negative or too small: they are read as 0 ohm, or
// lose digits; no such field is of use, and the check before a plot refuses it.
bool CanBeShown(f32 value) { return value == 0 || std::fabs(value) > 0.001F; }

void ExpectAgreement(Page& page) {
  for (Entry& entry : page.entries.All()) {
    if (!entry.Box().Shown() || !CanBeShown(entry.Field())) continue;
    std::string text = entry.Box().text;
    f32 shown = 0;
    ParseEntry(text, shown);
    EXPECT_NEAR(shown, entry.Field(), DisplayError(entry.Field()))
        << page.Name() << " " << entry.Box().name << " reads \"" << entry.Box().text << "\"";
  }
}

std::vector<PageId> AllIds() {
  std::vector<PageId> ids;
  for (const auto& entry : AllPages()) ids.push_back(entry.first);
  return ids;
}

std::string TestName(const testing::TestParamInfo<PageId>& info) { return std::string(FormName(info.param)); }

class EveryPage : public PageBench, public testing::WithParamInterface<PageId> {
 protected:
  // Over a bandpass whose figures have more digits than the boxes show.
  EveryPage() : PageBench(AllPages()) {
    StartProgram(session);
    DesignRecord& record = session.record;
    record.Family = familyCauer;
    record.CauerFlag = 1;
    record.Topology.assign(1, 'H');
    record.CauerType.assign(1, 'B');
    record.Order = 4;
    record.Width = 1234567.8F;
    record.Fcenter = 1.2345678e7F;
    record.FstopNorm = 1.5F;
    record.Apass = 0.12345678F;
    record.Astop = 61.234567F;
    record.Rsource[1] = record.Rload[1] = 51.234567F;
    record.Rratio = 1;
    record.NrIntervals = 1001;
    record.PlotCode = 11;
    session.pages.ShowPage(GetParam());
  }

  Page& Shown() { return *session.pages.Find(GetParam()); }

  void TypeAndLeave(Entry& entry, const std::string& text) {
    Type(session, entry.Box(), text);
    Leave(session, entry.Box());
  }
};

TEST_P(EveryPage, AgreesAfterItsLoad) { ExpectAgreement(Shown()); }

TEST_P(EveryPage, AgreesAfterWhateverIsTyped) {
  for (Entry& entry : Shown().entries.All()) {
    if (!entry.Box().Usable()) continue;
    for (const char* text : {"3", "1234.5678", "1,5k", "0", "", "5e9", "1e99", "abc", "50 Ohm", "1e3k", "2", "0.7"}) {
      SCOPED_TRACE(text);
      TypeAndLeave(entry, text);
      ExpectAgreement(Shown());
    }
  }
}

// Entering what a box shows, whatever was entered before, changes nothing of the field.
TEST_P(EveryPage, ReadingAnEchoBackCostsNothing) {
  for (Entry& entry : Shown().entries.All()) {
    if (!entry.Box().Usable()) continue;
    TypeAndLeave(entry, "1.2345678");
    const f32 before = entry.Field();
    TypeAndLeave(entry, entry.Box().text);
    EXPECT_EQ(entry.Field(), before) << entry.Box().name;
  }
}

// Words and results aside, no box of the program stands outside the list of its page; nor the gauge of a wire, since an
// empty box is no gauge, and 0 is one.
TEST_P(EveryPage, EveryBoxOfNumbersIsBound) {
  for (Control* control : Shown().Controls()) {
    const auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || !box->stepsDigits || box->readOnly || box->name == "txtActualGauge") continue;
    auto& all = Shown().entries.All();
    EXPECT_EQ(std::count_if(all.begin(), all.end(), [box](const Entry& entry) { return &entry.Box() == box; }), 1)
        << box->name;
  }
}

// A value that is not what the text says shows as a repair; one that is does not.
TEST_P(EveryPage, WhatWasNotUnderstoodIsRepairedWithANote) {
  for (Entry& entry : Shown().entries.All()) {
    if (!entry.Box().Usable()) continue;
    const i32 before = entry.Box().Repairs();
    TypeAndLeave(entry, "5 apples");
    EXPECT_EQ(entry.Box().Repairs(), before + 1) << entry.Box().name;
    EXPECT_NE(session.note.find("\"5 apples\" is taken as"), std::string::npos) << entry.Box().name;
  }
}

INSTANTIATE_TEST_SUITE_P(EntryAgreement, EveryPage, testing::ValuesIn(AllIds()), TestName);

class AfterRules : public PageBench {
 protected:
  AfterRules() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optChebycheff");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Enter("txtPassbandRipple", "0.5");
  }

  DesignRecord& record = session.record;
};

TEST_F(AfterRules, ARippleThatTheCheckHoldsShowsInItsBox) {
  const struct {
    const char* typed;
    f32 held;
  } rows[] = {{"20", 10}, {"10.001", 10}, {"10", 10}, {"0", 0.0001F}, {"-0.25", 0.25F}, {"0.00009", 0.0001F}};
  for (const auto& row : rows) {
    Enter("txtPassbandRipple", row.typed);
    Press("cmdSeeNorms");
    ASSERT_EQ(Top().Id(), PageId::Design);
    EXPECT_EQ(record.Apass, row.held) << row.typed;
    ExpectAgreement(Top());
  }
}

TEST_F(AfterRules, WhatAFormHasEnteredShowsInTheBoxes) {
  Press("optButterworth");
  platform.modalActs.push_back([this](Page&) {
    Enter("txtWidth", "1.5M");
    Press("cmdOk");
  });
  Enter("txtBandwidth", "0");
  Press("cmdSeeNorms");
  EXPECT_EQ(record.Width, 1.5e6F);
  ExpectAgreement(Top());
}

TEST_F(AfterRules, ADesignReadOverAnotherShowsInAllBoxes) {
  const std::string path = platform.ProgramFolder() + "/first.QLM";
  platform.files = {path};
  Press("cmdSave");
  const f32 ripple = record.Apass;
  for (const char* page : {"cmdDesign", "cmdAnalysis"}) {
    SCOPED_TRACE(page);
    if (Top().Find(page) != nullptr && Get<Button>(page).Usable()) Press(page);
    if (Top().Id() == PageId::Design) {
      Enter("txtBandwidth", "7M");
      Enter("txtPassbandRipple", "2");
    } else {
      Enter("txtFstop", "77M");
      Enter("txtVSWRTop", "5");
    }
    record.MatchAccepted = 1;  // of the network that goes
    platform.files = {path};
    Press("cmdGet");
    EXPECT_EQ(record.MatchAccepted, 0);
    EXPECT_EQ(record.Width, 1e6F);
    EXPECT_EQ(record.Apass, ripple);
    ExpectAgreement(Top());
  }
}

// The centre frequency rests while a lowpass stands on the page, and is there again with the next bandpass.
TEST_F(AfterRules, AChangeOfTopologyAgrees) {
  Press("optShuntInGeoSymm");
  Enter("txtCenterFrequency", "10M");
  for (const char* option : {"optCapInLowpass", "optShuntInGeoSymm"}) {
    Press(option);
    ExpectAgreement(Top());
  }
  EXPECT_EQ(record.Fcenter, 1e7F);
}

// The ripple of an odd Cauer design is a result; what was entered for an even one is the entry again.
TEST_F(AfterRules, ARippleThatBecomesAnEntryAgainAgrees) {
  record.Family = familyCauer;
  record.CauerFlag = 1;
  record.Order = 4;
  record.Astop = 60;
  record.FstopNorm = 1.5F;
  session.pages.ShowPage(PageId::Design);
  ASSERT_TRUE(Get<TextBox>("txtPassbandRipple").Shown());
  Step(session, Get<Spin>("UpDown1"), +1);
  ASSERT_FALSE(Get<TextBox>("txtPassbandRipple").Shown());
  record.Apass = 0.01F;
  Step(session, Get<Spin>("UpDown1"), +1);
  EXPECT_EQ(record.Apass, 0.5F);
  ExpectAgreement(Top());
}

// Entries of the sweep and the scales say nothing of the network: a match or an edit that stands still stands.
TEST_F(AfterRules, EntriesOfTheSweepForgetNoNetwork) {
  Press("cmdAnalysis");
  record.MatchAccepted = record.NetworkEdited = 1;
  for (Entry& entry : Top().entries.All()) {
    Type(session, entry.Box(), "5");
    Leave(session, entry.Box());
  }
  EXPECT_EQ(record.MatchAccepted, 1);
  EXPECT_EQ(record.NetworkEdited, 1);
}

}  // namespace
}  // namespace quilm
