// Families, topologies and order on the Design page: what is shown, what is offered, what moves.

#include "desk/FamilyRules.h"
#include "pages/DesignPageBench.h"
#include "schematic/LadderPicture.h"

namespace quilm {
namespace {

class DesignFamilies : public DesignPageBench {};

struct FamilyCase {
  const char* option;
  i16 code;
  i16 cauerFlag;
  bool ripple;
  bool stopband;
  bool cauerType;
  const char* edge;
  const char* offered;  // letters
};

// Order 4, so that the entries of the even orders are there too.
constexpr FamilyCase families[] = {
    {"optButterworth", 1, 0, false, false, false, "3 dB", "ABCDEFGIJKL"},
    {"optChebycheff", 2, 0, true, false, false, "Ripple", "ABCDEFGIJKL"},
    {"optCauer", 3, 1, true, true, true, "Ripple", "ABHIJ"},
    {"optBessel", 4, 0, false, false, false, "3 dB", "ABCDEFGIJKL"},
    {"optGaussian", 5, 0, false, false, false, "3 dB", "ABCDEFGIJKL"},
    {"optConstantK", 6, 0, false, false, false, "3 dB", "ABCDEFGIJKL"},
    {"optMderived", 7, 1, false, false, false, "3 dB", "ABHIJ"},
    {"optGaussian12", 8, 0, false, false, false, "3 dB", "ABCDEFGIJKL"},
    {"optManual", 11, 0, false, false, false, "3 dB", ""},
};

constexpr const char* topologyOptions[] = {
    "optCapInLowpass",   "optIndInLowpass",    "optNodCapBandpass",   "optNodIndBandpass",
    "optShuntInGeoSymm", "optSeriesInGeoSymm", "optMeshCapBandpass",  "optCauerBandpass",
    "optCapInHighpass",  "optIndInHighpass",   "optSeriesInBandstop", "optShuntInBandstop",
};

std::string LetterOf(int index) { return std::string(1, static_cast<char>('A' + index)); }

TEST_F(DesignFamilies, EachFamilyShowsAndOffersItsOwn) {
  SetLowpass();
  record.Order = 4;
  for (const FamilyCase& row : families) {
    SCOPED_TRACE(row.option);
    Open();
    PressAnyFamily(row.option);
    EXPECT_EQ(record.Family, row.code);
    EXPECT_EQ(session.familyOption, row.code);
    EXPECT_EQ(record.CauerFlag, row.cauerFlag);
    for (const char* name : {"txtPassbandRipple", "lblPassbandRipple", "lblVSWR"}) {
      EXPECT_EQ(Shown(name), row.ripple) << name;
    }
    for (const char* name : {"txtStopbandFreq", "lblStopbandFreq", "txtStopbandDepth", "lblStopbandDepth"}) {
      EXPECT_EQ(Shown(name), row.stopband);
    }
    EXPECT_EQ(Shown("fraCauerType"), row.cauerType);
    EXPECT_FALSE(Shown("fraCauerBPFtop"));
    EXPECT_EQ(CaptionOf("lblRipple"), row.edge);
    for (int i = 0; i < 12; ++i) {
      const bool offered = std::string(row.offered).find(LetterOf(i)) != std::string::npos;
      EXPECT_EQ(Get<Control>(topologyOptions[i]).Usable(), offered) << topologyOptions[i];
    }
  }
}

TEST_F(DesignFamilies, OddCauerOrdersHaveTheRippleAsAResult) {
  SetCauer("A", 5);
  Open();
  EXPECT_FALSE(Shown("txtPassbandRipple"));
  EXPECT_FALSE(Shown("optCauerTermBest"));
  EXPECT_TRUE(Shown("txtStopbandDepth"));
}

TEST_F(DesignFamilies, AllTopologiesAreOpenAsLongAsNoFamilyIsChosen) {
  Open();
  for (const char* name : topologyOptions) EXPECT_TRUE(Get<Control>(name).Usable()) << name;
}

TEST_F(DesignFamilies, FamiliesWithoutRippleClearIt) {
  SetLowpass();
  record.Family = familyChebyshev;
  record.Apass = 0.1F;
  Open();
  EXPECT_EQ(TextOf("txtPassbandRipple"), "0.1");
  Press("optBessel");
  EXPECT_EQ(record.Apass, 0);
  Press("optChebycheff");
  EXPECT_EQ(TextOf("txtPassbandRipple"), "");
  EXPECT_EQ(CaptionOf("lblVSWR"), "");
}

TEST_F(DesignFamilies, ATopologyThatIsNotOfferedGoesToTheFirstLowpass) {
  const struct {
    const char* family;
    const char* from;
    const char* to;
  } moves[] = {{"optCauer", "G", "A"},      {"optButterworth", "H", "A"}, {"optMderived", "E", "A"},
               {"optConstantK", "E", "A"},  {"optConstantK", "F", "F"},   {"optCauer", "H", "H"},
               {"optChebycheff", "G", "G"}, {"optManual", "G", "G"}};
  for (const auto& move : moves) {
    SCOPED_TRACE(std::string(move.family) + " from " + move.from);
    SetLowpass();
    record.Topology = move.from;
    record.Fcenter = 1e7F;
    Open();
    PressAnyFamily(move.family);
    EXPECT_EQ(record.Topology, move.to);
    EXPECT_TRUE(Set(topologyOptions[move.to[0] - 'A']));
    EXPECT_EQ(record.Fcenter == 0, std::string(move.to) == "A");
  }
}

TEST_F(DesignFamilies, ConstantKTakesTheShuntInputBandpassAfterwards) {
  OpenLowpass();
  Press("optConstantK");
  Press("optShuntInGeoSymm");
  EXPECT_EQ(record.Topology, "E");
}

TEST_F(DesignFamilies, ChoosingAFamilyComputesItsPrototype) {
  OpenLowpass();
  Press("optConstantK");
  EXPECT_EQ(record.Gj[1], 1);
  EXPECT_EQ(record.Gj[2], 2);
  // The published values of a Bessel ladder of order 3, and its load over source.
  Press("optBessel");
  EXPECT_EQ(record.Gj[1], 2.2034F);
  EXPECT_EQ(record.Rratio, 0.3374F / 2.2034F);
}

TEST_F(DesignFamilies, AnOrderCutByTheFamilyShowsAtOnce) {
  SetLowpass();
  record.Order = 15;
  Open();
  Press("optBessel");
  EXPECT_THAT(MessageTexts(), testing::ElementsAre("Order has been reset to Bessel upper limit of 10"));
  EXPECT_EQ(CaptionOf("lblOrderInput"), "10");
}

TEST_F(DesignFamilies, ManualEntryKeepsTheParts) {
  SetLowpass();
  record.Stages = 1;
  record.stage[1].ElementType = ShuntC;
  record.stage[1].Cval.value = 1e-9F;
  Open();
  Press("optManual");
  EXPECT_EQ(record.NetworkEdited, 1);
  Press("cmdPlot");
  EXPECT_EQ(record.Stages, 1);
  EXPECT_EQ(record.stage[1].Cval.value, 1e-9F);
}

TEST_F(DesignFamilies, EachTopologySetsItsLetterAndAsksForWhatItNeeds) {
  OpenLowpass();
  Press("optChebycheff");
  for (int i = 0; i < 12; ++i) {
    SCOPED_TRACE(topologyOptions[i]);
    Get<Control>(topologyOptions[i]).enabled = true;
    Press(topologyOptions[i]);
    EXPECT_EQ(record.Topology, LetterOf(i));
    const bool centered = std::string("ABIJ").find(LetterOf(i)) == std::string::npos;
    EXPECT_EQ(Shown("txtCenterFrequency"), centered);
    EXPECT_EQ(Shown("lblCenterFrequency"), centered);
    EXPECT_EQ(CaptionOf("lblBandwidth"), centered ? "Bandwidth (Hz)  (Fc)" : "Cutoff (Hz)  (Fc)");
  }
}

TEST_F(DesignFamilies, ALowpassHasNoCenterFrequencyAndTheNextBandpassFindsItAgain) {
  OpenLowpass();
  Press("optShuntInGeoSymm");
  Enter("txtCenterFrequency", "1.2345678M");
  Press("optCapInLowpass");
  EXPECT_EQ(record.Fcenter, 0);
  Press("optSeriesInBandstop");
  EXPECT_EQ(record.Fcenter, 1234567.8F);
  EXPECT_EQ(TextOf("txtCenterFrequency"), "1.23457M");
}

TEST_F(DesignFamilies, CaptionsAreThoseOfTheTopologies) {
  OpenLowpass();
  EXPECT_EQ(CaptionOf("optCapInLowpass"), "Capacitor-input lowpass");
  EXPECT_EQ(CaptionOf("optCauerBandpass"), "Cauer-only bandpass");
  EXPECT_EQ(CaptionOf("cmdShuntInBandstop"), "Shunt-input bandstop");
  EXPECT_EQ(CaptionOf("lblStopbandDepth"), "Stopband depth (dB) (As)");
  EXPECT_EQ(CaptionOf("lblInputTerm"), "Input termination  (Rs)");
}

TEST_F(DesignFamilies, TheDrawnLadderIsTheOptions) {
  OpenLowpass();
  EXPECT_EQ(Get<OptionButton>("optSeriesInBandstop").picture, TopologyPicture("K"));
  EXPECT_TRUE(Get<Button>("cmdSeriesInBandstop").picture.Empty());
}

TEST_F(DesignFamilies, ATypedOrderIsHeldToWhatTheFamilyCanHave) {
  OpenLowpass();
  SetNumber(session, Get<quilm::Spin>("UpDown1"), 12);
  EXPECT_EQ(record.Order, 12);
  EXPECT_EQ(CaptionOf("lblOrderInput"), "12");
  SetNumber(session, Get<quilm::Spin>("UpDown1"), 40);
  EXPECT_EQ(record.Order, 21);
  Press("optCauer");
  SetNumber(session, Get<quilm::Spin>("UpDown1"), 1);
  EXPECT_EQ(record.Order, 3);
  EXPECT_EQ(Get<quilm::Spin>("UpDown1").lowest, 3);
}

TEST_F(DesignFamilies, ATypedLineWidthIsHeldToSix) {
  OpenLowpass();
  SetNumber(session, Get<quilm::Spin>("UpDown2"), 9);
  EXPECT_EQ(record.PlotLineWidth, 6);
  EXPECT_EQ(CaptionOf("lblLineWidthInput"), "6");
}

TEST_F(DesignFamilies, AQuestionMarkLeadsToTheHelpOfItsTopology) {
  OpenLowpass();
  // What it leads to, also where its card cannot be chosen.
  EXPECT_FALSE(Get<OptionButton>("optCauerBandpass").Active());
  EXPECT_EQ(Get<Button>("cmdCauerBandpass").SpokenName(), "Cauer-only bandpass, See the Cauer-only bandpass");
  Press("cmdCauerBandpass");
  EXPECT_EQ(record.TopologyHelpCode, 8);
  EXPECT_EQ(record.Topology, "A");
  EXPECT_THAT(platform.pageEvents, testing::Contains("modal frmHelp"));
}

TEST_F(DesignFamilies, TheOrderStepsBetweenOneAndItsMaximum) {
  OpenLowpass();
  EXPECT_EQ(CaptionOf("lblOrder"), "Order (N) [21 max]");
  Spin("UpDown1", +1);
  EXPECT_EQ(record.Order, 4);
  EXPECT_EQ(CaptionOf("lblOrderInput"), "4");
  for (int i = 0; i < 30; ++i) Spin("UpDown1", +1);
  EXPECT_EQ(record.Order, 21);
  for (int i = 0; i < 30; ++i) Spin("UpDown1", -1);
  EXPECT_EQ(record.Order, 1);
  EXPECT_EQ(CaptionOf("lblOrderInput"), "1");
}

TEST_F(DesignFamilies, AnOrderAtItsLimitIsNoChange) {
  SetLowpass();
  record.Order = 21;
  record.ResponsesValid = 1;
  Open();
  Spin("UpDown1", +1);
  EXPECT_EQ(record.ResponsesValid, 1);
  EXPECT_FALSE(Shown("txtDesignChange"));
}

TEST_F(DesignFamilies, CauerNeedsOrderThree) {
  SetLowpass();
  record.Order = 2;
  Open();
  PressAnyFamily("optCauer");
  EXPECT_EQ(record.Order, 3);
  EXPECT_EQ(CaptionOf("lblOrderInput"), "3");
  Spin("UpDown1", -1);
  EXPECT_EQ(record.Order, 3);
}

TEST_F(DesignFamilies, TheParityOfACauerOrderShowsAndHidesRippleAndType) {
  SetCauer("A", 5);
  Open();
  EXPECT_EQ(record.CauerType, "A");
  Spin("UpDown1", +1);
  EXPECT_TRUE(Shown("txtPassbandRipple"));
  EXPECT_TRUE(Shown("optCauerTermsEqual"));
  EXPECT_EQ(Get<OptionButton>("optCauerTermsEqual").caption, "Equal terms.");
  EXPECT_EQ(record.CauerType, "B");
  Press("optCauerTermsEqual");
  EXPECT_EQ(record.CauerType, "C");
  Spin("UpDown1", +1);
  EXPECT_FALSE(Shown("txtPassbandRipple"));
  EXPECT_EQ(record.CauerType, "A");
  Spin("UpDown1", +1);
  EXPECT_EQ(record.CauerType, "C");
  Press("optCauerTermBest");
  EXPECT_EQ(record.CauerType, "B");
}

TEST_F(DesignFamilies, ZigZagExistsForEvenOrderOnly) {
  SetCauer("H", 8);
  Open();
  EXPECT_TRUE(Shown("fraCauerBPFtop"));
  Press("optCauerTopZigZag");
  EXPECT_EQ(record.CauerTop, 1);
  EXPECT_EQ(record.Topology, "H");
  Spin("UpDown1", -1);
  EXPECT_EQ(record.CauerTop, 0);
  EXPECT_TRUE(Set("optCauerTopNormal"));
  EXPECT_THROW(Press("optCauerTopZigZag"), ActRefused);
  Spin("UpDown1", -1);
  Press("optCauerTopZigZag");
  Press("optCauerTopNormal");
  EXPECT_EQ(record.CauerTop, 0);
}

TEST_F(DesignFamilies, EveryChoiceForgetsTheNetwork) {
  for (const char* name : {"optChebycheff", "optIndInLowpass", "UpDown1"}) {
    SCOPED_TRACE(name);
    SetLowpass();
    record.MatchAccepted = 1;
    record.NetworkEdited = record.ResponsesValid = record.DesignChanged = 1;
    Open();
    EXPECT_FALSE(Shown("txtDesignChange"));
    if (std::string(name) == "UpDown1") {
      Spin(name, +1);
    } else {
      Press(name);
    }
    EXPECT_EQ(record.MatchAccepted, 0);
    EXPECT_EQ(record.NetworkEdited, 0);
    EXPECT_EQ(record.ResponsesValid, 0);
    EXPECT_EQ(record.DesignChanged, 0);
    EXPECT_TRUE(Shown("txtDesignChange"));
    EXPECT_EQ(CaptionOf("txtDesignChange"), "(or design possibly altered)");
  }
}

TEST_F(DesignFamilies, NortonAndTeeToPiStandWithTheirTopologies) {
  OpenLowpass();
  EXPECT_FALSE(Shown("Command13"));
  EXPECT_FALSE(Shown("Command14"));
  Press("optShuntInGeoSymm");
  EXPECT_TRUE(Shown("Command13"));
  Spin("UpDown1", +1);
  EXPECT_FALSE(Shown("Command13"));
  Press("optMeshCapBandpass");
  EXPECT_TRUE(Shown("Command14"));
}

}  // namespace
}  // namespace quilm
