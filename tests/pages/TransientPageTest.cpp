// The page of the transient analysis, by the names of its controls.
#include <algorithm>

#include "core/Responses.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class TransientPage : public PageBench {
 protected:
  TransientPage() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
    Press("cmdAnalysis");
  }

  void Open() {
    Press("cmdTransient");
    ASSERT_EQ(Top().Id(), PageId::TransientPlot);
    ASSERT_EQ(session.pages.Find(PageId::Analyze), nullptr);
  }

  void OpenAndPlot(const std::string& frequency) {
    Open();
    Enter("txtSquarewaveFreq", frequency);
    Press("cmdPlot");
  }

  const Picture& Drawn() { return Get<PictureBox>("picWaves").picture; }
  std::string TextOf(const std::string& name) { return Get<TextBox>(name).text; }
  bool Shown(const std::string& name) { return Get<Control>(name).Shown(); }
  bool Chosen(const std::string& name) { return Get<OptionButton>(name).Value(); }
  WaveEntries& Signal() { return session.studies.wave; }

  // How often a text stands in the picture.
  int Count(const std::string& text) {
    return static_cast<int>(
        std::count_if(Drawn().Operations().begin(), Drawn().Operations().end(), [&](const auto& op) {
          const auto* print = std::get_if<TextOp>(&op);
          return print != nullptr && print->text == text;
        }));
  }

  // The colours of what has more points than any line of the grid.
  std::vector<Color> TraceColors() {
    constexpr std::size_t morePoints = 100;
    std::vector<Color> colors;
    for (const PictureOp& op : Drawn().Operations()) {
      const auto* line = std::get_if<PolylineOp>(&op);
      if (line != nullptr && line->points.size() > morePoints) colors.push_back(line->pen.color);
    }
    return colors;
  }
};

TEST_F(TransientPage, OpensWithEmptyBoxesAndTheFrameAlone) {
  Open();
  EXPECT_EQ(Top().title, "Transient Analysis");
  EXPECT_EQ(TextOf("txtSquarewaveFreq"), "");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "");
  EXPECT_TRUE(Chosen("Option1"));
  EXPECT_TRUE(Chosen("Option4"));
  EXPECT_FALSE(Shown("lblCarrierFreq"));
  EXPECT_FALSE(Shown("txtCarrierFreq"));
  EXPECT_TRUE(Shown("Option6"));
  EXPECT_FALSE(Get<Button>("cmdPrint").enabled);
  EXPECT_FALSE(Drawn().Empty());
  EXPECT_TRUE(TraceColors().empty());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TransientPage, WithoutStagesTheAnalysisPageStays) {
  session.network.Stages = 0;
  Press("cmdTransient");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"The parts list is empty"});
}

TEST_F(TransientPage, AMissingFrequencyIsAskedForAndItsBoxHasTheFocus) {
  Open();
  Press("Option2");
  Top().TakeFocusWish();
  for (const char* entry : {"", "0", "-5"}) {
    Enter("txtSquarewaveFreq", entry);
    Press("cmdPlot");
    ASSERT_EQ(platform.messages.size(), 1U) << entry;
    EXPECT_EQ(platform.messages.back().text, "Please enter a fundamental (squarewave) frequency");
    EXPECT_EQ(platform.messages.back().title, "");
    EXPECT_EQ(Top().TakeFocusWish(), &Get<Control>("txtSquarewaveFreq"));
    platform.messages.clear();
  }
  Enter("txtSquarewaveFreq", "100k");
  Press("cmdPlot");
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"Please enter a carrier frequency"});
  EXPECT_EQ(Top().TakeFocusWish(), &Get<Control>("txtCarrierFreq"));
  EXPECT_FALSE(Get<Button>("cmdPrint").enabled);
  EXPECT_TRUE(TraceColors().empty());
}

TEST_F(TransientPage, ASquarewaveNeedsNoCarrier) {
  OpenAndPlot("200000");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(TextOf("txtSquarewaveFreq"), "200k");
  EXPECT_EQ(Count("Squarewave frequency: 200k"), 1);
  EXPECT_EQ(TraceColors(), std::vector<Color>{colorBlue});
  EXPECT_EQ(Count("Normal"), 0);
  EXPECT_EQ(Count("LOW AMPLITUDE"), 0);
  EXPECT_TRUE(Get<Button>("cmdPrint").enabled);
}

TEST_F(TransientPage, PlotRewritesABoxThatWasNotLeft) {
  Open();
  Type(session, Get<TextBox>("txtSquarewaveFreq"), "200000");
  Press("cmdPlot");
  EXPECT_EQ(TextOf("txtSquarewaveFreq"), "200k");
}

TEST_F(TransientPage, ChoicesTakeEffectAtTheNextPlot) {
  OpenAndPlot("200k");
  const Picture before = Drawn();
  Press("Option5");
  EXPECT_EQ(Drawn(), before);
  Press("cmdPlot");
  EXPECT_EQ(TraceColors(), std::vector<Color>{colorRed});
  Press("Option6");
  Press("cmdPlot");
  EXPECT_EQ(TraceColors(), (std::vector<Color>{colorBlue, colorRed}));
  EXPECT_EQ(Count("Normal"), 1);
  EXPECT_EQ(Count("Equalized"), 1);
}

TEST_F(TransientPage, ABurstHasACarrier) {
  OpenAndPlot("100k");
  Press("Option2");
  EXPECT_TRUE(Shown("lblCarrierFreq"));
  EXPECT_TRUE(Shown("txtCarrierFreq"));
  EXPECT_FALSE(Shown("Option6"));
  EXPECT_TRUE(Chosen("Option4"));
  Enter("txtCarrierFreq", "900000");
  Press("cmdPlot");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "900k");
  EXPECT_EQ(Count("Squarewave frequency: 100k"), 1);
  EXPECT_EQ(Count("Carrier frequency: 900k"), 1);
  EXPECT_EQ(TraceColors(), std::vector<Color>{colorBlue});
}

TEST_F(TransientPage, BothWavesBelongToTheSquarewave) {
  Open();
  Press("Option6");
  Press("Option2");
  EXPECT_EQ(Signal().AnalysisType, 'E');
  EXPECT_TRUE(Chosen("Option5"));
  Press("Option1");
  EXPECT_TRUE(Shown("Option6"));
  EXPECT_FALSE(Shown("txtCarrierFreq"));
  EXPECT_TRUE(Chosen("Option5"));
}

TEST_F(TransientPage, TheEnvelopeIsNormalOrEqualized) {
  Open();
  Press("Option3");
  EXPECT_EQ(Signal().AnalysisType, 'N');
  Press("Option5");
  Press("Option1");
  Press("Option3");
  EXPECT_EQ(Signal().AnalysisType, 'E');
  Press("Option1");
  Press("Option6");
  Press("Option3");
  EXPECT_EQ(Signal().AnalysisType, 'E');
  EXPECT_TRUE(Chosen("Option5"));
}

TEST_F(TransientPage, ALowWaveIsMarked) {
  OpenAndPlot("10M");  // far above the band of 1 MHz: a thousandth gets through
  EXPECT_EQ(Count("LOW AMPLITUDE"), 1);
  for (const PictureOp& op : Drawn().Operations()) {
    const auto* text = std::get_if<TextOp>(&op);
    if (text == nullptr || text->text != "LOW AMPLITUDE") continue;
    EXPECT_EQ(text->at, (Point{500, 4000}));
    EXPECT_EQ(text->color, colorRed);
  }
  // The shape is shown all the same.
  EXPECT_EQ(TraceColors(), std::vector<Color>{colorBlue});
  Enter("txtSquarewaveFreq", "200k");
  Press("cmdPlot");
  EXPECT_EQ(Count("LOW AMPLITUDE"), 0);
}

TEST_F(TransientPage, EntriesAndChoicesStayForTheNextVisit) {
  OpenAndPlot("200k");
  Press("Option2");
  Press("Option5");
  Enter("txtCarrierFreq", "1M");
  Press("cmdExitTransient");
  ASSERT_EQ(Top().Id(), PageId::Analyze);
  ASSERT_EQ(session.pages.Find(PageId::TransientPlot), nullptr);
  Open();
  EXPECT_EQ(TextOf("txtSquarewaveFreq"), "200k");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "1M");
  EXPECT_TRUE(Chosen("Option2"));
  EXPECT_TRUE(Chosen("Option5"));
  // The signal is at once seen behind the network as it is now.
  EXPECT_EQ(TraceColors(), std::vector<Color>{colorRed});
  EXPECT_TRUE(Get<Button>("cmdPrint").enabled);
}

TEST_F(TransientPage, TheCloseBoxAndEscapeReturnToTheAnalysisPage) {
  Open();
  EXPECT_EQ(Top().cancelButton, &Get<Button>("cmdExitTransient"));
  EXPECT_EQ(Top().acceptButton, &Get<Button>("cmdPlot"));
  PressCloseBox(session, Top());
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_FALSE(session.ended);
}

TEST_F(TransientPage, NeitherDesignNorSweepIsTouched) {
  session.record.RelativeMode = 1;
  session.record.AbsoluteMode = 0;
  const DesignRecord before = session.record;
  const Responses responses = session.responses;
  OpenAndPlot("200k");
  const Picture relative = Drawn();
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(session.responses.RespTrans, responses.RespTrans);
  EXPECT_EQ(session.responses.MaxTrans, responses.MaxTrans);
  EXPECT_EQ(session.responses.Fq, responses.Fq);
  // A relative display changes nothing of the waves.
  session.record.RelativeMode = 0;
  session.record.AbsoluteMode = 1;
  Press("cmdPlot");
  EXPECT_EQ(Drawn(), relative);
}

TEST_F(TransientPage, AnUndoShowsTheWaveOfTheDesignAsItIs) {
  OpenAndPlot("200k");
  const Picture before = Drawn();
  session.network.stage[1].Cval.value *= 3;
  Top().Reload();
  EXPECT_NE(Drawn(), before);
}

TEST_F(TransientPage, ANetworkThatCannotBeEvaluatedIsTold) {
  session.record.Width = session.record.Fcenter = 0;
  session.record.Fstart = -1;
  OpenAndPlot("200k");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages.back().title, "Error checker");
  EXPECT_FALSE(Get<Button>("cmdPrint").enabled);
  EXPECT_TRUE(TraceColors().empty());
}

TEST_F(TransientPage, ThePrintedWaveIsTheOneThatIsShown) {
  session.record.CircuitTitle = "A lowpass";
  OpenAndPlot("200k");
  Enter("txtSquarewaveFreq", "300k");  // not plotted yet
  Press("Option6");
  Press("cmdPrint");  // cancelled
  EXPECT_TRUE(platform.Printer().Sheets().empty());
  platform.printers.push_back(true);
  Press("cmdPrint");
  ASSERT_EQ(platform.Printer().Sheets().size(), 1U);
  EXPECT_EQ(platform.Printer().Paper(), Orientation::Landscape);
  const std::string sheet = platform.Printer().Sheets()[0].Dump();
  for (const char* text : {"\"A lowpass\"", "\"Squarewave frequency: 200k\"", "   -   Quilm "}) {
    EXPECT_NE(sheet.find(text), std::string::npos) << text;
  }
  EXPECT_EQ(sheet.find("Equalized"), std::string::npos);
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace quilm
