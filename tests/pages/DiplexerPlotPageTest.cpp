// The plot of the diplexer: its steps, its markers, the tuning of its parts.
#include <algorithm>

#include "analysis/SweepFit.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

constexpr Color returnGreen = 0x008000;

// The pair that crosses at 1 MHz, on the plot. Values of parts are worked out apart from the program, in 64 bits.
class DiplexerPlotPage : public PageBench {
 protected:
  DiplexerPlotPage() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
    Dip().DipMode = 1;
    Dip().DipOrder = 3;
    Dip().DipRipple = 0.1F;
    Dip().DipZ = 50;
    Dip().DipCrossover = 1e6F;
    Dip().DipFlower = 9.5e6F;
    Dip().DipFupper = 10.5e6F;
    session.record.Fstart = 1e5F;
    session.record.Fstop = 1e7F;
    session.record.SweepMode = 2;
    Open();
  }

  void Open() { session.pages.ShowPage(PageId::PlotDiplexer); }
  void OpenBands() {
    Dip().DipMode = 2;
    Dip().DipOrder = 2;
    session.record.Fstart = 5e6F;
    session.record.Fstop = 20e6F;
    Open();
  }

  // Opens a tool by its button, does `act` there and leaves it by its exit, if it is still there.
  void With(const char* button, std::function<void()> act) {
    platform.modalActs.push_back([this, act = std::move(act)](Page& tool) {
      act();
      if (tool.IsOpen()) Press("cmdExit");
    });
    Press(button);
    EXPECT_EQ(Top().Id(), PageId::PlotDiplexer);
  }
  void WithPart(std::function<void()> act) { With("cmdTunePart", std::move(act)); }
  void WithMarkers(std::function<void()> act) { With("cmdMarkers", std::move(act)); }

  void Spins(const char* name, int direction) { Step(session, Get<Spin>(name), direction); }
  std::string Caption(const char* name) { return Get<Label>(name).caption; }
  bool Shown(const char* name) { return Get<Control>(name).Shown(); }
  Diplexer& Dip() { return session.diplexer; }

  // The plot, also while a tool stands beside it.
  Picture& Plot() {
    return dynamic_cast<PictureBox&>(*session.pages.Find(PageId::PlotDiplexer)->Find("picPlot")).picture;
  }
  std::vector<Point> Curve(Color color) {
    for (const PictureOp& operation : Plot().Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color == color && line->points.size() > 100) return line->points;
    }
    return {};
  }
  std::vector<std::string> TextsOf(const Picture& picture) {
    std::vector<std::string> texts;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }
  bool PlotSays(const std::string& words) {
    const auto texts = TextsOf(Plot());
    return std::find(texts.begin(), texts.end(), words) != texts.end();
  }
  std::vector<std::string> PartLines() { return TextsOf(Get<PictureBox>("picPart").picture); }
};

TEST_F(DiplexerPlotPage, ShowsTheArmsAndTheReturnUnderTheSummary) {
  EXPECT_TRUE(PlotSays("Crossover=1M   Passband ripple=0.1   Order=3   System Z=50"));
  EXPECT_TRUE(PlotSays("Lowpass"));
  EXPECT_TRUE(PlotSays("Highpass"));
  EXPECT_TRUE(PlotSays("Return"));
  for (const Color color : {colorBlue, colorRed, returnGreen}) EXPECT_FALSE(Curve(color).empty());
  EXPECT_EQ(Dip().DipZsmall, 0.05F);
  EXPECT_NEAR(Dip().DipLowElem[1], 12.0423e-6, 1e-11);
}

TEST_F(DiplexerPlotPage, ShowsTheEntriesOfItsMode) {
  EXPECT_EQ(Caption("lblOrderInput"), "Order: ");
  EXPECT_EQ(Caption("lblCrossoverInput"), "Crossover: ");
  EXPECT_EQ(Caption("lblApassInput"), "Apass: ");
  EXPECT_EQ(Caption("lblLowerEdgeEnter"), "Lower edge: ");
  EXPECT_EQ(Caption("lblUpperEdgeEnter"), "Upper Edge: ");
  for (const char* name : {"lblCrossoverInput", "UpDown2"}) EXPECT_TRUE(Shown(name)) << name;
  for (const char* name : {"lblLowerEdgeEnter", "UpDown4", "lblUpperEdgeEnter", "UpDown5"}) {
    EXPECT_FALSE(Shown(name)) << name;
  }
  OpenBands();
  for (const char* name : {"lblCrossoverInput", "UpDown2"}) EXPECT_FALSE(Shown(name)) << name;
  for (const char* name : {"lblLowerEdgeEnter", "UpDown4", "lblUpperEdgeEnter", "UpDown5"}) {
    EXPECT_TRUE(Shown(name)) << name;
  }
  EXPECT_TRUE(PlotSays("Lower edge=9.5M   Upper edge=10.5M   Passband ripple=0.1   Order=2   System Z=50"));
  EXPECT_EQ(Caption("lblLowerEdge"), "9.5MHz");
  EXPECT_EQ(Caption("lblUpperEdge"), "10.5MHz");
}

TEST_F(DiplexerPlotPage, TheOrderStopsAtTenAndAtOne) {
  for (int i = 0; i < 9; ++i) Spins("UpDown1", +1);
  EXPECT_EQ(Dip().DipOrder, 10);
  EXPECT_EQ(Caption("lblOrder"), "10");
  for (int i = 0; i < 12; ++i) Spins("UpDown1", -1);
  EXPECT_EQ(Dip().DipOrder, 1);
  EXPECT_EQ(Caption("lblOrder"), "1");
  // One inductor on one side, one capacitor on the other.
  EXPECT_GT(Dip().DipLowElem[1], 0);
  EXPECT_EQ(Dip().DipLowElem[2], 0);
}

TEST_F(DiplexerPlotPage, TheOrderTakesDigits) {
  SetNumber(session, Get<Spin>("UpDown1"), 7);
  EXPECT_EQ(Dip().DipOrder, 7);
  SetNumber(session, Get<Spin>("UpDown1"), 11);
  EXPECT_EQ(Dip().DipOrder, 10);
  SetNumber(session, Get<Spin>("UpDown1"), 0);
  EXPECT_EQ(Dip().DipOrder, 1);
}

TEST_F(DiplexerPlotPage, StepsMoveTheCurves) {
  const auto low = Curve(colorBlue);
  Spins("UpDown2", +1);
  EXPECT_EQ(Dip().DipCrossover, 1.01e6F);
  EXPECT_EQ(Caption("lblCrossover"), "1.01MHz");
  EXPECT_TRUE(PlotSays("Crossover=1.01M   Passband ripple=0.1   Order=3   System Z=50"));
  EXPECT_NE(Curve(colorBlue), low);
  Spins("UpDown2", -1);
  EXPECT_EQ(Curve(colorBlue), low);
  Spins("UpDown3", +1);
  EXPECT_FLOAT_EQ(Dip().DipRipple, 0.11F);
  EXPECT_EQ(Caption("lblApass"), "0.11dB");
  EXPECT_NE(Curve(colorBlue), low);
}

TEST_F(DiplexerPlotPage, StepsOfTheBandMoveItsEdges) {
  OpenBands();
  const auto pass = Curve(colorBlue);
  Spins("UpDown4", +1);
  EXPECT_FLOAT_EQ(Dip().DipFlower, 9.595e6F);
  EXPECT_NE(Curve(colorBlue), pass);
  Spins("UpDown5", -1);
  EXPECT_FLOAT_EQ(Dip().DipFupper, 10.5e6F / 1.01F);
  for (int i = 0; i < 40; ++i) Spins("UpDown4", +1);
  EXPECT_LT(Dip().DipFlower, Dip().DipFupper);
  EXPECT_GE(Dip().DipFlower, 0.99F * Dip().DipFupper);
  const f32 upper = Dip().DipFupper;
  Spins("UpDown5", -1);
  EXPECT_EQ(Dip().DipFupper, upper);
}

TEST_F(DiplexerPlotPage, TunedPartsStayUntilAnEntryIsStepped) {
  const f32 designed = Dip().DipLowElem[1];
  WithPart([&] { Spins("UpDown1", +1); });
  EXPECT_FLOAT_EQ(Dip().DipLowElem[1], designed * 1.01F);
  const auto tuned = Curve(colorBlue);
  Open();  // drawn anew
  EXPECT_FLOAT_EQ(Dip().DipLowElem[1], designed * 1.01F);
  EXPECT_EQ(Curve(colorBlue), tuned);
  for (int i = 0; i < 10; ++i) Spins("UpDown3", i < 5 ? -1 : +1);
  EXPECT_EQ(Dip().DipFrozen, 0);
  EXPECT_NEAR(Dip().DipLowElem[1], designed, 1e-6F * designed);
}

TEST_F(DiplexerPlotPage, AStepAtItsLimitKeepsTunedParts) {
  for (int i = 0; i < 7; ++i) Spins("UpDown1", +1);
  WithPart([&] { Spins("UpDown1", +1); });
  const f32 tuned = Dip().DipLowElem[1];
  Spins("UpDown1", +1);
  EXPECT_EQ(Dip().DipLowElem[1], tuned);
  EXPECT_EQ(Dip().DipFrozen, 1);
}

TEST_F(DiplexerPlotPage, All5RoundsTheCapacitorsAlone) {
  const auto before = Curve(colorRed);
  Press("cmd5Caps");
  EXPECT_EQ(Dip().DipLowElem[2], 4.7e-9F);
  EXPECT_EQ(Dip().DipHighElem[1], 2.2e-9F);
  EXPECT_EQ(Dip().DipHighElem[3], 4.3e-9F);
  EXPECT_NEAR(Dip().DipLowElem[1], 12.0423e-6, 1e-11);
  EXPECT_EQ(Dip().DipFrozen, 1);
  EXPECT_NE(Curve(colorRed), before);
}

// The design and its sweep are as they were, whatever is done to the diplexer.
TEST_F(DiplexerPlotPage, TheDesignIsNeverTouched) {
  session.record.NrYints = 0;  // which the plot fills in for itself
  session.record.LossBottom = 0;
  const DesignRecord record = session.record;
  const auto responses = std::make_unique<Responses>(session.responses);
  Open();
  EXPECT_FALSE(Curve(colorBlue).empty());
  Spins("UpDown1", +1);
  Spins("UpDown2", +1);
  Press("cmd5Caps");
  WithPart([&] {
    Press("cmdNext");
    Spins("UpDown1", -1);
  });
  WithMarkers([&] {
    Enter("Text0", "1M");
    Press("cmdShow");
  });
  EXPECT_TRUE(session.record == record);
  EXPECT_EQ(session.responses.RespTrans, responses->RespTrans);
  EXPECT_EQ(session.responses.RespReturn, responses->RespReturn);
  EXPECT_EQ(session.responses.MaxTrans, responses->MaxTrans);
  EXPECT_EQ(session.responses.TransPeak, responses->TransPeak);
  EXPECT_EQ(session.responses.Fq, responses->Fq);
}

TEST_F(DiplexerPlotPage, BeginsFromTheDesignWhereNoneWasSetUp) {
  session.diplexer = {};
  Open();
  EXPECT_EQ(Dip().DipMode, 1);
  EXPECT_EQ(Dip().DipCrossover, 1e6F);
  EXPECT_FALSE(Curve(colorBlue).empty());
}

TEST_F(DiplexerPlotPage, ASweepThatCannotBeSaysSo) {
  session.record.Fstop = session.record.Fstart;
  Open();
  EXPECT_TRUE(Curve(colorBlue).empty());
  EXPECT_FALSE(session.note.empty());
  EXPECT_TRUE(PlotSays(session.note));
  // The steps go on, and the mouse has nothing to read.
  Spins("UpDown1", +1);
  Mouse(session, Get<PictureBox>("picPlot"), MouseAct::Down, 6500, 4000, MouseButton::Left);
  EXPECT_TRUE(Get<PictureBox>("picPlot").mark.Empty());
}

TEST_F(DiplexerPlotPage, ASweepThatRunsBackwardsSaysSo) {
  session.record.Fstop = 1e4F;
  Open();
  EXPECT_EQ(session.note, SweepFault(session.sweep));
  EXPECT_FALSE(session.note.empty());
}

TEST_F(DiplexerPlotPage, ASweepBesideTheCrossoverSaysSo) {
  session.record.Fstart = 2e6F;
  Open();
  EXPECT_EQ(session.note, "The sweep does not hold the crossover");
  OpenBands();
  session.note.clear();
  session.record.Fstart = 10e6F;
  Open();
  EXPECT_EQ(session.note, "The sweep does not hold the band");
}

TEST_F(DiplexerPlotPage, TheMouseReadsTheCurves) {
  auto& plot = Get<PictureBox>("picPlot");
  Mouse(session, plot, MouseAct::Down, 6500, 4000, MouseButton::Left);
  const auto texts = TextsOf(plot.mark);
  EXPECT_NE(std::find(texts.begin(), texts.end(), "Highpass:"), texts.end());
  Mouse(session, plot, MouseAct::Up, 6500, 4000, MouseButton::Left);
  EXPECT_TRUE(plot.mark.Empty());
  Mouse(session, plot, MouseAct::Down, 6500, 4000, MouseButton::Right);
  EXPECT_TRUE(plot.mark.Empty());
  for (const f32 x : {2001.0F, 10999.0F}) Mouse(session, plot, MouseAct::Down, x, 4000, MouseButton::Left);
}

// The entries there are those that the plot has stepped.
TEST_F(DiplexerPlotPage, DesignLeadsBackToTheEntries) {
  Spins("UpDown1", +1);
  Spins("UpDown2", +1);
  Press("cmdExit");
  EXPECT_EQ(Top().Id(), PageId::Diplexer);
  EXPECT_EQ(session.pages.Find(PageId::PlotDiplexer), nullptr);
  EXPECT_EQ(Get<TextBox>("txtOrder").text, "4");
  EXPECT_EQ(Trimmed(Get<TextBox>("txtCrossover").text), "1.01M");
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::PlotDiplexer);
  PressCloseBox(session, Top());
  EXPECT_EQ(Top().Id(), PageId::Diplexer);
}

// Tuned parts survive the way there and back, and an accept designs anew.
TEST_F(DiplexerPlotPage, TunedPartsStayOnTheWayOverTheEntries) {
  const f32 designed = Dip().DipLowElem[1];
  WithPart([&] { Spins("UpDown1", +1); });
  Press("cmdExit");
  Press("cmdPlot");
  EXPECT_FLOAT_EQ(Dip().DipLowElem[1], designed * 1.01F);
  Press("cmdExit");
  Press("cmdAccept");
  EXPECT_FLOAT_EQ(Dip().DipLowElem[1], designed);
}

TEST_F(DiplexerPlotPage, ReturnLeadsToTheDesignPage) {
  Press("cmdReturn");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::PlotDiplexer), nullptr);
}

// ---- tuning of parts ------------------------------------------------------------------------------------------------

TEST_F(DiplexerPlotPage, TuningWalksThePartsOfBothArms) {
  WithPart([&] {
    EXPECT_EQ(Top().title, "Tune part");
    EXPECT_EQ(Caption("lblSelect"), "Select the part:");
    EXPECT_EQ(Caption("lblTune"), "Tune the part:");
    EXPECT_FALSE(Get<Button>("cmdPrevious").Active());
    using Row = std::array<std::string, 3>;
    std::vector<Row> rows;
    for (;;) {
      // Four digits: the last ones are those of 32 bits.
      rows.push_back({Caption("lblStage"), Caption("lblUpDown1"), PartLines().at(0).substr(0, 10)});
      EXPECT_FALSE(Shown("UpDown2"));
      if (!Get<Button>("cmdNext").Active()) break;
      Press("cmdNext");
    }
    EXPECT_EQ(rows, (std::vector<Row>{{"Stage (Lowpass): 1", "Stage (LP): 1", "L1:  12.04"},
                                      {"Stage (Lowpass): 2", "Stage (LP): 2", "C2:  4829."},
                                      {"Stage (Lowpass): 3", "Stage (LP): 3", "L3:  5.701"},
                                      {"Stage (Highpass): 1", "Stage (HP): 1", "C1:  2103."},
                                      {"Stage (Highpass): 2", "Stage (HP): 2", "L2:  5.245"},
                                      {"Stage (Highpass): 3", "Stage (HP): 3", "C3:  4443."}}));
    for (int i = 0; i < 5; ++i) Press("cmdPrevious");
    EXPECT_FALSE(Get<Button>("cmdPrevious").Active());
    EXPECT_EQ(Caption("lblStage"), "Stage (Lowpass): 1");
  });
}

TEST_F(DiplexerPlotPage, AStepMovesThePartInHandAndThePlotAtOnce) {
  WithPart([&] {
    for (int i = 0; i < 3; ++i) Press("cmdNext");
    const Diplexer before = Dip();
    const auto high = Curve(colorRed);
    Spins("UpDown1", -1);
    EXPECT_FLOAT_EQ(Dip().DipHighElem[1], before.DipHighElem[1] / 1.01F);
    EXPECT_EQ(Dip().DipHighElem[3], before.DipHighElem[3]);
    EXPECT_EQ(Dip().DipLowElem[1], before.DipLowElem[1]);
    EXPECT_EQ(Dip().DipFrozen, 1);
    EXPECT_EQ(PartLines().at(0), "C1:  2082.62pF");
    EXPECT_EQ(Caption("lblValue1"), "2082.62pF");
    EXPECT_NE(Curve(colorRed), high);
  });
}

TEST_F(DiplexerPlotPage, APairIsTunedByItsInductorAndItsCapacitor) {
  OpenBands();
  WithPart([&] {
    EXPECT_EQ(Caption("lblSelect"), "Select the pair:");
    EXPECT_EQ(Caption("lblTune"), "Tune the pair:");
    EXPECT_EQ(Caption("lblStage"), "Stage (Bandpass): 1");
    EXPECT_EQ(Caption("lblUpDown1"), "Stage (BP): 1");
    EXPECT_EQ(Caption("lblUpDown2"), "Stage (BP): 1");
    EXPECT_EQ(PartLines(), (std::vector<std::string>{"L1:  11.1797uH", "C1:  22.7142pF"}));
    const Diplexer before = Dip();
    Spins("UpDown1", +1);
    EXPECT_FLOAT_EQ(Dip().DipBpL[1], before.DipBpL[1] * 1.01F);
    EXPECT_EQ(Dip().DipBpC[1], before.DipBpC[1]);
    Spins("UpDown2", -1);
    EXPECT_FLOAT_EQ(Dip().DipBpC[1], before.DipBpC[1] / 1.01F);
    for (int i = 0; i < 3; ++i) Press("cmdNext");
    EXPECT_EQ(Caption("lblStage"), "Stage (Bandstop): 2");
    EXPECT_EQ(Caption("lblUpDown2"), "Stage (BS): 2");
    EXPECT_FALSE(Get<Button>("cmdNext").Active());
    Spins("UpDown2", +1);
    EXPECT_FLOAT_EQ(Dip().DipBsC[2], before.DipBsC[2] * 1.01F);
    EXPECT_EQ(Dip().DipBsL[2], before.DipBsL[2]);
  });
}

TEST_F(DiplexerPlotPage, TheWheelTurnsWhatWasStepped) {
  OpenBands();
  WithPart([&] {
    EXPECT_EQ(Top().turned, &Get<Spin>("UpDown1"));
    Spins("UpDown2", +1);
    EXPECT_EQ(Top().turned, &Get<Spin>("UpDown2"));
    Press("cmdNext");
    EXPECT_EQ(Top().turned, &Get<Spin>("UpDown1"));
  });
}

// Series and shunt forms of the four arms.
TEST_F(DiplexerPlotPage, EachFormOfPartHasItsSymbol) {
  std::vector<std::string> drawings;
  const auto collect = [&] {
    for (int part = 1; part <= 4; ++part) {
      Picture symbol;
      for (const PictureOp& operation : Get<PictureBox>("picPart").picture.Operations()) {
        if (!std::holds_alternative<TextOp>(operation)) DrawOperation(operation, symbol);
      }
      drawings.push_back(symbol.Dump());
      if (part < 4) Press("cmdNext");
    }
  };
  Spins("UpDown1", -1);  // of order 2
  WithPart(collect);
  OpenBands();
  WithPart(collect);
  ASSERT_EQ(drawings.size(), 8U);
  std::sort(drawings.begin(), drawings.end());
  EXPECT_EQ(std::unique(drawings.begin(), drawings.end()), drawings.end());
}

// ---- markers --------------------------------------------------------------------------------------------------------

TEST_F(DiplexerPlotPage, ShowDrawsTheMarkersAndClosesThePage) {
  WithMarkers([&] {
    EXPECT_EQ(Caption("lblHeading"), "Enter marker frequencies in Hz as desired.");
    Enter("Text0", "1M");
    Enter("Text8", "2.5e6");
    Enter("Text3", "-5");
    Press("cmdShow");
  });
  EXPECT_EQ(Dip().DipMarkersOn, 1);
  EXPECT_EQ(Dip().DipMarker[0], 1e6F);
  EXPECT_EQ(Dip().DipMarker[8], 2.5e6F);
  EXPECT_EQ(Dip().DipMarker[3], 0);
  EXPECT_TRUE(PlotSays("Highpass:"));
  EXPECT_TRUE(PlotSays("9"));
  // They follow the steps.
  Spins("UpDown1", +1);
  EXPECT_TRUE(PlotSays("Highpass:"));
}

TEST_F(DiplexerPlotPage, HideKeepsTheFrequencies) {
  WithMarkers([&] {
    Enter("Text1", "1M");
    Press("cmdShow");
  });
  WithMarkers([&] {
    EXPECT_EQ(Trimmed(Get<TextBox>("Text1").text), "1M");
    EXPECT_EQ(Get<TextBox>("Text0").text, "");
    Enter("Text1", "3M");  // not asked for
    Press("cmdHide");
  });
  EXPECT_EQ(Dip().DipMarkersOn, 0);
  EXPECT_EQ(Dip().DipMarker[1], 1e6F);
  EXPECT_FALSE(PlotSays("Highpass:"));
}

TEST_F(DiplexerPlotPage, LeavingTheMarkersChangesNothing) {
  WithMarkers([&] { Enter("Text1", "1M"); });
  EXPECT_EQ(Dip().DipMarkersOn, 0);
  EXPECT_EQ(Dip().DipMarker[1], 0);
}

TEST_F(DiplexerPlotPage, ShowWithoutAFrequencyIsOnAndEmpty) {
  WithMarkers([&] { Press("cmdShow"); });
  EXPECT_EQ(Dip().DipMarkersOn, 1);
  EXPECT_FALSE(PlotSays("Highpass:"));
}

}  // namespace
}  // namespace quilm
