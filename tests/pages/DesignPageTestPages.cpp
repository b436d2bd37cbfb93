// The Design page among the others: loading, leaving, its buttons, and the entry forms for themselves.

#include <set>

#include "pages/DesignPageBench.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

using testing::ElementsAre;

class DesignPages : public DesignPageBench {
 protected:
  // Opens a form over the Design page and does `act` in it.
  void InForm(PageId id, std::function<void()> act) {
    platform.modalActs.push_back([act](Page&) { act(); });
    RunHandler(session, [this, id] { session.pages.ShowModal(id); });
  }
};

TEST_F(DesignPages, LoadRebuildsTheControlsFromTheRecord) {
  SetLowpass();
  record.Family = familyChebyshev;
  record.Topology = "E";
  record.Order = 7.9F;
  record.Width = 1e5F;
  record.Fcenter = 1e7F;
  record.Apass = 0.1F;
  record.Rsource[1] = 75;
  record.PlotLineWidth = 3;
  Open();
  EXPECT_EQ(record.Order, 7);
  EXPECT_EQ(CaptionOf("lblOrderInput"), "7");
  EXPECT_EQ(TextOf("txtBandwidth"), "100k");
  EXPECT_EQ(TextOf("txtCenterFrequency"), "10M");
  EXPECT_EQ(TextOf("txtInputTerm"), "75");
  EXPECT_EQ(TextOf("txtPassbandRipple"), "0.1");
  EXPECT_EQ(CaptionOf("lblLineWidthInput"), "3");
  EXPECT_TRUE(Set("optChebycheff"));
  EXPECT_TRUE(Set("optShuntInGeoSymm"));
  EXPECT_EQ(session.familyOption, familyChebyshev);
  EXPECT_EQ(CaptionOf("lblRipple"), "Ripple");
  EXPECT_FALSE(Shown("txtDesignChange"));
}

TEST_F(DesignPages, AnOrderOfZeroBecomesThreeWhenThePageLoads) {
  Open();
  EXPECT_EQ(record.Order, 3);
}

TEST_F(DesignPages, LoadDerivesTheCauerStopband) {
  const struct {
    const char* letter;
    f32 edge;
    const char* text;
  } rows[] = {{"A", 1.25e6F, "1.25M"}, {"H", 1.25e6F, "1.25M"}, {"I", 8e5F, "800k"}, {"J", 8e5F, "800k"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.letter);
    SetCauer(row.letter, 5);
    record.FstopNorm = 1.25F;
    Open();
    EXPECT_EQ(record.Fstopband, row.edge);
    EXPECT_EQ(TextOf("txtStopbandFreq"), row.text);
    EXPECT_EQ(TextOf("txtStopbandDepth"), "60");
  }
}

TEST_F(DesignPages, ACauerDesignWithoutAPrototypeKeepsItsStopband) {
  SetCauer("I", 5);
  record.FstopNorm = 0;
  record.Fstopband = 7e5F;
  Open();
  EXPECT_EQ(record.Fstopband, 7e5F);
}

TEST_F(DesignPages, ALetterOfNoTopologyIsANetworkEnteredByHand) {
  for (const char* letter : {"M", "a", "AB", "Z"}) {
    SetLowpass();
    record.NetworkEdited = 0;
    record.Topology = letter;
    Open();
    EXPECT_EQ(record.Family, familyManual) << letter;
    EXPECT_EQ(record.NetworkEdited, 1) << letter;
    EXPECT_TRUE(Set("optManual"));
  }
}

TEST_F(DesignPages, TheTargetIsShownBeforeThePageIsUnloaded) {
  OpenLowpass();
  Press("cmdPlot");
  EXPECT_THAT(platform.pageEvents, ElementsAre("show frmPlotted", "unload frmDesign"));
  session.pages.ShowPage(PageId::Design);
  platform.pageEvents.clear();
  Press("cmdSpice");
  EXPECT_THAT(platform.pageEvents, ElementsAre("show frmWriteFiles", "unload frmDesign"));
}

TEST_F(DesignPages, ManualEntryNeedsNoDesign) {
  Open();
  Press("cmdManual");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_THAT(platform.pageEvents, ElementsAre("show frmManualEntry", "unload frmDesign"));
}

TEST_F(DesignPages, TitleAndInformationOpenOverThePage) {
  OpenLowpass();
  Press("cmdTitle");
  Press("cmdInfo");
  EXPECT_THAT(platform.pageEvents,
              ElementsAre("modal frmChangeTitle", "unload frmChangeTitle", "modal frmAddInfo", "unload frmAddInfo"));
}

TEST_F(DesignPages, ButtonsOfPagesThatDoNotExistAreDisabled) {
  OpenLowpass();
  for (const char* name : {"cmdSchematic", "cmdEdit", "cmdAnalysis", "cmdTabulate", "cmdPrint", "cmdAssistance"}) {
    EXPECT_THROW(Press(name), ActRefused) << name;
  }
  EXPECT_EQ(CaptionOf("cmdHere"), "Design");
}

TEST_F(DesignPages, TheToolsWhosePagesAreNotThereAreOff) {
  const char* captions[] = {"Nearest 5%", "Specify L",         "Swap end-end", "Singly-term Cheby",
                            "Diplexer",   "Lumped to tubular", "Z match",      "Wind L",
                            "Find L",     "Bisection",         "EndS",         "Toroid",
                            "Norton",     "Tee To Pi"};
  OpenLowpass();
  for (int i = 0; i < 14; ++i) {
    const Button& tool = Get<Button>("Command" + std::to_string(i + 1));
    EXPECT_EQ(tool.caption, captions[i]);
    EXPECT_EQ(tool.role, ButtonRole::Tool);
    EXPECT_FALSE(tool.picture.Empty());
    // All others have a page of their own, and none is in the directory here.
    const bool usable = i + 1 == 3;
    EXPECT_EQ(tool.enabled, usable);
    EXPECT_FALSE(tool.toolTip.empty());
  }
}

TEST_F(DesignPages, HelpOpensThePageOfTheDesignPage) {
  OpenLowpass();
  Press("cmdHelp");
  EXPECT_THAT(platform.opened, ElementsAre(platform.HelpFolder() + "/design.htm"));
}

TEST_F(DesignPages, TheCloseBoxKeepsThePreferencesAndEndsTheProgram) {
  OpenLowpass();
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_THAT(File(configurationFile), testing::HasSubstr("Capacitor Q values:"));
}

TEST_F(DesignPages, EveryControlStandsInTheLayoutOnceAndHasANameOfItsOwn) {
  OpenLowpass();
  Page& page = Top();
  const std::vector<Control*> placed = ControlsOf(page.MakeLayout());
  const std::set<Control*> once(placed.begin(), placed.end());
  EXPECT_EQ(once.size(), placed.size());
  std::set<std::string> names;
  for (Control* control : page.Controls()) {
    EXPECT_TRUE(once.contains(control)) << control->name;
    EXPECT_TRUE(names.insert(control->name).second) << control->name;
    EXPECT_FALSE(control->SpokenName().empty());
  }
  EXPECT_EQ(placed.size(), page.Controls().size());
}

TEST_F(DesignPages, EachFormTakesItsEntry) {
  SetLowpass();
  Open();
  const struct {
    PageId id;
    const char* name;
    const char* box;
    const char* typed;
    f32 value;
    f32& field;
  } forms[] = {{PageId::EnterWidth, "frmEnterWidth", "txtWidth", "2.5M", 2.5e6F, record.Width},
               {PageId::EnterCenterFreq, "frmEnterCenterFreq", "txtCenterFreq", "10M", 1e7F, record.Fcenter},
               {PageId::EnterInput, "frmEnterInput", "txtInput", "2.2k", 2200, record.Rsource[1]},
               {PageId::EnterFstopband, "frmEnterFstopband", "txtFstopband", "3M", 3e6F, record.Fstopband}};
  for (const auto& form : forms) {
    SCOPED_TRACE(form.name);
    record.NetworkEdited = record.ResponsesValid = 1;
    record.MatchAccepted = 1;
    InForm(form.id, [this, &form] {
      EXPECT_EQ(Top().Name(), form.name);
      EXPECT_EQ(Top().TakeFocusWish(), Top().Find(form.box));
      Enter(form.box, form.typed);
      EXPECT_EQ(TextOf(form.box), form.typed);
      Press("cmdOk");
    });
    EXPECT_EQ(form.field, form.value);
    EXPECT_EQ(record.ResponsesValid, 0);
    EXPECT_EQ(record.NetworkEdited, 0);
    EXPECT_EQ(record.MatchAccepted, 0);
    EXPECT_TRUE(Top().Id() == PageId::Design);
  }
}

TEST_F(DesignPages, AFormShowsThePresentEntryAndItsEchoCostsNoDigits) {
  SetLowpass();
  Open();
  InForm(PageId::EnterWidth, [this] {
    EXPECT_EQ(TextOf("txtWidth"), "1M");
    Enter("txtWidth", "1.2345678M");
    EXPECT_EQ(TextOf("txtWidth"), "1.23457M");
    Press("cmdOk");
  });
  EXPECT_EQ(record.Width, 1234567.8F);
}

TEST_F(DesignPages, AFormThatIsIgnoredChangesNothing) {
  SetLowpass();
  Open();
  InForm(PageId::EnterWidth, [this] {
    Enter("txtWidth", "5");
    Press("cmdIgnore");
  });
  InForm(PageId::EnterWidth, [this] { Enter("txtWidth", "6"); });  // and its close box
  EXPECT_EQ(record.Width, 1e6F);
}

TEST_F(DesignPages, AFormTakesNonsenseAsZero) {
  SetLowpass();
  Open();
  InForm(PageId::EnterWidth, [this] {
    Enter("txtWidth", "wide");
    Press("cmdOk");
  });
  EXPECT_EQ(record.Width, 0);
}

}  // namespace
}  // namespace quilm
