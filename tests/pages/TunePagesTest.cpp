// Tuning beside the plot.
#include <algorithm>
#include <cmath>

#include "core/ElementCatalogue.h"
#include "core/Responses.h"
#include "desk/StartUp.h"
#include "display/TraceCycle.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"

namespace quilm {
namespace {

// A third-order lowpass C, L, C on the plot; a dialog of tuning beside it.
class Tuning : public PageBench {
 protected:
  Tuning() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
  }

  // Opens a dialog by its button, does `act` there and ends the tuning.
  void With(const char* button, std::function<void()> act) {
    platform.modalActs.push_back([this, act = std::move(act)](Page& dialog) {
      act();
      if (dialog.IsOpen()) Press("cmdExit");
    });
    Press(button);
    EXPECT_EQ(Top().Id(), PageId::Plotted);
  }

  void Spins(const char* name, int direction, int times = 1) {
    for (int i = 0; i < times; ++i) Step(session, Get<Spin>(name), direction);
  }

  DesignRecord& Record() { return session.record; }
  std::string Box() { return Get<TextBox>("txtPercentageValue").text; }

  // A network by hand of one stage of this type.
  void MakeNetworkOf(i16 type) {
    Record().Stages = 1;
    Record().stage[1] = {};
    Record().stage[1].ElementType = type;
    for (const Slot& slot : SlotsOf(type)) slot.value(Record().stage[1]) = 8;
    Record().Family = familyManual;
    Record().NetworkEdited = 1;
    Press("cmd1");
  }

  // The curves over the plot, by the colour of each.
  std::vector<Color> Curves() {
    std::vector<Color> colors;
    for (const PictureOp& operation : session.plot.live.Present().kept) {
      if (const auto* line = std::get_if<PolylineOp>(&operation); line != nullptr && line->points.size() > 100) {
        colors.push_back(line->pen.color);
      }
    }
    return colors;
  }
};

class TunePart : public Tuning {
 protected:
  void Open(std::function<void()> act) { With("cmdTunePart", std::move(act)); }

  // The texts of the picture, with their colours.
  std::vector<std::pair<std::string, Color>> Texts() {
    std::vector<std::pair<std::string, Color>> texts;
    for (const PictureOp& operation : Get<PictureBox>("picPart").picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.emplace_back(text->text, text->color);
    }
    return texts;
  }

  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (const auto& [text, color] : Texts()) lines.push_back(text);
    return lines;
  }

  // The lines of every item from the present one to the last.
  std::vector<std::vector<std::string>> AllLines() {
    std::vector<std::vector<std::string>> all = {Lines()};
    while (Get<Button>("cmdForward").Active()) {
      Press("cmdForward");
      all.push_back(Lines());
    }
    return all;
  }
};

TEST_F(TunePart, WalksThePartsTheTerminationsAndBothQ) {
  Record().Qind[1] = 100;
  Record().Qcap[1] = 1000;
  Open([&] {
    EXPECT_EQ(Top().title, "Tune part");
    EXPECT_FALSE(Get<Button>("cmdReverse").Active());
    using Lines = std::vector<std::string>;
    EXPECT_EQ(AllLines(),
              (std::vector<Lines>{Lines{"Stage: 1", "C1:  3183.1pF"}, Lines{"Stage: 2", "L2:  15.9155uH"},
                                  Lines{"Stage: 3", "C3:  3183.1pF"}, Lines{"Input term:  50"},
                                  Lines{"Output term:  50"}, Lines{"Inductors Q:  100"}, Lines{"Capacitors Q:  1k"}}));
    EXPECT_TRUE(Get<Button>("cmdReverse").Active());
    Press("cmdReverse");
    EXPECT_TRUE(Get<Button>("cmdForward").Active());
    for (int i = 0; i < 5; ++i) Press("cmdReverse");
    EXPECT_FALSE(Get<Button>("cmdReverse").Active());
  });
}

TEST_F(TunePart, SaysEachValueInItsWords) {
  MakeNetworkOf(TransLine);
  Record().stage[1].TLval = {90, 1e6F, 75, 0, 0};
  Open([&] {
    EXPECT_EQ(Lines(), (std::vector<std::string>{"Stage: 1", "Length:  90deg @ 1M"}));
    EXPECT_EQ(Get<Label>("lblPercentage").caption, "Stepsize, deg: ");
    Press("cmdForward");
    EXPECT_EQ(Lines(), (std::vector<std::string>{"Stage: 1", "Impedance:  75"}));
    EXPECT_EQ(Get<Label>("lblPercentage").caption, "Stepsize, %: ");
  });
  MakeNetworkOf(Transformer);
  Open([&] { EXPECT_EQ(Lines()[1], "Turns ratio N:  8:1"); });
  MakeNetworkOf(CoupledInductors);
  Open([&] {
    EXPECT_EQ(Lines()[1], "Pri. L:  8H");
    Press("cmdForward");
    EXPECT_EQ(Lines()[1], "Sec. L:  8H");
    Press("cmdForward");
    EXPECT_EQ(Lines()[1], "Coupling K:  8");
  });
  MakeNetworkOf(SeriesRLC);
  Record().stage[1].Cval.value = 8e-12F;
  Open([&] {
    Press("cmdForward");
    Press("cmdForward");
    EXPECT_EQ(Lines(), (std::vector<std::string>{"Stage: 1", "L1:  8H", "C1:  8pF"}));
    Press("cmdForward");
    EXPECT_EQ(Lines()[1], "R1:  8");
  });
}

TEST_F(TunePart, ANegativeValueIsRed) {
  MakeNetworkOf(SeriesRLC);
  Record().stage[1].Lval.value = -1e-6F;
  Record().stage[1].Rval.value = -8;
  Open([&] {
    EXPECT_EQ(Texts()[0], std::pair(std::string("Stage: 1"), colorBlack));
    EXPECT_EQ(Texts()[1], std::pair(std::string("L1:  -1uH"), colorRed));
    Press("cmdForward");
    EXPECT_EQ(Texts()[1].second, colorBlack);
    Press("cmdForward");
    EXPECT_EQ(Texts()[1].second, colorRed);
    EXPECT_EQ(Texts()[2].second, colorBlack);
    Press("cmdForward");
    EXPECT_EQ(Texts()[1], std::pair(std::string("R1:  -8"), colorRed));
  });
}

// 15.91549 uH by 5 %; what the network is from then on is its own.
TEST_F(TunePart, AStepStoresAppliesSweepsAndDraws) {
  const f32 before = Record().stage[2].Lval.value;
  Open([&] {
    Press("cmdForward");
    Enter("txtPercentageValue", "5");
    EXPECT_EQ(Record().stage[2].Lval.tolerance, 0);
    const f32 end = session.responses.RespTrans[1000];
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[2].Lval.value, before * 1.05F);
    EXPECT_EQ(Record().stage[2].Lval.tolerance, 5);
    EXPECT_EQ(Record().Family, familyManual);
    EXPECT_EQ(Record().NetworkEdited, 1);
    EXPECT_EQ(Record().ResponsesValid, 1);
    EXPECT_LT(session.responses.RespTrans[1000], end);
    EXPECT_EQ(Lines()[1], "L2:  16.7113uH");
    EXPECT_EQ(Box(), "5");
    EXPECT_EQ(Curves(), std::vector<Color>{0x780000});
    Spins("UpDown1", -1);
    EXPECT_NEAR(Record().stage[2].Lval.value / before, 1, 2.4e-7);
    EXPECT_EQ(Curves(), (std::vector<Color>{0x780000, 0xA00000}));
  });
}

// The curve that a step adds is the one that a plot of the design drawn anew has.
TEST_F(TunePart, TheNewCurveIsThatOfTheNetwork) {
  Open([&] {
    Enter("txtPercentageValue", "20");
    Spins("UpDown1", +1);
    const auto& op = session.plot.live.Present().kept.back();
    const std::vector<Point> points = std::get<PolylineOp>(op).points;
    Press("cmdClear");
    EXPECT_TRUE(session.plot.live.Empty());
    const auto& drawn = session.plot.picture.Operations();
    EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [&points](const PictureOp& operation) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      return line != nullptr && line->points == points && line->pen.color == colorBlue;
    }));
  });
}

TEST_F(TunePart, ColoursComeInTurnAndTwoTracesHaveTwo) {
  Press("cmd2");
  Open([&] {
    Spins("UpDown1", +1, 9);
    std::vector<Color> expected;
    TraceCycle cycle{TrialColors()};
    for (int i = 0; i < 9; ++i) {
      const TraceColors& colors = cycle.Next();
      expected.insert(expected.end(), {colors.TraceColor1, colors.TraceColor2});
    }
    EXPECT_EQ(Curves(), expected);
  });
  // What is drawn afterwards is in the first colours again.
  EXPECT_EQ(session.plot.colors.TraceColor1, colorBlue);
}

TEST_F(TunePart, StepsOnEveryPlot) {
  for (int number = 1; number <= 12; ++number) {
    Press("cmd" + std::to_string(number));
    Open([&] {
      Enter("txtPercentageValue", "5");
      Spins("UpDown1", +1);
      EXPECT_FALSE(session.plot.live.Empty()) << number;
    });
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TunePart, TheCurvesStayAfterTheDialogUntilAnotherPlot) {
  Open([&] { Spins("UpDown1", +1, 3); });
  EXPECT_EQ(Curves().size(), 3U);
  Press("cmd2");
  EXPECT_TRUE(Curves().empty());
}

TEST_F(TunePart, TheStepIsHeldAndTheBoxShowsIt) {
  const f32 before = Record().stage[1].Cval.value;
  Open([&] {
    EXPECT_EQ(Box(), "0");
    Spins("UpDown1", +1);
    EXPECT_EQ(Box(), "0.01");
    EXPECT_EQ(Record().stage[1].Cval.value, before * 1.0001F);
    EXPECT_EQ(Record().stage[1].Cval.tolerance, 0.01F);
    Record().stage[1].Cval.value = before;
    Enter("txtPercentageValue", "250");
    Spins("UpDown1", +1);
    EXPECT_EQ(Box(), "100");
    EXPECT_EQ(Record().stage[1].Cval.value, 2 * before);
    Spins("UpDown1", -1);
    EXPECT_EQ(Record().stage[1].Cval.value, before);
    Enter("txtPercentageValue", "-5");
    Spins("UpDown1", +1);
    EXPECT_EQ(Box(), "0.01");
  });
}

TEST_F(TunePart, PassingAnItemStoresItsStep) {
  Open([&] {
    Enter("txtPercentageValue", "7");
    Press("cmdForward");
    EXPECT_EQ(Record().stage[1].Cval.tolerance, 7);
    EXPECT_EQ(Box(), "0");
    Press("cmdReverse");
    EXPECT_EQ(Record().stage[2].Lval.tolerance, 0.01F);
    EXPECT_EQ(Box(), "7");
  });
  EXPECT_EQ(Record().Family, familyButterworth);
}

TEST_F(TunePart, AStepThatWasOnlyLookedAtKeepsItsEveryDigit) {
  Record().stage[1].Cval.tolerance = 33.3333359F;
  Open([&] { Press("cmdForward"); });
  EXPECT_EQ(Record().stage[1].Cval.tolerance, 33.3333359F);
}

class TunePair : public TunePart {
 protected:
  TunePair() {
    MakeNetworkOf(ShuntPLC);
    Record().stage[1].Lval = {1e-6F, 3};
    Record().stage[1].Cval = {1e-9F, 4};
  }
  void OpenPair(const std::function<void()>& act) {
    Open([&] {
      Press("cmdForward");
      Press("cmdForward");
      act();
    });
  }
};

TEST_F(TunePair, AnUnchangedBoxStoresNothing) {
  OpenPair([&] {
    EXPECT_EQ(Box(), "7");
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[1].Lval, (PartValue{1e-6F * 1.07F, 3}));
    EXPECT_EQ(Record().stage[1].Cval.tolerance, 4);
    Press("cmdForward");
    Press("cmdReverse");
    EXPECT_EQ(Box(), "7");
  });
  EXPECT_EQ(Record().stage[1].Lval.tolerance, 3);
  EXPECT_EQ(Record().stage[1].Cval.tolerance, 4);
}

// L x 1.1 and C / 1.1: the resonance stays.
TEST_F(TunePair, WhatIsTypedMovesBothAndReadsBack) {
  OpenPair([&] {
    Enter("txtPercentageValue", "10");
    Spins("UpDown1", +1);
    EXPECT_EQ(Box(), "10");
    EXPECT_NEAR(Record().stage[1].Lval.value, 1.1e-6, 1e-12);
    EXPECT_NEAR(Record().stage[1].Cval.value, 1e-9 / 1.1, 1e-15);
    Press("cmdForward");
    Press("cmdReverse");
    EXPECT_EQ(Box(), "10");
  });
}

TEST_F(TunePair, AStepOfZeroMovesByTheLeast) {
  Record().stage[1].Lval.tolerance = Record().stage[1].Cval.tolerance = 0;
  Open([&] {
    Press("cmdForward");
    Press("cmdForward");
    Record().stage[1].Lval.tolerance = Record().stage[1].Cval.tolerance = 0;
    Press("cmdReverse");
    Press("cmdForward");
    EXPECT_EQ(Box(), "0.01");
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[1].Lval.value, 1e-6F * 1.0001F);
  });
}

TEST_F(TunePart, ALineStepsByDegrees) {
  MakeNetworkOf(ShuntOpenStub);
  Record().stage[1].TLval = {90, 1e6F, 50, 5, 0};
  Open([&] {
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[1].TLval.degrees, 95);
    Spins("UpDown1", -1, 2);
    EXPECT_EQ(Record().stage[1].TLval.degrees, 85);
    Enter("txtPercentageValue", "100");
    Spins("UpDown1", -1);
    EXPECT_EQ(Texts()[1], std::pair(std::string("Length:  -15deg @ 1M"), colorRed));
  });
}

TEST_F(TunePart, ACouplingTakesTheStepOfTheBoxElseOne) {
  MakeNetworkOf(CoupledInductors);
  Open([&] {
    Enter("txtPercentageValue", "2");
    Press("cmdForward");
    Enter("txtPercentageValue", "4");
    Press("cmdForward");
    EXPECT_EQ(Box(), "4");
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[1].CoupledVal.kTolerance, 4);
  });
}

// The box of the last visit said 0; with no other number a coupling has 1.
TEST_F(TunePart, TheLastTextOutlivesTheDialog) {
  Open([&] { Enter("txtPercentageValue", "6"); });
  EXPECT_EQ(session.stepTexts.part, "6");
  EXPECT_EQ(session.stepTexts.width, "1");
}

TEST_F(TunePart, TerminationsAndQHaveTheirSteps) {
  Record().Qind[1] = 100;
  Open([&] {
    for (int i = 0; i < 3; ++i) Press("cmdForward");
    Enter("txtPercentageValue", "10");
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().Rsource[1], 55);
    EXPECT_EQ(Record().Rsource[2], 10);
    Press("cmdForward");
    Press("cmdForward");
    Enter("txtPercentageValue", "100");
    Spins("UpDown1", -1);
    EXPECT_EQ(Record().Qind[1], 50);
  });
  Press("cmdAnalysis");
  EXPECT_EQ(Get<TextBox>("txtQinductor").text, "50");
}

TEST_F(TunePart, OpeningClearsThePlacesBehindTheList) {
  Record().stage[4].Lval.value = 1;
  Open([] {});
  EXPECT_EQ(Record().stage[4].Lval.value, 0);
  EXPECT_EQ(Record().stage[4].XfmrVal.tolerance, 2);
  EXPECT_FALSE(CanUndo(session) && session.history.UndoText() == "Tune part");
}

TEST_F(TunePart, SwitchesTuneWidthOffUntilThePageIsLoadedAgain) {
  Open([] {});
  EXPECT_TRUE(Get<Button>("cmdTuneWidth").Active());
  Open([&] { Spins("UpDown1", +1); });
  EXPECT_FALSE(Get<Button>("cmdTuneWidth").Active());
  Press("cmd2");
  EXPECT_FALSE(Get<Button>("cmdTuneWidth").Active());
  session.pages.ShowPage(PageId::Plotted);
  EXPECT_TRUE(Get<Button>("cmdTuneWidth").Active());
}

TEST_F(TunePart, TheRippleButtonGoesWithTheFamily) {
  Record().Family = familyChebyshev;
  Record().Apass = 0.1F;
  Press("cmd1");
  EXPECT_TRUE(Get<Button>("cmdTuneApass").visible);
  Open([&] { Spins("UpDown1", +1); });
  EXPECT_FALSE(Get<Button>("cmdTuneApass").visible);
}

TEST_F(TunePart, AValueAtTheEndOfNumbersStaysAndIsTold) {
  MakeNetworkOf(SeriesL);
  Record().stage[1].Lval = {3e38F, 100};
  Open([&] {
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[1].Lval.value, 3e38F);
    EXPECT_EQ(session.note, "No further step this way: Overflow");
    EXPECT_TRUE(Curves().empty());
  });
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TunePart, TheCloseBoxEndsIt) {
  Open([&] {
    Enter("txtPercentageValue", "9");
    PressCloseBox(session, Top());
  });
  EXPECT_FALSE(session.ended);
  EXPECT_EQ(session.stepTexts.part, "9");
}

TEST_F(TunePart, ThePlotIsReadWithTheMouseMeanwhile) {
  Open([&] {
    auto& plot = dynamic_cast<PictureBox&>(*session.pages.Beside()->Find("picPlot"));
    Mouse(session, plot, MouseAct::Down, 6500, 4000, MouseButton::Left);
    EXPECT_FALSE(plot.mark.Empty());
    Mouse(session, plot, MouseAct::Up, 6500, 4000, MouseButton::Left);
    EXPECT_THROW(Click(session, *session.pages.Beside()->Find("cmd2")), ActRefused);
  });
}

// The steps of one part in a row are one act, those of the next another one.
TEST_F(TunePart, UndoTakesThePartsBackOneByOne) {
  const DesignRecord before = Record();
  Open([&] {
    Enter("txtPercentageValue", "5");
    Spins("UpDown1", +1, 4);
    const DesignRecord first = Record();
    EXPECT_EQ(session.history.UndoText(), "Tune C1");
    Press("cmdForward");
    Enter("txtPercentageValue", "3");
    Spins("UpDown1", -1, 2);
    EXPECT_EQ(session.history.UndoText(), "Tune L2");
    Undo(session);
    EXPECT_EQ(Record().stage[2].Lval.value, first.stage[2].Lval.value);
    EXPECT_EQ(Record().stage[1].Cval.value, first.stage[1].Cval.value);
    EXPECT_EQ(Lines()[0], "Stage: 2");
    EXPECT_TRUE(Curves().empty());
    Undo(session);
    EXPECT_EQ(Record().stage[1].Cval.value, before.stage[1].Cval.value);
    EXPECT_EQ(Record().Family, familyButterworth);
    EXPECT_TRUE(dynamic_cast<Button&>(*session.pages.Beside()->Find("cmdTuneWidth")).enabled);
    EXPECT_FALSE(CanUndo(session));
    Redo(session);
    EXPECT_EQ(Record().stage[1].Cval.value, first.stage[1].Cval.value);
  });
  EXPECT_EQ(Record().Family, familyManual);
  Undo(session);
  EXPECT_EQ(Record().Family, familyButterworth);
}

// What is kept of the curves is bounded, cleared or not.
TEST_F(TunePart, TheSheetDoesNotGrowForEver) {
  Record().NrIntervals = 2049;
  Press("cmd2");
  Open([&] {
    const std::size_t operations = session.plot.picture.Operations().size();
    Enter("txtPercentageValue", "1");
    constexpr int steps = 1500;
    for (int i = 0; i < steps; ++i) Spins("UpDown1", i % 2 == 0 ? +1 : -1);
    EXPECT_EQ(session.plot.picture.Operations().size(), operations);
    std::size_t points = 0;
    for (const PictureOp& operation : session.plot.live.Present().kept) {
      if (const auto* line = std::get_if<PolylineOp>(&operation)) points += line->points.size();
    }
    EXPECT_LE(points, LiveLayer::usualMostPoints);
    EXPECT_GT(session.plot.live.Present().dropped, 0U);
    Press("cmdClear");
    EXPECT_EQ(session.plot.picture.Operations().size(), operations);
    EXPECT_TRUE(session.plot.live.Empty());
  });
}

// The end of the sweep, above ten times the cutoff, may not come above -100 dB; a third-order lowpass is at -60 there.
TEST_F(TunePart, TheErrorOfTheLimitsFollows) {
  Open([&] { EXPECT_FALSE(Get<Label>("lblError").Shown()); });
  DesignRecord& record = Record();
  record.LimitCount[1] = 1;
  record.LimitShape[1][1] = 2;
  record.LimitStart[1][1] = record.Fstop * 0.999F;
  record.LimitStop[1][1] = 1e10F;
  record.LimitTop[1][1] = 0;
  record.LimitBottom[1][1] = -100;
  const auto shown = [this] { return std::stod(Get<Label>("lblError").caption.substr(7)); };
  const auto excess = [this] { return 100 + session.responses.RespTrans[static_cast<int>(Record().NrIntervals)]; };
  Open([&] {
    EXPECT_TRUE(Get<Label>("lblError").Shown());
    EXPECT_NEAR(shown(), excess(), 0.01);
    Enter("txtPercentageValue", "100");
    Spins("UpDown1", +1);
    const double lower = excess();
    EXPECT_NEAR(lower, 100 - 60 - 6, 1);
    EXPECT_NEAR(shown(), lower, 0.01);
    Undo(session);
    EXPECT_NEAR(shown(), lower + 6, 0.1);
  });
}

class TuneWidthCenter : public Tuning {
 protected:
  void Open(std::function<void()> act) { With("cmdTuneWidth", std::move(act)); }
  bool Shows(const char* name) { return Get<Control>(name).Shown(); }

  void MakeBandpass() {
    Press("cmdDesign");
    Press("optShuntInGeoSymm");
    Enter("txtCenterFrequency", "10M");
    Press("cmdPlot");
  }
};

TEST_F(TuneWidthCenter, ALowpassHasAWidthAlone) {
  Open([&] {
    EXPECT_EQ(Top().title, "Tune width/center");
    EXPECT_EQ(Get<Label>("lblTuneWidth").caption, "Tune width:");
    EXPECT_TRUE(Shows("UpDown1"));
    EXPECT_FALSE(Shows("UpDown2"));
    EXPECT_FALSE(Shows("lblTuneCenter"));
    EXPECT_EQ(Get<Label>("lblShowWidth").caption, "Width: 1M");
    EXPECT_FALSE(Shows("lblShowCenter"));
    EXPECT_FALSE(Shows("lblNegativeValue"));
    EXPECT_EQ(Box(), "1");
  });
}

// C = 1 / (2 Pi 1.01e6 50).
TEST_F(TuneWidthCenter, AStepMakesTheNetworkOfTheNewWidth) {
  Open([&] {
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().Width, 1.01e6F);
    EXPECT_NEAR(Record().stage[1].Cval.value, 1 / (2 * Pi * 1.01e6 * 50), 1e-15);
    EXPECT_EQ(Record().Family, familyButterworth);
    EXPECT_EQ(Record().NetworkEdited, 0);
    EXPECT_EQ(Record().ResponsesValid, 1);
    EXPECT_EQ(Get<Label>("lblShowWidth").caption, "Width: 1.01M");
    Spins("UpDown1", -1, 2);
    EXPECT_NEAR(Record().Width, 1e6 / 1.01, 1);
    EXPECT_EQ(Curves(), (std::vector<Color>{0xFF0000, 0xFF3300, 0xFF6600}));
  });
  Press("cmdDesign");
  EXPECT_EQ(Get<TextBox>("txtBandwidth").text, "990.099k");
}

TEST_F(TuneWidthCenter, TheSeventhCurveHasTheFirstColour) {
  Open([&] { Spins("UpDown1", +1, 7); });
  EXPECT_EQ(Curves()[5], Color{0});
  EXPECT_EQ(Curves()[6], Color{0xFF0000});
}

// 2 % of 1 MHz about 10 MHz.
TEST_F(TuneWidthCenter, ABandpassHasACenterToo) {
  MakeBandpass();
  Open([&] {
    EXPECT_EQ(Get<Label>("lblTuneCenter").caption, "Tune center:");
    EXPECT_EQ(Get<Label>("lblShowCenter").caption, "Center: 10M");
    Enter("txtPercentageValue", "2");
    Spins("UpDown2", +1);
    EXPECT_NEAR(Record().Fcenter, 10.02e6, 2);
    EXPECT_EQ(Get<Label>("lblShowCenter").caption, "Center: 10.02M");
    EXPECT_EQ(session.history.UndoText(), "Tune center");
    Spins("UpDown1", +1);
    EXPECT_EQ(session.history.UndoText(), "Tune width");
  });
}

TEST_F(TuneWidthCenter, TheStepOutlivesTheDialogAndIsHeld) {
  Open([&] { Enter("txtPercentageValue", "250"); });
  Open([&] {
    EXPECT_EQ(Box(), "100");
    Enter("txtPercentageValue", "0");
    Spins("UpDown1", +1);
    EXPECT_EQ(Box(), "0.01");
    EXPECT_NEAR(Record().Width, 1.0001e6, 1);
  });
}

TEST_F(TuneWidthCenter, ANetworkByHandHasBothAndIsScaled) {
  Record().NetworkEdited = 1;
  const f32 L = Record().stage[2].Lval.value;
  Open([&] {
    EXPECT_EQ(Record().Family, familyManual);
    EXPECT_TRUE(Shows("UpDown1"));
    EXPECT_TRUE(Shows("UpDown2"));
    Enter("txtPercentageValue", "100");
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().stage[2].Lval.value, 2 * L);
    EXPECT_EQ(Record().Width, 1e6F);
    EXPECT_EQ(Get<Label>("lblShowWidth").caption, "Width: 1M");
    const DesignRecord before = Record();
    Spins("UpDown2", +1);
    EXPECT_EQ(Record(), before);
    EXPECT_EQ(Curves().size(), 1U);
  });
}

TEST_F(TuneWidthCenter, OfANetworkByHandTheCenterMovesAlone) {
  MakeBandpass();
  Record().NetworkEdited = 1;
  const Network before = Record();
  Open([&] {
    Spins("UpDown2", +1);
    EXPECT_NEAR(Record().Fcenter, 10.01e6, 2);
    EXPECT_EQ(static_cast<const Network&>(Record()), before);
    EXPECT_EQ(Curves().size(), 1U);
  });
}

TEST_F(TuneWidthCenter, NegativeValuesAreTold) {
  Record().NetworkEdited = 1;
  Record().stage[2].Lval.value = -1e-6F;
  Open([&] {
    Spins("UpDown1", +1);
    EXPECT_TRUE(Shows("lblNegativeValue"));
    Record().stage[2].Lval.value = 1e-6F;
    Spins("UpDown1", +1);
    EXPECT_FALSE(Shows("lblNegativeValue"));
  });
}

TEST_F(TuneWidthCenter, UndoBringsWidthAndReadoutBack) {
  Open([&] {
    Spins("UpDown1", +1, 5);
    Undo(session);
    EXPECT_EQ(Record().Width, 1e6F);
    EXPECT_EQ(Get<Label>("lblShowWidth").caption, "Width: 1M");
  });
}

class TuneRipple : public Tuning {
 protected:
  TuneRipple() {
    Press("cmdDesign");
    Press("optChebycheff");
    Enter("txtPassbandRipple", ".1");
    Press("cmdPlot");
  }
  void Open(std::function<void()> act) { With("cmdTuneApass", std::move(act)); }
};

// Of order 3 at 0.2 dB the first value of the tables is 1.2275.
TEST_F(TuneRipple, AStepMakesTheDesignOfTheNewRipple) {
  Open([&] {
    EXPECT_EQ(Top().title, "Tune ripple");
    EXPECT_EQ(Get<Label>("lblShowRipple").caption, "Passband ripple: 0.1");
    Enter("txtPercentageValue", "100");
    Spins("UpDown1", +1);
    EXPECT_EQ(Record().Apass, 0.2F);
    EXPECT_EQ(Get<Label>("lblShowRipple").caption, "Passband ripple: 0.2");
    EXPECT_NEAR(Record().stage[1].Cval.value, 1.2275 / (2 * Pi * 1e6 * 50), 1e-12);
    EXPECT_EQ(Record().Family, familyChebyshev);
    EXPECT_EQ(Curves(), std::vector<Color>{0xFF0000});
    EXPECT_EQ(session.history.UndoText(), "Tune ripple");
  });
  Press("cmdDesign");
  EXPECT_EQ(Get<TextBox>("txtPassbandRipple").text, "0.2");
}

TEST_F(TuneRipple, EndsAtItsLimits) {
  Open([&] {
    Enter("txtPercentageValue", "100");
    Spins("UpDown1", +1, 10);
    EXPECT_EQ(Record().Apass, 10);
    EXPECT_EQ(Get<Label>("lblShowRipple").caption, "Passband ripple: 10");
    Spins("UpDown1", -1, 20);
    EXPECT_EQ(Record().Apass, 0.0001F);
  });
}

}  // namespace
}  // namespace quilm
