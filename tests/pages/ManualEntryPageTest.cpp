// A network entered by hand, from the opening page and from the Design page.

#include <gmock/gmock.h>

#include "core/ElementCatalogue.h"
#include "core/Responses.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* limitReached = "We have reached the upper limit of the number of stages allowed.";

using Entered = std::vector<std::pair<const char*, const char*>>;

class ManualEntry : public PageBench {
 protected:
  ManualEntry() : PageBench(AllPages()) { StartProgram(session); }

  DesignRecord& Record() { return session.record; }
  Stage& StageOf(int s) { return session.record.stage[s]; }
  PictureBox& Sheet() { return Get<PictureBox>("picEntry"); }
  void MouseAt(f32 x, f32 y) { Mouse(session, Sheet(), MouseAct::Down, x, y, MouseButton::Left); }
  void Area(const std::string& name) { PressArea(session, Sheet(), name); }
  bool Shows(const char* name) { return Get<Control>(name).Shown(); }

  void Begin() {
    Press("cmdManualEntry");
    Enter("txtInputTermination", "50");
    Enter("txtOutputTermination", "75");
  }

  void Add(const std::string& area, const Entered& boxes) {
    Area(area);
    for (const auto& [box, text] : boxes) Enter(box, text);
    Press("cmdAccept");
  }
  void AddInductor() { Add("SeriesL", {{"txtInductorsValue", "1u"}}); }

  std::string FocusName() {
    const Control* control = Top().TakeFocusWish();
    return control == nullptr ? "" : control->name;
  }

  std::vector<std::string> Boxes() {
    std::vector<std::string> shown;
    for (const char* name :
         {"txtInductorsValue", "txtCapacitorsValue", "txtResistorsValue", "txtLineLength", "txtLineFrequency",
          "txtLineImpedance", "txtTransformer", "txtReactanceValue", "txtReactanceFrequency", "txtPrimaryHenries",
          "txtSecondaryHenries", "txtCouplingCoefficient"}) {
      if (Shows(name)) shown.emplace_back(name);
    }
    return shown;
  }

  f32 StripBegin() {
    for (const PictureOp& operation : Sheet().picture.Operations()) {
      if (const auto* circle = std::get_if<CircleOp>(&operation)) return circle->center.x - circle->r;
    }
    return 0;
  }
};

TEST_F(ManualEntry, BeginsWithoutATopologyAndWithADeadPalette) {
  Press("cmdManualEntry");
  EXPECT_EQ(Top().title, "Manual Network Entry");
  EXPECT_EQ(session.pages.OpenPages().size(), 1U);
  EXPECT_EQ(Record().Topology, "");
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
  EXPECT_TRUE(Shows("lblEnterTerminations"));
  for (const char* hidden : {"lblEmptyList", "lblClickOnAnElement", "cmdAccept", "cmdDeleteLast", "txtBandEdge",
                             "txtBandCenter", "lblBandEdge", "lblBandCenter"}) {
    EXPECT_FALSE(Shows(hidden)) << hidden;
  }
  EXPECT_EQ(Get<TextBox>("txtInputTermination").text, "");
  EXPECT_FALSE(Get<Button>("cmdExitEntry").Usable());
  MouseAt(5600, 5000);
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_THROW(Area("SeriesL"), ActRefused);
  EXPECT_EQ(FocusName(), "txtInputTermination");
}

TEST_F(ManualEntry, CaptionsAreTheGivenOnes) {
  Press("cmdManualEntry");
  const std::map<std::string, std::string> captions = {
      {"lblInputTermination", "Input termination, ohms:"},
      {"lblOutputTermination", "Output termination, ohms:"},
      {"cmdAccept", "Accept this part"},
      {"cmdDeleteLast", "Delete the last part"},
      {"cmdExitEntry", "Continue on to Analysis screen"},
      {"cmdEscape", "Stop; restart the program"},
      {"lblBandEdge", "If LPF or HPF, band edge:"},
      {"lblBandCenter", "If BPF, band center:"},
      {"lblEnterTerminations", "Enter the input and output terminations"},
      {"lblEmptyList", "The parts list is empty; select parts one at a time to enter the network."},
      {"lblClickOnAnElement", "Click on an element to select it"},
      {"lblInductorsValue", "L value:"},
      {"lblCapacitorsValue", "C value:"},
      {"lblResistorsValue", "R value:"},
      {"lblLineLength", "Length, deg:"},
      {"lblLineFrequency", "Frequency, Hz:"},
      {"lblLineImpedance", "Impedance:"},
      {"lblTransformer", "Turns ratio, pri to sec:"},
      {"lblReactanceValue", "X, ohms:"},
      {"lblReactanceFrequency", "Frequency, Hz:"},
      {"lblPrimaryHenries", "Primary L:"},
      {"lblSecondaryHenries", "Secondary L:"},
      {"lblCouplingCoefficient", "Coupling coefficient:"},
  };
  for (const auto& [name, caption] : captions) EXPECT_EQ(Get<Control>(name).caption, caption);
}

TEST_F(ManualEntry, BothTerminationsOpenThePaletteInEitherOrder) {
  Press("cmdManualEntry");
  Enter("txtOutputTermination", "-75");
  EXPECT_EQ(Record().Rload[1], 75);
  EXPECT_FALSE(Sheet().FindArea("SeriesL")->enabled);
  Enter("txtInputTermination", "-60");
  EXPECT_EQ(Record().Rsource[1], 60);
  EXPECT_EQ(Record().Rstandard, 60);
  EXPECT_EQ(Get<TextBox>("txtInputTermination").text, "60");
  EXPECT_TRUE(Sheet().FindArea("SeriesL")->enabled);
  EXPECT_TRUE(Shows("lblEmptyList"));
  EXPECT_TRUE(Shows("lblClickOnAnElement"));
  EXPECT_FALSE(Shows("lblEnterTerminations"));
  EXPECT_TRUE(Get<Button>("cmdExitEntry").Usable());
  Enter("txtInputTermination", "70");
  EXPECT_EQ(Record().Rstandard, 70);
  EXPECT_EQ(Record().Rload[1], 75);
}

// A box that is passed by with the Tab key has not been typed in.
TEST_F(ManualEntry, ATerminationThatIsOnlyPassedByStaysEmpty) {
  Press("cmdManualEntry");
  Leave(session, Get<TextBox>("txtInputTermination"));
  EXPECT_EQ(Get<TextBox>("txtInputTermination").text, "");
  Enter("txtOutputTermination", "75");
  EXPECT_FALSE(Sheet().FindArea("SeriesL")->enabled);
}

struct NewPart {
  const char* area;
  Entered boxes;  // the first gets the focus
  Stage stage;
};

const Entered inductor = {{"txtInductorsValue", "22u"}};
const Entered capacitor = {{"txtCapacitorsValue", "47p"}};
const Entered tuned = {{"txtInductorsValue", "22u"}, {"txtCapacitorsValue", "47p"}};
const Entered resistor = {{"txtResistorsValue", "2.2k"}};
const Entered lineBoxes = {{"txtLineLength", "30"}, {"txtLineFrequency", "100M"}, {"txtLineImpedance", "75"}};
const Entered rlc = {{"txtResistorsValue", "2.2k"}, {"txtInductorsValue", "22u"}, {"txtCapacitorsValue", "47p"}};
const Entered coupledBoxes = {
    {"txtPrimaryHenries", "1u"}, {"txtSecondaryHenries", "2u"}, {"txtCouplingCoefficient", ".5"}};
const Entered reactance = {{"txtReactanceValue", "50"}, {"txtReactanceFrequency", "1M"}};

std::vector<NewPart> AllParts() {
  const PartValue l{22e-6F, 0};
  const PartValue c{47e-12F, 0};
  const PartValue r{2200, 0};
  const LineValue line{30, 1e8F, 75, 0, 0};
  const auto withLC = [&](i16 type, bool hasL, bool hasC, bool hasR = false) {
    Stage stage;
    stage.ElementType = type;
    if (hasL) stage.Lval = l;
    if (hasC) stage.Cval = c;
    if (hasR) stage.Rval = r;
    return stage;
  };
  const auto withLine = [&](i16 type) {
    Stage stage;
    stage.ElementType = type;
    stage.TLval = line;
    return stage;
  };
  Stage transformer;
  transformer.ElementType = Transformer;
  transformer.XfmrVal.value = 2;
  Stage coupled;
  coupled.ElementType = CoupledInductors;
  coupled.CoupledVal = {1e-6F, 2e-6F, 0.5F};
  // 50 / (2 Pi 1e6)
  Stage seriesX = withLC(SeriesL, false, false);
  seriesX.Lval.value = static_cast<f32>(50 / (1e6 * 6.2831853));
  Stage shuntX = seriesX;
  shuntX.ElementType = ShuntL;
  return {{"SeriesL", inductor, withLC(SeriesL, true, false)},
          {"ShuntL", inductor, withLC(ShuntL, true, false)},
          {"SeriesC", capacitor, withLC(SeriesC, false, true)},
          {"ShuntC", capacitor, withLC(ShuntC, false, true)},
          {"SeriesSLC", tuned, withLC(SeriesSLC, true, true)},
          {"ShuntSLC", tuned, withLC(ShuntSLC, true, true)},
          {"SeriesPLC", tuned, withLC(SeriesPLC, true, true)},
          {"ShuntPLC", tuned, withLC(ShuntPLC, true, true)},
          {"SeriesR", resistor, withLC(SeriesR, false, false, true)},
          {"ShuntR", resistor, withLC(ShuntR, false, false, true)},
          {"TransLine", lineBoxes, withLine(TransLine)},
          {"SeriesShortStub", lineBoxes, withLine(SeriesShortStub)},
          {"SeriesOpenStub", lineBoxes, withLine(SeriesOpenStub)},
          {"ShuntShortStub", lineBoxes, withLine(ShuntShortStub)},
          {"ShuntOpenStub", lineBoxes, withLine(ShuntOpenStub)},
          {"Transformer", {{"txtTransformer", "2"}}, transformer},
          {"SeriesReactance", reactance, seriesX},
          {"ShuntReactance", reactance, shuntX},
          {"CoupledInductors", coupledBoxes, coupled},
          {"ShuntRLC", rlc, withLC(ShuntRLC, true, true, true)},
          {"SeriesRLC", rlc, withLC(SeriesRLC, true, true, true)}};
}

TEST_F(ManualEntry, EveryElementCanBeEntered) {
  Begin();
  int count = 0;
  for (const NewPart& part : AllParts()) {
    Area(part.area);
    EXPECT_EQ(FocusName(), part.boxes.front().first) << part.area;
    EXPECT_EQ(Boxes().size(), part.boxes.size()) << part.area;
    EXPECT_TRUE(Shows("cmdAccept"));
    EXPECT_TRUE(Shows("lblClickOnAnElement"));
    EXPECT_TRUE(Shows("txtInputTermination"));
    for (const auto& [box, text] : part.boxes) {
      EXPECT_TRUE(Shows(box)) << part.area << ' ' << box;
      Enter(box, text);
    }
    Press("cmdAccept");
    EXPECT_THAT(MessageTexts(), IsEmpty()) << part.area;
    ASSERT_EQ(Record().Stages, ++count);
    EXPECT_EQ(StageOf(count), part.stage) << part.area;
    EXPECT_FALSE(Shows("cmdAccept"));
    EXPECT_EQ(FocusName(), "picEntry");
  }
  EXPECT_EQ(count, 21);
}

// The same by the mouse alone: a press in the middle of a band.
TEST_F(ManualEntry, EveryElementCanBeChosenByAPress) {
  Begin();
  for (const NewPart& part : AllParts()) {
    const Point at = Sheet().FindArea(part.area)->Middle();
    MouseAt(at.x, at.y);
    EXPECT_EQ(FocusName(), part.boxes.front().first) << part.area;
  }
  MouseAt(4000, 5000);
  EXPECT_FALSE(Boxes().empty()) << "beside the palette nothing changes";
}

TEST_F(ManualEntry, TheFirstPartShowsWhatAListNeeds) {
  Begin();
  AddInductor();
  EXPECT_THAT(Boxes(), IsEmpty());
  for (const char* shown : {"cmdDeleteLast", "txtBandEdge", "txtBandCenter", "lblBandEdge", "lblBandCenter"}) {
    EXPECT_TRUE(Shows(shown)) << shown;
  }
  EXPECT_FALSE(Shows("lblEmptyList"));
  EXPECT_EQ(StripBegin(), 1380);
}

TEST_F(ManualEntry, BoxesOfTransformersAndCoupledInductorsStayUntilTheNextChoice) {
  Begin();
  Add("Transformer", {{"txtTransformer", "2"}});
  EXPECT_THAT(Boxes(), ElementsAre("txtTransformer"));
  EXPECT_FALSE(Shows("cmdAccept"));
  Add("CoupledInductors", coupledBoxes);
  EXPECT_THAT(Boxes(), ElementsAre("txtPrimaryHenries", "txtSecondaryHenries", "txtCouplingCoefficient"));
  Area("SeriesL");
  EXPECT_THAT(Boxes(), ElementsAre("txtInductorsValue"));
}

struct Refusal {
  const char* area;
  Entered boxes;
  const char* message;
  const char* focus;
};

TEST_F(ManualEntry, BadEntriesAreRefusedAndLeaveTheListAsItWas) {
  const auto line = [](const char* length, const char* frequency, const char* impedance) {
    return Entered{{"txtLineLength", length}, {"txtLineFrequency", frequency}, {"txtLineImpedance", impedance}};
  };
  const auto coupled = [](const char* primary, const char* secondary, const char* k) {
    return Entered{{"txtPrimaryHenries", primary}, {"txtSecondaryHenries", secondary}, {"txtCouplingCoefficient", k}};
  };
  const auto parts = [](const char* l, const char* c, const char* r) {
    return Entered{{"txtInductorsValue", l}, {"txtCapacitorsValue", c}, {"txtResistorsValue", r}};
  };
  const char* const lowL = "The inductor value entry is too low";
  const char* const lowC = "The capacitor value entry is too low";
  const char* const badRatio = "The turns ratio entry is outside the limits of .0001 to 10000";
  const char* const badK = "The coupling coefficient entry is outside the limits of .0001 and 1";
  Begin();
  AddInductor();
  const Network before = Record();
  for (const Refusal& each : std::vector<Refusal>{
           {"SeriesL", {{"txtInductorsValue", "0"}}, lowL, "txtInductorsValue"},
           {"ShuntL", {{"txtInductorsValue", ""}}, lowL, "txtInductorsValue"},
           {"ShuntC", {{"txtCapacitorsValue", "-1p"}}, lowC, "txtCapacitorsValue"},
           {"ShuntPLC", {{"txtInductorsValue", "1u"}, {"txtCapacitorsValue", "x"}}, lowC, "txtCapacitorsValue"},
           {"SeriesR", {{"txtResistorsValue", "-5"}}, "The resistor value entry is too low", "txtResistorsValue"},
           {"TransLine", line("-30", "1M", "50"), "The line length entry is too low", "txtLineLength"},
           {"TransLine", line("30", "0", "50"), "The frequency entry is too low", "txtLineFrequency"},
           {"ShuntOpenStub", line("30", "1M", "0"), "The line impedance entry is too low", "txtLineImpedance"},
           {"Transformer", {{"txtTransformer", ".0001"}}, badRatio, "txtTransformer"},
           {"Transformer", {{"txtTransformer", "10000"}}, badRatio, "txtTransformer"},
           {"CoupledInductors", coupled("0", "1u", ".5"), "The primary inductance entry is too low",
            "txtPrimaryHenries"},
           {"CoupledInductors", coupled("1u", "0", ".5"), "The secondary inductance entry is too low",
            "txtSecondaryHenries"},
           {"CoupledInductors", coupled("1u", "1u", ".0001"), badK, "txtCouplingCoefficient"},
           {"CoupledInductors", coupled("1u", "1u", "1"), badK, "txtCouplingCoefficient"},
           {"ShuntRLC", parts("0", "0", "0"), "The capacitance value entry is too low", "txtCapacitorsValue"},
           {"ShuntRLC", parts("0", "1p", "0"), "The inductance value entry is too low", "txtInductorsValue"},
           {"SeriesRLC", parts("1u", "1p", "-1"), "The resistance value entry is too low", "txtResistorsValue"}}) {
    SCOPED_TRACE(std::string(each.area) + ": " + each.message);
    platform.messages.clear();
    Add(each.area, each.boxes);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text, each.message);
    EXPECT_EQ(platform.messages[0].title, "Parts checker");
    EXPECT_EQ(platform.messages[0].icon, Icon::Critical);
    EXPECT_EQ(FocusName(), each.focus);
    EXPECT_EQ(static_cast<const Network&>(Record()), before);
    EXPECT_TRUE(Shows("cmdAccept"));
  }
}

TEST_F(ManualEntry, WhatIsJustWithinItsLimitsIsTaken) {
  Begin();
  Add("Transformer", {{"txtTransformer", ".00011"}});
  Add("CoupledInductors",
      {{"txtPrimaryHenries", "1u"}, {"txtSecondaryHenries", "1u"}, {"txtCouplingCoefficient", ".999"}});
  EXPECT_THAT(MessageTexts(), IsEmpty());
  EXPECT_EQ(Record().Stages, 2);
}

TEST_F(ManualEntry, ARefusedReactanceKeepsItsPlace) {
  Begin();
  Add("ShuntReactance", {{"txtReactanceValue", "0"}, {"txtReactanceFrequency", "1M"}});
  EXPECT_EQ(platform.messages.back().text, "The reactance value must not be zero");
  EXPECT_EQ(platform.messages.back().title, "Parts checker");
  EXPECT_EQ(Record().Stages, 1);
  EXPECT_EQ(StageOf(1).ElementType, ShuntReactance);
  EXPECT_TRUE(Shows("cmdDeleteLast"));
  EXPECT_TRUE(Shows("cmdAccept"));
  Enter("txtReactanceValue", "5");
  Enter("txtReactanceFrequency", "-1");
  Press("cmdAccept");
  EXPECT_EQ(platform.messages.back().text, "The normalizing frequency must be greater than zero");
  EXPECT_EQ(Record().Stages, 2);
  Press("cmdDeleteLast");
  Press("cmdDeleteLast");
  EXPECT_EQ(Record().Stages, 0);
}

// C = 1 / (10 x 1E6 x 6.2831853).
TEST_F(ManualEntry, ANegativeReactanceIsACapacitor) {
  Begin();
  Add("SeriesReactance", {{"txtReactanceValue", "-10"}, {"txtReactanceFrequency", "1M"}});
  EXPECT_EQ(StageOf(1).ElementType, SeriesC);
  EXPECT_EQ(StageOf(1).Cval.value, static_cast<f32>(1 / (10 * 1e6 * 6.2831853)));
}

TEST_F(ManualEntry, TheFortyThirdPartIsAWarningAndTheFortySeventhIsNone) {
  Begin();
  for (int part = 1; part <= 42; ++part) AddInductor();
  EXPECT_THAT(MessageTexts(), IsEmpty());
  AddInductor();
  EXPECT_THAT(MessageTexts(), ElementsAre(limitReached));
  EXPECT_EQ(platform.messages[0].title, "Entry checker");
  EXPECT_EQ(platform.messages[0].icon, Icon::Exclamation);
  Press("cmdDeleteLast");
  AddInductor();
  EXPECT_EQ(platform.messages.size(), 2U) << "each time that there are 43";
  for (int part = 44; part <= 46; ++part) AddInductor();
  EXPECT_EQ(Record().Stages, 46);
  EXPECT_EQ(platform.messages.size(), 2U);
  const Network full = Record();
  AddInductor();
  EXPECT_EQ(platform.messages.back().text, limitReached);
  EXPECT_EQ(static_cast<const Network&>(Record()), full);
}

TEST_F(ManualEntry, ALongStripShowsItsEnd) {
  Begin();
  for (int part = 1; part <= 20; ++part) AddInductor();
  const Scale scale = Sheet().picture.CurrentScale();
  const f32 end = StripBegin() + 1340 + 20 * 960;
  EXPECT_LT(end, scale.left + scale.width);
  EXPECT_GT(end, scale.left + scale.width - 1000);
}

TEST_F(ManualEntry, DeleteLastLeavesTheTypeAlone) {
  Begin();
  AddInductor();
  Add("ShuntC", capacitor);
  Press("cmdDeleteLast");
  EXPECT_EQ(Record().Stages, 1);
  Stage left;
  left.ElementType = ShuntC;
  EXPECT_EQ(StageOf(2), left);
  EXPECT_TRUE(Shows("cmdDeleteLast"));
  Press("cmdDeleteLast");
  EXPECT_FALSE(Shows("cmdDeleteLast"));
  EXPECT_TRUE(Shows("lblEmptyList"));
}

TEST_F(ManualEntry, ItEndsOnTheAnalysisPageAsAManualNetwork) {
  Begin();
  AddInductor();
  Record().ResponsesValid = 1;
  Press("cmdExitEntry");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(session.pages.OpenPages().size(), 1U);
  EXPECT_EQ(Record().Topology, "M");
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
  EXPECT_EQ(Record().ResponsesValid, 0);
}

TEST_F(ManualEntry, AnEmptyListMayGoToTheAnalysisPage) {
  Begin();
  Press("cmdExitEntry");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Record().Stages, 0);
}

TEST_F(ManualEntry, TerminationsHaveLimitsOfTheirOwnAtTheEnd) {
  Begin();
  Enter("txtInputTermination", ".009");
  Enter("txtOutputTermination", "0");
  Press("cmdExitEntry");
  EXPECT_EQ(platform.messages.back().text, "The input termination value entry is too low");
  EXPECT_EQ(platform.messages.back().title, "Parts checker");
  EXPECT_EQ(FocusName(), "txtInputTermination");
  Enter("txtInputTermination", ".01");
  Enter("txtOutputTermination", ".0009");
  Press("cmdExitEntry");
  EXPECT_EQ(platform.messages.back().text, "The output termination value entry is too low");
  EXPECT_EQ(FocusName(), "txtOutputTermination");
  EXPECT_EQ(Top().Id(), PageId::ManualEntry);
  Enter("txtOutputTermination", ".005");
  Press("cmdExitEntry");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(ManualEntry, TheBandEdgeWinsOverTheCenter) {
  Begin();
  AddInductor();
  Record().Width = 5;
  Record().Fcenter = 6;
  Enter("txtBandCenter", "10M");
  Press("cmdExitEntry");
  EXPECT_EQ(Record().Width, 5);
  EXPECT_EQ(Record().Fcenter, 1e7F);
  Undo(session);
  ASSERT_EQ(Top().Id(), PageId::ManualEntry);
  Enter("txtBandEdge", "1M");
  Enter("txtBandCenter", "20M");
  Press("cmdExitEntry");
  EXPECT_EQ(Record().Width, 1e6F);
  EXPECT_EQ(Record().Fcenter, 6);
}

class ManualFromDesign : public ManualEntry {
 protected:
  ManualFromDesign() {
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Press("cmdPlot");
    Press("cmdDesign");
  }

  // Presses cmdManual and then this button of the dialog; none is its close box.
  void EnterManually(const char* button) {
    platform.modalActs.push_back([this, button](Page& page) {
      EXPECT_EQ(page.Id(), PageId::ManualEntryOptions);
      if (button != nullptr) Press(button);
    });
    Press("cmdManual");
  }
};

TEST_F(ManualFromDesign, ReturnAndTheCloseBoxChangeNothing) {
  const DesignRecord before = Record();
  const Page* design = &Top();
  for (const char* button : {"cmdReturnToDesign", static_cast<const char*>(nullptr)}) {
    EnterManually(button);
    EXPECT_EQ(&Top(), design);
    EXPECT_EQ(session.pages.OpenPages().size(), 1U);
    EXPECT_EQ(Record(), before);
    EXPECT_EQ(session.ManualFromDesign, 0);
  }
}

TEST_F(ManualFromDesign, ContinueDiscardsTheDesignAndKeepsTheSweep) {
  Record().Fstart = 12345;
  Record().Rsource[2] = 7;
  session.responses.RespTrans[1] = 5;
  EnterManually("cmdContinueToManual");
  EXPECT_EQ(Top().Id(), PageId::ManualEntry);
  EXPECT_EQ(session.pages.OpenPages().size(), 1U);
  EXPECT_EQ(Record().Stages, 0);
  EXPECT_EQ(StageOf(1), Stage{});
  EXPECT_EQ(Record().Width, 0);
  EXPECT_EQ(Record().Rsource[1], 0);
  EXPECT_EQ(Record().Rsource[2], 0);
  EXPECT_EQ(Record().Fstart, 12345);
  EXPECT_EQ(Record().Topology, "");
  EXPECT_EQ(Record().NetworkEdited, 1);
  EXPECT_EQ(session.responses.RespTrans[1], 0);
  EXPECT_EQ(session.ManualFromDesign, 0);
  Enter("txtInputTermination", "50");
  Enter("txtOutputTermination", "50");
  AddInductor();
  Press("cmdExitEntry");
  EXPECT_EQ(Record().Family, familyManual);
}

TEST_F(ManualFromDesign, UndoBringsTheDesignBack) {
  const DesignRecord before = Record();
  EnterManually("cmdContinueToManual");
  Undo(session);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().stage[2], before.stage[2]);
  EXPECT_EQ(Record().Width, before.Width);
  EXPECT_EQ(Record().Family, familyButterworth);
}

TEST_F(ManualEntry, StopKeepsTheListAndEntryGoesOnWithIt) {
  Begin();
  AddInductor();
  Record().Fstart = 777;
  Press("cmdEscape");
  EXPECT_EQ(Top().Id(), PageId::Opening);
  EXPECT_EQ(session.pages.OpenPages().size(), 1U);
  EXPECT_EQ(Record().Stages, 1);
  Press("cmdManualEntry");
  EXPECT_EQ(Record().Stages, 1);
  EXPECT_EQ(Record().Fstart, 777);
  EXPECT_TRUE(Shows("cmdDeleteLast"));
  EXPECT_FALSE(Shows("lblEmptyList"));
  EXPECT_FALSE(Sheet().FindArea("SeriesL")->enabled);
  Enter("txtInputTermination", "50");
  Enter("txtOutputTermination", "75");
  AddInductor();
  EXPECT_EQ(Record().Stages, 2);
}

TEST_F(ManualEntry, TheCloseBoxAsks) {
  Begin();
  AddInductor();
  platform.answers = {Answer::No};
  PressCloseBox(session, Top());
  EXPECT_FALSE(session.ended);
  EXPECT_EQ(platform.messages.back().text,
            "Do you really want to exit this program?\r\n"
            "All data will be lost and last-session file will not be written\r\n"
            "(Use menubar item Exit to correctly end the program)");
  EXPECT_EQ(platform.messages.back().buttons, Buttons::YesNo);
  platform.answers = {Answer::Yes};
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_FALSE(Exists("LASTSESSION.QLM"));
}

TEST_F(ManualEntry, UndoTakesPartsBackAndRedoBringsThem) {
  Begin();
  AddInductor();
  const DesignRecord one = Record();
  Add("ShuntC", capacitor);
  const DesignRecord two = Record();
  Press("cmdDeleteLast");
  Undo(session);
  EXPECT_EQ(Record(), two);
  Undo(session);
  EXPECT_EQ(Record(), one);
  EXPECT_EQ(Top().Id(), PageId::ManualEntry);
  EXPECT_TRUE(Sheet().FindArea("SeriesL")->enabled) << "the terminations are typed still";
  EXPECT_EQ(Get<TextBox>("txtOutputTermination").text, "75");
  Redo(session);
  EXPECT_EQ(Record(), two);
  Press("cmdExitEntry");
  for (int steps = 0; steps < 2; ++steps) Undo(session);
  EXPECT_EQ(Top().Id(), PageId::ManualEntry);
  EXPECT_EQ(Record(), one);
  EXPECT_EQ(Get<TextBox>("txtInputTermination").text, "50");
  EXPECT_TRUE(Sheet().FindArea("SeriesL")->enabled);
}

TEST_F(ManualEntry, UndoOfATerminationMakesItUntypedAgain) {
  Press("cmdManualEntry");
  Enter("txtInputTermination", "75");
  Enter("txtOutputTermination", "75");
  EXPECT_TRUE(Get<Button>("cmdExitEntry").Usable());
  Undo(session);
  EXPECT_EQ(Get<TextBox>("txtOutputTermination").text, "");
  EXPECT_EQ(Get<TextBox>("txtInputTermination").text, "75");
  EXPECT_FALSE(Get<Button>("cmdExitEntry").Usable());
  EXPECT_TRUE(Shows("lblEnterTerminations"));
  Redo(session);
  EXPECT_EQ(Get<TextBox>("txtOutputTermination").text, "75");
  EXPECT_TRUE(Get<Button>("cmdExitEntry").Usable());
}

}  // namespace
}  // namespace quilm
