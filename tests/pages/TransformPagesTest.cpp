// The pages that transform the network of the design: reversal, specified inductor, Norton, bisection, tees made pis.
#include <gmock/gmock.h>

#include "core/modGeneral.h"
#include "desk/Leaving.h"
#include "desk/StartUp.h"
#include "network/DesignStanding.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class TransformPages : public PageBench {
 protected:
  TransformPages() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
  }

  DesignRecord& Record() { return session.record; }
  Stage& StageAt(int s) { return session.network.stage[s]; }

  // The design with its network, seen on the Design page.
  void Design(const char* family, const char* topology, int order, const char* width, const char* ohms,
              const char* center = nullptr) {
    Press(family);
    Press(topology);
    while (Record().Order != static_cast<f32>(order)) {
      Step(session, Get<Spin>("UpDown1"), Record().Order < static_cast<f32>(order) ? 1 : -1);
    }
    Enter("txtBandwidth", width);
    if (center != nullptr) Enter("txtCenterFrequency", center);
    Enter("txtInputTerm", ohms);
    Press("cmdPlot");
    Press("cmdDesign");
    ASSERT_EQ(Top().Id(), PageId::Design);
    found = Record();
  }

  void Open(const char* tool, PageId page) {
    Press(tool);
    ASSERT_EQ(Top().Id(), page);
  }

  // The record as undo and the ways back leave it: whether it was swept does not count.
  static DesignRecord Unswept(DesignRecord design) {
    design.ResponsesValid = 0;
    return design;
  }

  void ExpectAsFound() {
    EXPECT_EQ(Top().Id(), PageId::Design);
    EXPECT_EQ(Unswept(Record()), Unswept(found));
  }

  void ExpectByHand() {
    EXPECT_EQ(Top().Id(), PageId::Design);
    EXPECT_EQ(Record().Family, familyManual);
    EXPECT_EQ(Record().NetworkEdited, 1);
    EXPECT_EQ(Record().ResponsesValid, 0);
    EXPECT_EQ(Record().Topology, found.Topology);
    EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  }

  // What was accepted is one step of the history.
  void ExpectOneStep() {
    const DesignRecord accepted = Record();
    Undo(session);
    ExpectAsFound();
    Redo(session);
    EXPECT_EQ(Unswept(Record()), Unswept(accepted));
    Undo(session);
    ExpectAsFound();
  }

  std::string Caption(const std::string& name) { return Get<Control>(name).caption; }
  std::string Text(const std::string& name) { return Get<TextBox>(name).text; }
  bool Shown(const std::string& name) { return Get<Control>(name).Shown(); }
  bool Enabled(const std::string& name) { return Get<Control>(name).Active(); }

  // The titles of a page's drawings, in order.
  std::vector<std::string> Titles(const std::string& picture) {
    std::vector<std::string> titles;
    for (const PictureOp& operation : Get<PictureBox>(picture).picture.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text != nullptr && text->font.bold && text->text.ends_with(':')) titles.push_back(text->text);
    }
    return titles;
  }

  bool Draws(const std::string& picture, const std::string& words) {
    return Get<PictureBox>(picture).picture.Dump().find(words) != std::string::npos;
  }

  DesignRecord found;
};

// ---- Reversal

TEST_F(TransformPages, ReversalSwapsStagesAndTerminations) {
  Design("optChebycheff", "optCapInLowpass", 4, "1M", "50");
  const Network before = session.network;
  ASSERT_NE(before.Rload[1], 50);
  Press("Command3");
  EXPECT_THAT(MessageTexts(), ElementsAre("Topology and parts values have been reversed, end for end"));
  EXPECT_EQ(session.network.Rsource[1], before.Rload[1]);
  EXPECT_EQ(session.network.Rload[1], 50);
  for (int s = 1; s <= 4; ++s) EXPECT_EQ(StageAt(s), before.stage[5 - s]);
  EXPECT_EQ(Text("txtInputTerm"), EntryText(before.Rload[1], FormatResistance));
  ExpectByHand();
  EXPECT_EQ(Record().Rstandard, before.Rstandard);
  EXPECT_EQ(Record().Order, 4);
  EXPECT_EQ(session.note, "response kept within 0.0000 dB");
  ExpectOneStep();
}

TEST_F(TransformPages, ReversalTwiceIsTheSameNetwork) {
  Design("optChebycheff", "optCapInLowpass", 4, "1M", "50");
  const Network before = session.network;
  Press("Command3");
  Press("Command3");
  EXPECT_EQ(session.network, before);
}

TEST_F(TransformPages, ReversalNeedsANetwork) {
  Press("Command3");
  EXPECT_EQ(Record().NetworkEdited, 0);
  EXPECT_EQ(session.network.Stages, 0);
}

// ---- Specified inductor

class SpecifyInductor : public TransformPages {
 protected:
  // C1 = 1 / (50 2 Pi 1E6) = 3.1831 nF, L2 = 2 x 50 / (2 Pi 1E6) = 15.9155 uH.
  SpecifyInductor() {
    Design("optButterworth", "optCapInLowpass", 3, "1M", "50");
    Open("Command2", PageId::SpecifyInductor);
  }

  void Specify(const std::string& value) {
    Choose(session, Get<ListBox>("lstNewInductors"), 2);
    Enter("txtEnterNewValue", value);
    Press("cmdRescale");
  }
};

TEST_F(SpecifyInductor, ShowsTheInductorsByStage) {
  EXPECT_EQ(Top().title, "Inductor-specification");
  EXPECT_EQ(Caption("lblOriginalTermination"), "Original input termination: 50");
  EXPECT_THAT(Get<ListBox>("lstOriginalInductors").items, ElementsAre("  1   -----", "  2   15.9155uH", "  3   -----"));
  EXPECT_EQ(Get<ListBox>("lstNewInductors").items, Get<ListBox>("lstOriginalInductors").items);
  EXPECT_FALSE(Shown("txtEnterNewValue"));
  EXPECT_FALSE(Enabled("cmdRescale"));
}

TEST_F(SpecifyInductor, AClickAsksForItsNewValue) {
  Choose(session, Get<ListBox>("lstNewInductors"), 2);
  EXPECT_EQ(Caption("lblInductor"), "Inductor value at stage 2 is 15.9155uH");
  EXPECT_TRUE(Shown("lblEnterNewValue"));
  EXPECT_FALSE(Enabled("cmdRescale"));
  Enter("txtEnterNewValue", "31.831u");
  EXPECT_TRUE(Enabled("cmdRescale"));
  Enter("txtEnterNewValue", "0");
  EXPECT_FALSE(Enabled("cmdRescale"));
  Enter("txtEnterNewValue", "1u");
  Choose(session, Get<ListBox>("lstNewInductors"), 1);
  EXPECT_EQ(Caption("lblInductor"), "There is no inductor at stage 1");
  EXPECT_FALSE(Shown("txtEnterNewValue"));
  EXPECT_FALSE(Enabled("cmdRescale"));
  Choose(session, Get<ListBox>("lstNewInductors"), 2);
  EXPECT_EQ(Text("txtEnterNewValue"), "");
  EXPECT_FALSE(Enabled("cmdRescale"));
}

TEST_F(SpecifyInductor, AClickOnTheOriginalListDoesNothing) {
  Choose(session, Get<ListBox>("lstOriginalInductors"), 2);
  EXPECT_EQ(Caption("lblInductor"), "");
  EXPECT_FALSE(Shown("txtEnterNewValue"));
}

TEST_F(SpecifyInductor, RescalesEverythingAndKeepsTheResponse) {
  Specify("31.831u");
  EXPECT_NEAR(StageAt(2).Lval.value, 31.831e-6, 1e-11);
  EXPECT_NEAR(StageAt(1).Cval.value, 1.59155e-9, 1e-14);
  EXPECT_NEAR(session.network.Rsource[1], 100, 1e-4);
  EXPECT_NEAR(session.network.Rload[1], 100, 1e-4);
  EXPECT_NEAR(session.network.Rstandard, 100, 1e-4);
  EXPECT_EQ(Caption("lblNewTermination"), "New input termination will be 100");
  EXPECT_THAT(Get<ListBox>("lstNewInductors").items, ElementsAre("  1   -----", "  2   31.831uH", "  3   -----"));
  EXPECT_THAT(Get<ListBox>("lstOriginalInductors").items, ElementsAre("  1   -----", "  2   15.9155uH", "  3   -----"));
  Press("cmdAcceptNew");
  ExpectByHand();
  EXPECT_EQ(session.note, "response kept within 0.0000 dB");
  ExpectOneStep();
}

TEST_F(SpecifyInductor, RescalingsAddUpAndAreTakenBackTogether) {
  Specify("31.831u");
  Specify("63.662u");
  EXPECT_NEAR(session.network.Rsource[1], 200, 1e-3);
  Press("cmdAcceptNew");
  ExpectOneStep();
}

TEST_F(SpecifyInductor, UndoMeanwhileTakesAllRescalingsBack) {
  Specify("31.831u");
  Specify("63.662u");
  Undo(session);
  EXPECT_EQ(Top().Id(), PageId::SpecifyInductor);
  EXPECT_EQ(Unswept(Record()), Unswept(found));
  EXPECT_THAT(Get<ListBox>("lstNewInductors").items, ElementsAre("  1   -----", "  2   15.9155uH", "  3   -----"));
}

// Ignoring restores the parts, not that the design stands by hand.
TEST_F(SpecifyInductor, IgnoringRestoresPartsAndTerminations) {
  Specify("31.831u");
  Press("cmdIgnoreAndExit");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.network, static_cast<const Network&>(found));
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
}

TEST_F(SpecifyInductor, LeavingWithoutARescalingChangesNothing) {
  Press("cmdAcceptNew");
  ExpectAsFound();
  Open("Command2", PageId::SpecifyInductor);
  Press("cmdIgnoreAndExit");
  ExpectAsFound();
}

TEST_F(SpecifyInductor, TheCloseBoxIgnores) {
  Specify("31.831u");
  PressCloseBox(session, Top());
  EXPECT_FALSE(session.ended);
  EXPECT_EQ(session.network, static_cast<const Network&>(found));
}

TEST_F(SpecifyInductor, WhatLeavesTheRangeOfNumbersIsToldAndChangesNothing) {
  StageAt(2).Lval.value = 1e-30F;
  const DesignRecord before = Record();
  Specify("1G");
  EXPECT_EQ(MessageTexts().back(), "We could not calculate the parts values.");
  EXPECT_EQ(Record(), before);
  EXPECT_EQ(Top().Id(), PageId::SpecifyInductor);
}

TEST_F(SpecifyInductor, ANegativeInductorCountsAsNone) {
  Press("cmdIgnoreAndExit");
  StageAt(2).Lval.value = -1e-6F;
  StandByHand(session.identity);
  Open("Command2", PageId::SpecifyInductor);
  EXPECT_EQ(Get<ListBox>("lstNewInductors").items[1], "  2   -----");
  Choose(session, Get<ListBox>("lstNewInductors"), 2);
  EXPECT_EQ(Caption("lblInductor"), "There is no inductor at stage 2");
}

// ---- Norton

class Norton : public TransformPages {
 protected:
  Norton() {
    Design("optButterworth", "optShuntInGeoSymm", 3, "1M", "500", "10M");
    Open("Command13", PageId::Norton);
  }

  std::vector<f64> Capacitors() {
    std::vector<f64> C;
    for (int s = 1; s <= 7; ++s) C.push_back(f64{StageAt(s).Cval.value} * 1e12);
    return C;
  }

  void ExpectCapacitors(const std::vector<f64>& expected) {
    const std::vector<f64> C = Capacitors();
    for (std::size_t i = 0; i < 7; ++i) EXPECT_NEAR(C[i], expected[i], 5e-5 * std::abs(expected[i])) << i + 1;
  }
};

TEST_F(Norton, TheRecordHoldsTheProposalWhileThePageIsOpen) {
  EXPECT_EQ(Top().title, "Norton Transform");
  EXPECT_EQ(session.network.Stages, 3);
  ExpectCapacitors({321.27, 0.22508, -0.20916, 0, -0.20916, 0.22508, 321.27});
  EXPECT_THAT(Titles("picNorton"), ElementsAre("Existing:", "Proposed transform:"));
  EXPECT_FALSE(CanUndo(session));
  EXPECT_EQ(Record().Family, familyButterworth);
}

TEST_F(Norton, AcceptingTellsHowFarTheResponseHasChanged) {
  const std::string told = Caption("lblCouplingChange");
  EXPECT_THAT(told, HasSubstr("response changed by up to "));
  Press("cmdAccept");
  ExpectByHand();
  EXPECT_EQ(session.network.Stages, 7);
  ExpectCapacitors({321.27, 0.22508, -0.20916, 0, -0.20916, 0.22508, 321.27});
  for (const int s : {1, 4, 7}) EXPECT_EQ(StageAt(s).Lval.value, found.stage[1].Lval.value);
  EXPECT_EQ(session.note, told);
  ExpectOneStep();
}

TEST_F(Norton, TheOtherRatioKeepsTheResponse) {
  EXPECT_TRUE(Get<OptionButton>("optCoupling").Value());
  EXPECT_EQ(Caption("optKeepResponse"), "Keep the response");
  EXPECT_THAT(Caption("lblKeepResponseChange"), testing::StartsWith("response kept within 0.00"));
  Press("optKeepResponse");
  ExpectCapacitors({276.48, 45.016, 591.6, 0, 591.6, 45.016, 276.48});
  Press("cmdAccept");
  EXPECT_EQ(session.network.Stages, 7);
  ExpectCapacitors({276.48, 45.016, 591.6, 0, 591.6, 45.016, 276.48});
  EXPECT_THAT(session.note, testing::StartsWith("response kept within 0.00"));
  ExpectOneStep();
}

TEST_F(Norton, IgnoringPutsBackEverything) {
  Press("optKeepResponse");
  Press("cmdExit");
  ExpectAsFound();
  EXPECT_EQ(Record(), found);
  // Nothing was changed that could be undone but the entries themselves.
  EXPECT_NE(session.history.UndoText(), "Norton Transform");
}

TEST_F(Norton, TheCloseBoxIgnores) {
  PressCloseBox(session, Top());
  EXPECT_EQ(Record(), found);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(Norton, TheSystemsEndPutsBackTheProposal) {
  RunHandler(session, [this] { LeaveBySystem(session); });
  EXPECT_TRUE(session.ended);
  EXPECT_EQ(session.network.stage[2], found.stage[2]);
  // L2 = 2 x 500 / (2 Pi 1E6), as a file holds it.
  EXPECT_THAT(File(lastSessionFile), HasSubstr(" 5  1.591549E-04"));
  EXPECT_EQ(Record().Family, familyButterworth);
}

TEST_F(Norton, AnotherCountOfStagesOnlyShows) {
  Press("cmdExit");
  Step(session, Get<Spin>("UpDown1"), 1);
  Step(session, Get<Spin>("UpDown1"), 1);
  Press("cmdPlot");
  Press("cmdDesign");
  found = Record();
  Open("Command13", PageId::Norton);
  EXPECT_EQ(Record(), found);
  EXPECT_THAT(Titles("picNorton"), ElementsAre("Existing:"));
  EXPECT_FALSE(Shown("optKeepResponse"));
  EXPECT_TRUE(Shown("lblNoTransform"));
  Press("cmdAccept");
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(session.network, static_cast<const Network&>(found));
  ExpectOneStep();
  Open("Command13", PageId::Norton);
  Press("cmdExit");
  ExpectAsFound();
}

TEST_F(Norton, TheToolShowsWithItsTopologyAlone) {
  Press("cmdAccept");
  EXPECT_TRUE(Shown("Command13"));
  EXPECT_FALSE(Shown("Command14"));
  Press("optButterworth");
  Step(session, Get<Spin>("UpDown1"), 1);
  EXPECT_FALSE(Shown("Command13"));
  Press("optMeshCapBandpass");
  EXPECT_FALSE(Shown("Command13"));
  EXPECT_TRUE(Shown("Command14"));
}

// ---- Bisection

class Bisection : public TransformPages {
 protected:
  void OpenOfLowpass(int order = 3) {
    Design("optButterworth", "optCapInLowpass", order, "1M", "50");
    Open("Command10", PageId::Bisection);
  }

  void Bisect(const std::string& load) {
    Enter("txtNewOutput", load);
    Press("cmdCompute");
  }
};

TEST_F(Bisection, ShowsTheTerminationsAndWaitsForANewOne) {
  OpenOfLowpass();
  EXPECT_EQ(Top().title, "Bisection Routine");
  EXPECT_EQ(Text("txtInput"), "50");
  EXPECT_EQ(Text("txtOutput"), "50");
  EXPECT_EQ(Text("txtMismatch"), "");
  for (const char* box : {"txtInput", "txtOutput", "txtMismatch"}) EXPECT_TRUE(Get<TextBox>(box).readOnly);
  EXPECT_FALSE(Enabled("cmdCompute"));
  Enter("txtNewOutput", "200");
  EXPECT_TRUE(Enabled("cmdCompute"));
  Enter("txtNewOutput", "0");
  EXPECT_FALSE(Enabled("cmdCompute"));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Bisection, ScalesTheOutputHalfAndLosesTheMismatch) {
  OpenOfLowpass();
  Bisect("200");
  EXPECT_EQ(Text("txtMismatch"), "1.9382 dB");
  EXPECT_EQ(Text("txtOutput"), "200");
  EXPECT_EQ(Text("txtNewOutput"), "200");
  EXPECT_EQ(StageAt(1), found.stage[1]);
  EXPECT_FLOAT_EQ(StageAt(2).Lval.value, found.stage[2].Lval.value * 2.5F);
  EXPECT_FLOAT_EQ(StageAt(3).Cval.value, found.stage[3].Cval.value / 4);
  EXPECT_EQ(session.network.Rload[1], 200);
  EXPECT_EQ(session.network.Rstandard, 200);
  EXPECT_EQ(session.note, "response changed by up to 1.94 dB");
  EXPECT_THAT(Titles("picBisection"), ElementsAre("Existing:", "After bisection:"));
  Press("cmdAccept");
  ExpectByHand();
  EXPECT_EQ(session.note, "response changed by up to 1.94 dB");
  ExpectOneStep();
}

TEST_F(Bisection, TheSameLoadLosesNothing) {
  OpenOfLowpass();
  Bisect("50");
  EXPECT_THAT(Text("txtMismatch"), testing::StartsWith("0"));
  EXPECT_EQ(session.network, static_cast<const Network&>(found));
}

TEST_F(Bisection, ASecondPressScalesAgainAndIgnoringPutsBackAll) {
  OpenOfLowpass();
  Bisect("100");
  Press("cmdCompute");
  EXPECT_FLOAT_EQ(StageAt(3).Cval.value, found.stage[3].Cval.value / 4);
  Press("cmdIgnore");
  ExpectAsFound();
}

TEST_F(Bisection, AnEvenCountSplitsTheThirdOfFour) {
  Design("optButterworth", "optCapInLowpass", 4, "1M", "50");
  for (const int s : {1, 2}) StageAt(5 - s) = StageAt(s);
  StandByHand(session.identity);
  found = Record();
  Open("Command10", PageId::Bisection);
  EXPECT_TRUE(platform.messages.empty());
  Bisect("100");
  EXPECT_EQ(StageAt(2), found.stage[2]);
  EXPECT_FLOAT_EQ(StageAt(3).Lval.value, found.stage[3].Lval.value * 1.5F);
  EXPECT_FLOAT_EQ(StageAt(4).Cval.value, found.stage[4].Cval.value / 2);
}

TEST_F(Bisection, AnUnsymmetricalNetworkIsToldAndNothingCanBePressed) {
  OpenOfLowpass(4);
  EXPECT_THAT(MessageTexts(),
              ElementsAre("The Bisection routine requires that the network be symmetrical end-to-end."));
  Enter("txtNewOutput", "200");
  EXPECT_FALSE(Enabled("cmdCompute"));
  EXPECT_EQ(Text("txtInput"), "");
  Press("cmdAccept");
  ExpectAsFound();
}

TEST_F(Bisection, AnElementOfAnotherKindEndsInTheSameMessage) {
  Design("optButterworth", "optCapInLowpass", 3, "1M", "50");
  StageAt(2).ElementType = SeriesR;
  StandByHand(session.identity);
  Open("Command10", PageId::Bisection);
  EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(Bisection, AcceptingWithoutAPressChangesNothing) {
  OpenOfLowpass();
  Press("cmdAccept");
  ExpectAsFound();
  EXPECT_EQ(Record().ResponsesValid, 1);
}

// ---- Tees made pis

class TeesMadePis : public TransformPages {
 protected:
  void OpenMesh(int order) {
    Design("optButterworth", "optMeshCapBandpass", order, "1M", "50", "10M");
    Open("Command14", PageId::MeshTeePi);
  }
};

TEST_F(TeesMadePis, TheRecordHoldsTheTransformWhileThePageIsOpen) {
  OpenMesh(3);
  EXPECT_EQ(Top().title, "Mesh capacitor-coupled Tee-to-Pi transform");
  EXPECT_EQ(session.network.Stages, 9);
  EXPECT_THAT(Titles("picMeshTeePi"), ElementsAre("Existing:", "After tee to pi transform:"));
  EXPECT_FALSE(Shown("lblTooLarge"));
  const f64 a = f64{found.stage[1].Cval.value};
  const f64 b = f64{found.stage[2].Cval.value};
  const f64 c = 2 * f64{found.stage[3].Cval.value};
  EXPECT_FLOAT_EQ(StageAt(2).Cval.value, static_cast<f32>(a * b / (a + b + c)));
  EXPECT_FLOAT_EQ(StageAt(3).Cval.value, static_cast<f32>(a * c / (a + b + c)));
  EXPECT_FLOAT_EQ(StageAt(4).Cval.value, static_cast<f32>(b * c / (a + b + c)));
  EXPECT_EQ(StageAt(9).Lval.value, found.stage[5].Lval.value);
  Press("cmdAccept");
  ExpectByHand();
  EXPECT_EQ(session.network.Stages, 9);
  EXPECT_THAT(session.note, testing::StartsWith("response kept within 0.000"));
  ExpectOneStep();
}

TEST_F(TeesMadePis, IgnoringAndTheSystemsEndPutItBack) {
  OpenMesh(4);
  EXPECT_EQ(session.network.Stages, 13);
  Press("cmdExit");
  EXPECT_EQ(Record(), found);
  Open("Command14", PageId::MeshTeePi);
  RunHandler(session, [this] { LeaveBySystem(session); });
  EXPECT_EQ(session.network.Stages, 7);
}

TEST_F(TeesMadePis, OrderElevenIsTheLargest) {
  OpenMesh(11);
  EXPECT_EQ(session.network.Stages, 41);
  EXPECT_TRUE(Enabled("cmdAccept"));
  Press("cmdExit");
  Step(session, Get<Spin>("UpDown1"), 1);
  Press("cmdPlot");
  Press("cmdDesign");
  found = Record();
  Open("Command14", PageId::MeshTeePi);
  EXPECT_TRUE(Shown("lblTooLarge"));
  EXPECT_EQ(Caption("lblTooLarge"), "The transformed network will be too large");
  EXPECT_FALSE(Enabled("cmdAccept"));
  EXPECT_EQ(Record(), found);
  EXPECT_THAT(Titles("picMeshTeePi"), ElementsAre("Existing:"));
}

TEST_F(TeesMadePis, AnotherFormOnlyShows) {
  Design("optButterworth", "optMeshCapBandpass", 3, "1M", "50", "10M");
  StageAt(2).ElementType = ShuntL;
  StandByHand(session.identity);
  found = Record();
  Open("Command14", PageId::MeshTeePi);
  EXPECT_FALSE(Enabled("cmdAccept"));
  EXPECT_TRUE(Shown("lblNoMesh"));
  EXPECT_FALSE(Shown("lblTooLarge"));
  EXPECT_EQ(Record(), found);
  Press("cmdExit");
  ExpectAsFound();
}

// ---- Before a tool opens

TEST_F(TransformPages, AToolOpensWithANetworkAlone) {
  for (const char* tool : {"Command2", "Command10"}) {
    platform.messages.clear();
    Press(tool);
    EXPECT_EQ(Top().Id(), PageId::Design) << tool;
    EXPECT_EQ(session.network.Stages, 0);
  }
}

}  // namespace
}  // namespace quilm
