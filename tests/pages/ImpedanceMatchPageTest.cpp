// Impedance matching, from the Design page and back to it.

#include <optional>

#include "desk/StartUp.h"
#include "network/NetworkEdits.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"

namespace quilm {
namespace {

Stage Part(i16 type, f64 L, f64 C) {
  Stage stage;
  stage.ElementType = type;
  stage.Lval.value = static_cast<f32>(L);
  stage.Cval.value = static_cast<f32>(C);
  return stage;
}

const Stage tank = Part(ShuntPLC, 0.8e-6, 300e-12);
const Stage pair = Part(SeriesSLC, 0.8e-6, 300e-12);
const Stage coupling = Part(SeriesC, 0, 10e-12);

constexpr const char* inputRefusal =
    "We cannot apply impedance-transformation to\r\n"
    "the  INPUT  side of this network because it requires\r\n"
    "an L-C pair, either series or parallel-tuned.";
constexpr const char* outputRefusal =
    "We cannot apply impedance-transformation to\r\n"
    "the  OUTPUT  side of this network because it\r\n"
    "requires an L-C pair, either series or parallel-tuned.";

class ImpedanceMatchPage : public PageBench {
 protected:
  ImpedanceMatchPage() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
  }

  // A network by hand at 10 MHz between 500 ohms, and the page on it.
  void OpenOn(const std::vector<Stage>& stages, f32 source = 500, f32 load = 500) {
    SetBandpass(stages, source, load);
    OpenPage();
  }

  void OpenPage() {
    session.pages.ShowPage(PageId::Design);
    Press("Command7");
    ASSERT_EQ(Top().Id(), PageId::ImpedanceMatch);
  }

  void SetBandpass(const std::vector<Stage>& stages, f32 source = 500, f32 load = 500) {
    DesignRecord& record = session.record;
    record.Family = familyManual;
    record.NetworkEdited = 1;
    record.Topology = "C";
    record.Order = 3;
    record.Width = 1e6F;
    record.Fcenter = 1e7F;
    record.Stages = 0;
    record.Rsource[1] = record.Rstandard = source;
    record.Rload[1] = load;
    record.Fstart = 8e6F;
    record.Fstop = 12e6F;
    for (const Stage& stage : stages) AppendStage(record, stage);
  }

  // A Butterworth bandpass of coupled tanks, which stands by no hand.
  void OpenOnDesign() {
    Press("optButterworth");
    Press("optNodCapBandpass");
    Enter("txtBandwidth", "1M");
    Enter("txtCenterFrequency", "10M");
    Enter("txtInputTerm", "500");
    Press("Command7");
    ASSERT_EQ(Top().Id(), PageId::ImpedanceMatch);
  }

  std::vector<std::string> ShownChoices() {
    std::vector<std::string> names;
    for (const Control* control : Top().Controls()) {
      const bool choice = control->name.starts_with("cmdInput") || control->name.starts_with("cmdOutput");
      if (choice && control->Shown()) names.push_back(control->name);
    }
    return names;
  }

  void PreviewInput(const std::string& ohms) {
    Enter("txtNewInputTermValue", ohms);
    Press("cmdPreviewInputOptions");
  }
  void PreviewOutput(const std::string& ohms) {
    Enter("txtNewOutputTermValue", ohms);
    Press("cmdPreviewOutputOptions");
  }
  void KeepInput() {
    Press("cmdPreviewInputOptions");
    Press("cmdInputNone");
  }
  void KeepOutput() {
    Press("cmdPreviewOutputOptions");
    Press("cmdOutputNone");
  }

  std::vector<i16> Types() {
    std::vector<i16> types;
    for (int s = 1; s <= session.network.Stages; ++s) types.push_back(session.network.stage[s].ElementType);
    return types;
  }

  bool Shown(const std::string& name) { return Get<Control>(name).Shown(); }
  std::string CaptionOf(const std::string& name) { return Get<Control>(name).caption; }
  std::string Drawing() { return Get<PictureBox>("picMatch").picture.Dump(); }
  bool Drawn(const std::string& text) { return Drawing().find(text) != std::string::npos; }

  // The colour in which a text is drawn; nothing where it is not.
  std::optional<Color> ColorOf(const std::string& text) {
    for (const PictureOp& operation : Get<PictureBox>("picMatch").picture.Operations()) {
      const auto* printed = std::get_if<TextOp>(&operation);
      if (printed != nullptr && printed->text == text) return printed->color;
    }
    return std::nullopt;
  }
};

using Names = std::vector<std::string>;
using Codes = std::vector<i16>;

TEST_F(ImpedanceMatchPage, GoesThroughInputOutputAndBothEnds) {
  OpenOn({tank, coupling, tank});
  EXPECT_EQ(CaptionOf("fraInput"), "Input Termination Routine");
  EXPECT_TRUE(Shown("fraInput"));
  EXPECT_FALSE(Shown("fraOutput"));
  EXPECT_EQ(CaptionOf("lblCurrentInput"), "Current input termination:  ");
  EXPECT_EQ(CaptionOf("lblCurrentInputValue"), "500 ohms");
  EXPECT_EQ(Get<TextBox>("txtNewInputTermValue").text, "500");
  EXPECT_FALSE(Shown("cmdAccept"));
  PreviewInput("50");
  EXPECT_EQ(ShownChoices(), (Names{"cmdInputOne", "cmdInputTwo", "cmdInputThree", "cmdInputFour"}));
  Press("cmdInputOne");
  EXPECT_FALSE(Shown("fraInput"));
  EXPECT_TRUE(Shown("fraOutput"));
  EXPECT_FALSE(Shown("cmdAccept"));
  PreviewOutput("75");
  EXPECT_EQ(ShownChoices(), (Names{"cmdOutputOne", "cmdOutputTwo", "cmdOutputThree", "cmdOutputFour"}));
  Press("cmdOutputThree");
  EXPECT_EQ(CaptionOf("fraFinal"), "Final Design Preview");
  EXPECT_TRUE(Shown("fraFinal"));
  EXPECT_EQ(CaptionOf("lblOriginalInputValue"), "500 ohms");
  EXPECT_EQ(CaptionOf("lblNewInputValue"), "50 ohms");
  EXPECT_EQ(CaptionOf("lblOriginalOutputValue"), "500 ohms");
  EXPECT_EQ(CaptionOf("lblNewOutputValue"), "75 ohms");
  // Nothing has changed before it is accepted.
  EXPECT_EQ(Types(), (Codes{ShuntPLC, SeriesC, ShuntPLC}));
  EXPECT_EQ(session.network.Rsource[1], 500);
  Press("cmdAccept");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::ImpedanceMatch), nullptr);
  EXPECT_EQ(Types(), (Codes{SeriesC, ShuntPLC, SeriesC, ShuntPLC, SeriesL}));
  EXPECT_EQ(session.network.Rsource[1], 50);
  EXPECT_EQ(session.network.Rstandard, 50);
  EXPECT_EQ(session.network.Rload[1], 75);
  EXPECT_TRUE(platform.messages.empty());
}

// The figures were worked out by hand.
TEST_F(ImpedanceMatchPage, TheOptionsAreDrawnWithTheirValues) {
  OpenOn({tank, coupling, tank});
  PreviewInput("50");
  for (const char* text : {"106.103pF", "204.507pF", "948.683pF", "438.743pF", "2.38732uH", "395.493pF", "252.982nH",
                           "547.018nH", "Option 1", "Option 4"}) {
    EXPECT_TRUE(Drawn(text)) << text << "\n" << Drawing();
  }
  Press("cmdInputTwo");
  PreviewOutput("50");
  Press("cmdOutputOne");
  for (const char* text : {"948.683pF", "438.743pF", "106.103pF", "204.507pF", "Input", "Output"}) {
    EXPECT_TRUE(Drawn(text)) << text << "\n" << Drawing();
  }
}

TEST_F(ImpedanceMatchPage, AcceptMakesAMatchedNetworkByHandThatOneUndoTakesBack) {
  OpenOnDesign();
  const DesignRecord before = session.record;
  PreviewInput("50");
  Press("cmdInputOne");
  KeepOutput();
  Press("cmdAccept");
  EXPECT_EQ(session.record.Family, familyManual);
  EXPECT_EQ(session.record.NetworkEdited, 1);
  EXPECT_EQ(session.record.MatchAccepted, 1);
  EXPECT_EQ(session.record.ResponsesValid, 0);
  EXPECT_EQ(session.record.Topology, "C");
  EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  EXPECT_EQ(session.network.Stages, before.Stages + 1);
  ASSERT_TRUE(session.history.HasUndo());
  Undo(session);
  EXPECT_EQ(static_cast<const Network&>(session.record), static_cast<const Network&>(before));
  EXPECT_EQ(session.record.Family, familyButterworth);
  EXPECT_EQ(session.record.MatchAccepted, 0);
  Redo(session);
  EXPECT_EQ(session.record.MatchAccepted, 1);
}

TEST_F(ImpedanceMatchPage, TheStatusLineTellsWhatTheResponseHasBecome) {
  OpenOn({tank, coupling, tank});
  PreviewInput("50");
  Press("cmdInputThree");
  KeepOutput();
  Press("cmdAccept");
  EXPECT_TRUE(session.note.starts_with("response changed by up to ")) << session.note;
}

TEST_F(ImpedanceMatchPage, AcceptingBothEndsAsTheyAreMarksTheMatchAllTheSame) {
  OpenOnDesign();
  const Network before = session.network;
  KeepInput();
  KeepOutput();
  Press("cmdAccept");
  EXPECT_EQ(session.network, before);
  EXPECT_EQ(session.record.Family, familyManual);
  EXPECT_EQ(session.record.MatchAccepted, 1);
  EXPECT_EQ(session.note, "response kept within 0.0000 dB");
}

TEST_F(ImpedanceMatchPage, IgnoreAndTheCloseBoxLeaveEverythingAsItWas) {
  for (const bool closeBox : {false, true}) {
    SetBandpass({tank, coupling, tank});
    session.record.Family = familyButterworth;
    session.record.MatchAccepted = 1;
    session.record.NetworkEdited = 0;
    OpenPage();
    const DesignRecord before = session.record;
    PreviewInput("50");
    Press("cmdInputOne");
    PreviewOutput("50");
    Press("cmdOutputTwo");
    closeBox ? PressCloseBox(session, Top()) : Press("cmdIgnore");
    EXPECT_EQ(Top().Id(), PageId::Design);
    EXPECT_EQ(session.record, before);
  }
}

TEST_F(ImpedanceMatchPage, NewDesignBeginsAgain) {
  OpenOn({tank, coupling, tank});
  EXPECT_FALSE(Get<Button>("cmdRedesign").enabled);
  PreviewInput("50");
  Press("cmdInputOne");
  PreviewOutput("75");
  Press("cmdOutputThree");
  Press("cmdRedesign");
  EXPECT_TRUE(Shown("fraInput"));
  EXPECT_FALSE(Shown("fraOutput"));
  EXPECT_FALSE(Shown("fraFinal"));
  EXPECT_FALSE(Shown("cmdAccept"));
  EXPECT_EQ(Get<TextBox>("txtNewInputTermValue").text, "500");
  EXPECT_EQ(ShownChoices(), Names{});
  KeepInput();
  KeepOutput();
  Press("cmdAccept");
  EXPECT_EQ(Types(), (Codes{ShuntPLC, SeriesC, ShuntPLC}));
  EXPECT_EQ(session.network.Rsource[1], 500);
}

TEST_F(ImpedanceMatchPage, TheSameTerminationOffersNoChangeAlone) {
  OpenOn({tank, coupling, pair});
  Press("cmdPreviewInputOptions");
  EXPECT_EQ(ShownChoices(), Names{"cmdInputNone"});
  EXPECT_TRUE(Drawn("800nH")) << Drawing();
  Press("cmdInputNone");
  PreviewOutput("500.04");
  EXPECT_EQ(ShownChoices(), Names{"cmdOutputNone"});
  PreviewOutput("500.06");
  EXPECT_EQ(ShownChoices(), Names{"cmdOutputFive"});
}

// 1000/3 ohms show as fewer figures than they have.
TEST_F(ImpedanceMatchPage, TheTextThatThePageGaveStandsForTheExactValue) {
  const f32 exact = 1000.0F / 3;
  OpenOn({tank, coupling, tank}, exact);
  const std::string given = Get<TextBox>("txtNewInputTermValue").text;
  Press("cmdPreviewInputOptions");
  EXPECT_EQ(ShownChoices(), Names{"cmdInputNone"});
  Enter("txtNewInputTermValue", "50");
  PreviewInput(given);
  EXPECT_EQ(ShownChoices(), Names{"cmdInputNone"});
}

TEST_F(ImpedanceMatchPage, ASeriesPairHasOptionFiveInBothDirections) {
  OpenOn({pair, tank, pair});
  PreviewInput("50");
  EXPECT_EQ(ShownChoices(), Names{"cmdInputFive"});
  EXPECT_TRUE(Drawn("2.38732uH") && Drawn("95.493pF")) << Drawing();
  PreviewInput("5000");
  EXPECT_EQ(ShownChoices(), Names{"cmdInputFive"});
  Press("cmdInputFive");
  PreviewOutput("5000");
  EXPECT_EQ(ShownChoices(), Names{"cmdOutputFive"});
  Press("cmdOutputFive");
  Press("cmdAccept");
  EXPECT_EQ(Types(), (Codes{ShuntC, SeriesSLC, ShuntPLC, SeriesSLC, ShuntC}));
  EXPECT_GT(session.network.stage[2].Lval.value, 0.8e-6F);
}

TEST_F(ImpedanceMatchPage, AHigherValueAtAParallelPairOffersNothing) {
  OpenOn({tank, coupling, tank});
  PreviewInput("600");
  EXPECT_EQ(ShownChoices(), Names{});
  EXPECT_FALSE(CaptionOf("lblInputAdvice").empty());
  PreviewInput("400");
  EXPECT_EQ(ShownChoices().size(), 4U);
  EXPECT_TRUE(CaptionOf("lblInputAdvice").empty());
}

TEST_F(ImpedanceMatchPage, TypingHidesTheOptionsUntilTheNextPreview) {
  OpenOn({tank, coupling, tank});
  PreviewInput("50");
  Type(session, Get<TextBox>("txtNewInputTermValue"), "60");
  EXPECT_EQ(ShownChoices(), Names{});
  EXPECT_TRUE(Get<PictureBox>("picMatch").areas.empty());
  EXPECT_FALSE(Drawn("Option 1"));
  Press("cmdPreviewInputOptions");
  EXPECT_EQ(ShownChoices().size(), 4U);
}

TEST_F(ImpedanceMatchPage, TooLowTerminationsAreRefusedEachByItsOwnLimit) {
  OpenOn({tank, coupling, tank});
  PreviewInput("0");
  EXPECT_EQ(MessageTexts(), Names{"That new input termination value is too low"});
  EXPECT_EQ(platform.messages.back().title, "");
  EXPECT_EQ(ShownChoices(), Names{});
  PreviewInput("-5");
  EXPECT_EQ(platform.messages.size(), 2U);
  PreviewInput("1m");
  EXPECT_EQ(platform.messages.size(), 2U);
  EXPECT_EQ(ShownChoices().size(), 4U);
  Press("cmdInputOne");
  PreviewOutput(".01");
  EXPECT_EQ(platform.messages.size(), 3U);
  EXPECT_EQ(platform.messages.back().text, "That new output termination value is too low");
  PreviewOutput(".011");
  EXPECT_EQ(platform.messages.size(), 3U);
  EXPECT_EQ(ShownChoices().size(), 4U);
}

TEST_F(ImpedanceMatchPage, ASideWithoutAPairIsToldAndStaysAsItIs) {
  OpenOn({coupling, tank});
  EXPECT_EQ(MessageTexts(), Names{inputRefusal});
  EXPECT_TRUE(Shown("fraOutput"));
  PreviewOutput("50");
  Press("cmdOutputOne");
  Press("cmdAccept");
  EXPECT_EQ(Types(), (Codes{SeriesC, ShuntPLC, SeriesC}));
  EXPECT_EQ(session.network.Rsource[1], 500);
}

TEST_F(ImpedanceMatchPage, AnOutputWithoutAPairIsToldWhenItsTurnComes) {
  OpenOn({tank, coupling});
  EXPECT_EQ(MessageTexts(), Names{});
  PreviewInput("50");
  Press("cmdInputOne");
  EXPECT_EQ(MessageTexts(), Names{outputRefusal});
  EXPECT_TRUE(Shown("fraFinal"));
  Press("cmdAccept");
  EXPECT_EQ(session.network.Rsource[1], 50);
  EXPECT_EQ(session.network.Rload[1], 500);
}

TEST_F(ImpedanceMatchPage, WithNoPairAtAllTheFinalPreviewFollows) {
  OpenOn({coupling, Part(ShuntC, 0, 1e-11), coupling});
  EXPECT_EQ(MessageTexts(), (Names{inputRefusal, outputRefusal}));
  EXPECT_TRUE(Shown("fraFinal"));
  EXPECT_TRUE(Shown("cmdAccept"));
}

TEST_F(ImpedanceMatchPage, ASingleResonatorIsMatchedAtBothEnds) {
  OpenOn({tank});
  PreviewInput("50");
  Press("cmdInputOne");
  PreviewOutput("50");
  Press("cmdOutputThree");
  // 300 pF less and more 95.493 pF.
  EXPECT_TRUE(Drawn("300pF")) << Drawing();
  Press("cmdAccept");
  EXPECT_EQ(Types(), (Codes{SeriesC, ShuntPLC, SeriesL}));
  EXPECT_NEAR(f64{session.network.stage[2].Cval.value}, 300e-12, 1e-16);
}

TEST_F(ImpedanceMatchPage, ATapAtTheInputLeavesNoPairForTheOutputOfASingleResonator) {
  OpenOn({tank});
  PreviewInput("50");
  Press("cmdInputTwo");
  EXPECT_EQ(MessageTexts(), Names{outputRefusal});
  Press("cmdAccept");
  EXPECT_EQ(Types(), (Codes{ShuntC, SeriesC, ShuntL}));
}

TEST_F(ImpedanceMatchPage, ANegativePartIsOfferedAndShownInRed) {
  OpenOn({Part(ShuntPLC, 0.8e-6, 20e-12), coupling, tank});
  PreviewInput("50");
  EXPECT_EQ(ColorOf("-75.493pF"), colorRed) << Drawing();
  EXPECT_EQ(ColorOf("106.103pF"), colorBlack) << Drawing();
  Press("cmdInputOne");
  KeepOutput();
  Press("cmdAccept");
  EXPECT_LT(session.network.stage[2].Cval.value, 0);
}

TEST_F(ImpedanceMatchPage, BeyondTheBoundOfTheListNothingIsAccepted) {
  OpenOn(std::vector<Stage>(43, tank));
  const DesignRecord before = session.record;
  PreviewInput("50");
  Press("cmdInputTwo");
  PreviewOutput("50");
  Press("cmdOutputTwo");
  Press("cmdAccept");
  EXPECT_EQ(MessageTexts(), Names{"We could not calculate the parts values."});
  EXPECT_EQ(Top().Id(), PageId::ImpedanceMatch);
  EXPECT_EQ(session.record, before);
  Press("cmdRedesign");
  PreviewInput("50");
  Press("cmdInputTwo");
  PreviewOutput("50");
  Press("cmdOutputOne");
  Press("cmdAccept");
  EXPECT_EQ(session.network.Stages, 46);
}

TEST_F(ImpedanceMatchPage, AnOptionIsChosenOnThePictureToo) {
  OpenOn({tank, coupling, tank});
  PreviewInput("50");
  PressArea(session, Get<PictureBox>("picMatch"), "MatchOption2");
  EXPECT_TRUE(Shown("fraOutput"));
  KeepOutput();
  Press("cmdAccept");
  EXPECT_EQ(Types(), (Codes{ShuntC, SeriesC, ShuntL, SeriesC, ShuntPLC}));
}

TEST_F(ImpedanceMatchPage, WithoutACenterFrequencyThePageStaysClosed) {
  SetBandpass({tank, coupling, tank});
  session.record.Topology = "A";
  session.record.Fcenter = 0;
  session.pages.ShowPage(PageId::Design);
  Press("Command7");
  EXPECT_EQ(Top().Id(), PageId::Design);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text, "Please enter a center frequency");
  EXPECT_EQ(platform.messages[0].title, "Error checker 199");
}

}  // namespace
}  // namespace quilm
