// Winding coils and toroids for the inductors of a design, and finding the inductance of a coil.
//
// Worked figures: 10 uH, an inch by an inch: N = sqrt(10 * 58) = 24.083; wire N sqrt((Pi D)^2 + (l / N)^2) = 75.666 in.

#include "core/NumberText.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class CoilPages : public PageBench {
 protected:
  CoilPages() : PageBench(AllPages()) { StartProgram(session); }

  // The tools need no design.
  void Open(const std::string& tool) {
    Press("cmdDesignNew");
    Press(tool);
  }

  // The same with a lowpass by hand of 1 MHz: a capacitor, 10 uH, a negative inductor.
  void OpenWithDesign(const std::string& tool) {
    MakeLowpass();
    Press("cmdDesign");
    session.record.Family = familyManual;
    session.record.NetworkEdited = 1;
    session.network.stage[2].Lval.value = 10e-6F;
    session.network.stage[3].ElementType = SeriesL;
    session.network.stage[3].Cval.value = 0;
    session.network.stage[3].Lval.value = -1e-6F;
    Press(tool);
  }

  void OpenWinding() {
    Open("Command8");
    ASSERT_EQ(Top().Id(), PageId::WindInductor);
  }

  void PutInductance(const std::string& text) { Enter("txtArbitraryInductance", text); }
  void PutDimensions(const std::string& diameter, const std::string& length, const std::string& turns) {
    Enter("txtFormDiameter", diameter);
    Enter("txtFormLength", length);
    Enter("txtTurns", turns);
  }

  std::string TextOf(const std::string& name) { return Get<TextBox>(name).text; }
  std::string CaptionOf(const std::string& name) { return Get<Label>(name).caption; }
  bool Enabled(const std::string& name) { return Get<Control>(name).enabled; }
  const Picture& Drawn(const std::string& name) { return Get<PictureBox>(name).picture; }

  std::string LastMessage() {
    const std::string text = platform.messages.empty() ? "" : platform.messages.back().text;
    platform.messages.clear();
    return text;
  }
};

TEST_F(CoilPages, OpenWithoutADesignWithEmptyLists) {
  for (const char* tool : {"Command8", "Command9", "Command12"}) {
    if (session.pages.Top()->Id() == PageId::Opening) Press("cmdDesignNew");
    Press(tool);
    EXPECT_NE(Top().Id(), PageId::Design) << tool;
    EXPECT_EQ(platform.messages.size(), 0U);
    if (Top().Find("lstInductors") != nullptr) {
      EXPECT_TRUE(Get<ListBox>("lstInductors").items.empty());
    }
    Press("cmdExit");
    EXPECT_EQ(Top().Id(), PageId::Design);
  }
}

TEST_F(CoilPages, TheCloseBoxReturnsToTheDesign) {
  OpenWinding();
  PressCloseBox(session, Top());
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_FALSE(session.ended);
}

TEST_F(CoilPages, TurnsFromAnInductanceThatIsTyped) {
  OpenWinding();
  EXPECT_FALSE(Enabled("cmdPrint"));
  PutInductance("10u");
  EXPECT_TRUE(Get<OptionButton>("Option2").Value());
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  EXPECT_EQ(platform.messages.size(), 0U);
  EXPECT_EQ(TextOf("txtTurns"), "24.083");
  EXPECT_EQ(CaptionOf("lblTurnsPerInch2"), "24.083");
  EXPECT_EQ(CaptionOf("lblWireLength2"), "75.666");
  EXPECT_EQ(CaptionOf("lblQuarterWave2"), "39013 kHz");
  EXPECT_EQ(CaptionOf("lblCriticalGauge2"), "18");
  EXPECT_EQ(CaptionOf("lblCriticalDiameter2"), "0.04044");
  EXPECT_EQ(CaptionOf("lblDcResistance2"), "0.03976 ohms");  // 0.0397649
  EXPECT_TRUE(Enabled("cmdPrint"));
  EXPECT_FALSE(Drawn("picCoil").Empty());
  EXPECT_EQ(CaptionOf("lblQ"), "");
}

TEST_F(CoilPages, DiameterAndLengthAreWrittenBack) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("", "2", "30");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtFormDiameter"), "1.0481");
  PutDimensions("1", "", "30");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtFormLength"), "1.8");
  // All three are there now: the next press computes the turns from the exact length.
  Enter("txtTurns", "7");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtTurns"), "30");
}

TEST_F(CoilPages, ARefusalLeavesTheResultsAsTheyWere) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  const Picture before = Drawn("picCoil");
  PutDimensions("1", "", "10");
  Press("cmdCompute0");
  EXPECT_EQ(LastMessage(), "For that diameter and turn specification,\r\nthe length is negative.");
  EXPECT_EQ(CaptionOf("lblTurnsPerInch2"), "24.083");
  EXPECT_EQ(Drawn("picCoil"), before);
  EXPECT_EQ(TextOf("txtFormLength"), "");
  PutInductance("100.1m");
  Press("cmdCompute0");
  EXPECT_EQ(LastMessage(), "Inductance value is 100.1mH\r\nThis routine accommodates values up to 100 millihenries");
  PutInductance("100m");
  PutDimensions("10", "10", "");
  Press("cmdCompute0");
  EXPECT_EQ(LastMessage(), "");
}

TEST_F(CoilPages, WithNeitherSourceThereIsNoInductance) {
  OpenWinding();
  PutDimensions("1", "1", "");
  EXPECT_TRUE(Enabled("cmdCompute0"));
  Press("cmdCompute0");
  EXPECT_EQ(LastMessage(), "This routine requires a positive value of inductance");
  EXPECT_EQ(TextOf("txtTurns"), "");
}

TEST_F(CoilPages, NumbersOutOfRangeAreTold) {
  OpenWinding();
  PutInductance("1u");
  PutDimensions("", "1e10", "1e-30");
  Press("cmdCompute0");
  EXPECT_EQ(LastMessage(), "We could not calculate the parts values.");
}

TEST_F(CoilPages, AnInductorOfTheDesignIsWound) {
  OpenWithDesign("Command8");
  const auto& lines = Get<ListBox>("lstInductors").items;
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0], " 1   -----");
  EXPECT_EQ(lines[1], " 2   L=10uH");
  EXPECT_EQ(lines[2], " 3   -----");
  Choose(session, Get<ListBox>("lstInductors"), 2);
  EXPECT_TRUE(Get<OptionButton>("Option1").Value());
  EXPECT_EQ(CaptionOf("lblInductance2"), "10uH");
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtTurns"), "24.083");
  // Without a center, the bandwidth of 1 MHz: sqrt(1E6 / 19.2) = 228.2.
  EXPECT_EQ(CaptionOf("lblQ"), "Approximate Q: 228");
}

TEST_F(CoilPages, TheCenterComesBeforeTheWidth) {
  OpenWithDesign("Command8");
  session.record.Fcenter = 7e6F;
  Choose(session, Get<ListBox>("lstInductors"), 2);
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  EXPECT_EQ(CaptionOf("lblQ"), "Approximate Q: 603");
}

TEST_F(CoilPages, AStageWithoutInductorIsTold) {
  OpenWithDesign("Command8");
  for (const int stage : {1, 3}) {
    Choose(session, Get<ListBox>("lstInductors"), stage);
    EXPECT_EQ(LastMessage(), "Stage " + std::to_string(stage) + " has no inductor");
    EXPECT_FALSE(Enabled("cmdCompute0"));
    EXPECT_FALSE(Enabled("cmdPrint"));
  }
  Choose(session, Get<ListBox>("lstInductors"), 2);
  EXPECT_TRUE(Enabled("cmdCompute0"));
  Choose(session, Get<ListBox>("lstInductors"), 1);
  LastMessage();
  Press("Option2");
  EXPECT_TRUE(Enabled("cmdCompute0"));
}

TEST_F(CoilPages, AnotherStageClearsWhatWasComputed) {
  OpenWithDesign("Command8");
  Choose(session, Get<ListBox>("lstInductors"), 2);
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  Choose(session, Get<ListBox>("lstInductors"), 2);
  EXPECT_FALSE(Get<Label>("lblTurnsPerInch2").visible);
  EXPECT_TRUE(Drawn("picCoil").Empty());
  EXPECT_FALSE(Enabled("cmdPrint"));
  EXPECT_EQ(CaptionOf("lblQ"), "");
}

TEST_F(CoilPages, AnActualGaugeGivesADiameterAndAFill) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  Enter("txtActualGauge", "36");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "Resulting diameter: 0.005");
  EXPECT_EQ(CaptionOf("lblFill"), "Fill: 12.042%");  // 0.5 % of 24.083 turns
  EXPECT_EQ(Get<Label>("lblFill").backColor, colorWhite);
  Enter("txtActualGauge", "-3");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "Resulting diameter: 0.46");
  EXPECT_EQ(CaptionOf("lblFill"), "Fill: >100%");
  EXPECT_EQ(Get<Label>("lblFill").backColor, 0x9999FFU);
  Enter("txtActualGauge", "-41");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "");
  EXPECT_EQ(CaptionOf("lblFill"), "");
  EXPECT_EQ(Get<Label>("lblFill").backColor, colorWhite);
  Enter("txtActualGauge", "0");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "Resulting diameter: 0.32486");
  Enter("txtActualGauge", "");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "");
}

TEST_F(CoilPages, AnActualDiameterGivesAGauge) {
  OpenWinding();
  Enter("txtActualGauge", "36");
  Enter("txtActualDiameter", ".46");
  EXPECT_EQ(TextOf("txtActualGauge"), "");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "");
  EXPECT_EQ(CaptionOf("lblResultingGauge"), "Resulting gauge: -3");
  EXPECT_EQ(CaptionOf("lblFill"), "");  // of nothing that is wound
  Enter("txtActualDiameter", "40");     // -40 is 33.6 in
  EXPECT_EQ(CaptionOf("lblResultingGauge"), "");
  Enter("txtActualDiameter", "0");
  EXPECT_EQ(CaptionOf("lblResultingGauge"), "");
  Enter("txtActualDiameter", ".005");
  EXPECT_EQ(CaptionOf("lblResultingGauge"), "Resulting gauge: 36");
  Enter("txtActualGauge", "10");
  EXPECT_EQ(TextOf("txtActualDiameter"), "");
  EXPECT_EQ(CaptionOf("lblResultingGauge"), "");
}

TEST_F(CoilPages, ANewWindingAsksForTheWireAgain) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("1", "1", "");
  Enter("txtActualGauge", "20");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtActualGauge"), "");
  EXPECT_EQ(CaptionOf("lblResultingDiameter"), "");
}

TEST_F(CoilPages, InMetricUnitsCentimetresAreEnteredAndShown) {
  OpenWinding();
  Press("optMetric");
  EXPECT_EQ(session.record.Units, 2);
  EXPECT_EQ(CaptionOf("lblFormDiameter"), "Median diameter (cm):");
  EXPECT_EQ(CaptionOf("lblFormLength"), "Length (cm):");
  EXPECT_EQ(CaptionOf("lblTurnsPerInch"), "Turns per cm:");
  EXPECT_EQ(CaptionOf("lblWireLength"), "Wire length (cm):");
  EXPECT_EQ(CaptionOf("lblWireDiameter"), "Wire diameter (cm):");
  PutInductance("10u");
  PutDimensions("2.54", "2.54", "");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtTurns"), "24.083");
  EXPECT_EQ(CaptionOf("lblTurnsPerInch2"), "9.4816");  // 24.0832 / 2.54
  EXPECT_EQ(CaptionOf("lblWireLength2"), "192.19");    // 75.6661 * 2.54
  EXPECT_EQ(CaptionOf("lblCriticalDiameter2"), "0.10272");
  Enter("txtActualDiameter", "0.0127");
  EXPECT_EQ(CaptionOf("lblResultingGauge"), "Resulting gauge: 36");
  EXPECT_EQ(CaptionOf("lblFill"), "Fill: 12.042%");
}

TEST_F(CoilPages, AChangeOfUnitsChangesNoValue) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("1", "", "30");
  Press("cmdCompute0");
  Enter("txtActualDiameter", "0.03");
  Press("optMetric");
  EXPECT_EQ(TextOf("txtFormDiameter"), "2.54");
  EXPECT_EQ(TextOf("txtFormLength"), "4.572");
  EXPECT_EQ(TextOf("txtActualDiameter"), "0.0762");
  EXPECT_EQ(CaptionOf("lblTurnsPerInch2"), "6.5617");  // 30 / 1.8 / 2.54
  Press("optEnglish");
  EXPECT_EQ(CaptionOf("lblFormDiameter"), "Median diameter (in):");
  EXPECT_EQ(TextOf("txtFormLength"), "1.8");
  EXPECT_EQ(TextOf("txtActualDiameter"), "0.03");
  EXPECT_EQ(CaptionOf("lblTurnsPerInch2"), "16.667");
}

TEST_F(CoilPages, TheUnitsStayForTheRun) {
  OpenWinding();
  Press("optMetric");
  Press("cmdExit");
  EXPECT_TRUE(Get<OptionButton>("optMetric").Value());
  Press("Command9");
  EXPECT_TRUE(Get<OptionButton>("optMetric").Value());
  EXPECT_EQ(CaptionOf("lblFormDiameter"), "Coil median diameter (cm): ");
}

// The text that a result left in a box is the result, not its five digits.
TEST_F(CoilPages, AComputedTextStandsForItsExactValue) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("", "2", "30");
  Press("cmdCompute0");
  Enter("txtFormDiameter", "1.0481");
  Press("cmdCompute0");
  EXPECT_EQ(TextOf("txtTurns"), "30");  // 1.0481 in itself asks for 30.0001
}

TEST_F(CoilPages, TheDataSheetIsPrinted) {
  OpenWithDesign("Command8");
  session.record.CircuitTitle = "Feed line";
  Choose(session, Get<ListBox>("lstInductors"), 2);
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  platform.printers.push_back(true);
  Press("cmdPrint");
  ASSERT_EQ(platform.Printer().Sheets().size(), 1U);
  const std::string sheet = platform.Printer().Sheets()[0].Dump();
  for (const char* text : {"\"Coil-winding Information\"", "\"Feed line\"", "\"Inductor number: 2\"",
                           "\"Inductance: 10uH\"", "\"Number of turns: 24.083\"", "\"Turns per in: 24.083\"",
                           "\"Wire length: 75.666 in\"", "\"Critical gauge: 18\"", "\"1 in\"", "   -   Quilm "}) {
    EXPECT_NE(sheet.find(text), std::string::npos) << text;
  }
}

TEST_F(CoilPages, OfATypedInductanceNoStageIsPrinted) {
  OpenWinding();
  PutInductance("10u");
  PutDimensions("1", "1", "");
  Press("cmdCompute0");
  Press("optMetric");
  platform.printers.push_back(true);
  Press("cmdPrint");
  const std::string sheet = platform.Printer().Sheets()[0].Dump();
  EXPECT_EQ(sheet.find("Inductor number"), std::string::npos);
  EXPECT_NE(sheet.find("\"Turns per cm: 9.4816\""), std::string::npos);
  EXPECT_NE(sheet.find("\"Wire length: 192.19 cm\""), std::string::npos);
  // Cancelling is quiet.
  Press("cmdPrint");
  EXPECT_EQ(platform.messages.size(), 0U);
}

TEST_F(CoilPages, FindsTheInductanceOfACoil) {
  Open("Command9");
  ASSERT_EQ(Top().Id(), PageId::FindInductance);
  PutDimensions("1", "1", "10");
  Press("cmdComputeInductance");
  EXPECT_EQ(CaptionOf("lblInductance2"), "1.72414uH");  // 100 / 58
  EXPECT_EQ(CaptionOf("lblTurnsPerInch2"), "10");
  EXPECT_EQ(Top().Find("cmdPrint"), nullptr);
  EXPECT_EQ(Top().Find("lblQ"), nullptr);
}

TEST_F(CoilPages, ToFindAnInductanceAllThreeAreNeeded) {
  Open("Command9");
  PutDimensions("1", "1", "10");
  Press("cmdComputeInductance");
  Enter("txtActualGauge", "20");
  Enter("txtFormLength", "");
  Press("cmdComputeInductance");
  EXPECT_EQ(LastMessage(),
            "We need three entries:\r\n   Coil diameter,\r\n   Coil length,\r\n   and number of turns;\r\n"
            "Inductance will then be computed.");
  EXPECT_EQ(CaptionOf("lblInductance2"), "1.72414uH");
  EXPECT_EQ(TextOf("txtActualGauge"), "");
}

TEST_F(CoilPages, FoundInductanceHasNoLimits) {
  Open("Command9");
  PutDimensions("10", "10", "10000");
  Press("cmdComputeInductance");
  EXPECT_EQ(platform.messages.size(), 0U);
  EXPECT_EQ(CaptionOf("lblInductance2"), "17.2414H");
  EXPECT_EQ(TextOf("txtTurns"), "10000");
}

TEST_F(CoilPages, TheFindPageTellsInWordsWhatIsOffTheScale) {
  Open("Command9");
  PutDimensions("1", "1000", "1");
  Press("cmdComputeInductance");
  EXPECT_EQ(CaptionOf("lblCriticalGauge2"), "< -40");  // 20 (ln .001 + ln .327) / ln 10.2 + 1 = -68
  Enter("txtActualDiameter", "40");
  EXPECT_EQ(CaptionOf("lblResultingGauge"), " Resulting gauge: < -40");
  EXPECT_EQ(CaptionOf("lblFill"), "Fill: 4%");
  Enter("txtActualDiameter", "1001");
  EXPECT_EQ(CaptionOf("lblFill"), " Fill: > 100%");
}

constexpr Color lacking = 0xEEEEFF;

TEST_F(CoilPages, AToroidOfTenMicrohenriesAndALTen) {
  Open("Command12");
  ASSERT_EQ(Top().Id(), PageId::ToroidDesign);
  Press("cmdCalculate");
  EXPECT_EQ(Get<TextBox>("txtToroidAL").backColor, lacking);
  EXPECT_EQ(Get<TextBox>("txtInductance").backColor, colorWhite);
  Enter("txtToroidAL", "10");
  Press("cmdCalculate");
  EXPECT_EQ(Get<TextBox>("txtToroidAL").backColor, colorWhite);
  EXPECT_EQ(Get<TextBox>("txtInductance").backColor, lacking);
  EXPECT_EQ(CaptionOf("lblTurns2"), "");
  Enter("txtInductance", "10u");
  Press("cmdCalculate");
  EXPECT_EQ(Get<TextBox>("txtInductance").backColor, colorWhite);
  EXPECT_EQ(CaptionOf("lblTurns2"), "100");
  EXPECT_FALSE(Drawn("picToroid").Empty());
  EXPECT_EQ(platform.messages.size(), 0U);
}

TEST_F(CoilPages, AToroidForAnInductorOfTheDesign) {
  OpenWithDesign("Command12");
  const auto& lines = Get<ListBox>("lstInductors").items;
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0], " 1   (no inductor)");
  EXPECT_EQ(lines[1], " 2   L=10uH");
  Choose(session, Get<ListBox>("lstInductors"), 2);
  EXPECT_EQ(TextOf("txtInductance"), "10uH");
  EXPECT_EQ(Get<TextBox>("txtToroidAL").backColor, lacking);
  EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtToroidAL"));
  Enter("txtToroidAL", "10");
  Choose(session, Get<ListBox>("lstInductors"), 2);
  EXPECT_EQ(Get<TextBox>("txtToroidAL").backColor, colorWhite);
  EXPECT_EQ(CaptionOf("lblTurns2"), "100");
  for (const int stage : {1, 3}) {
    Choose(session, Get<ListBox>("lstInductors"), stage);
    EXPECT_EQ(TextOf("txtInductance"), "");
    EXPECT_EQ(Get<TextBox>("txtInductance").backColor, lacking);
    EXPECT_EQ(CaptionOf("lblTurns2"), "");
    EXPECT_TRUE(Drawn("picToroid").Empty());
    Press("cmdCalculate");
    EXPECT_EQ(CaptionOf("lblTurns2"), "");
  }
}

}  // namespace
}  // namespace quilm
